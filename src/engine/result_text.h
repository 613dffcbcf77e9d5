#pragma once

// The text of a result as the user reads it.

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/calc_value.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"

namespace quorix {

struct ResultSettings {
    std::int32_t radixId = RADIX_DEC;
    std::int32_t wordId = WORD_8;
    std::int32_t formatId = FORMAT_NORM;
    /// Decimals of FORMAT_FIX.
    int fixDigits = 4;
    /// Index 0, 1, 2 of the greatest denominator of FORMAT_FRAC.
    std::uint32_t fractionLimit = 0;
    std::u16string_view numberLocale = u"English (US)";
    /// Digits behind the point of the conversion, 0 to 99.
    int digits = kResultDigits;
};

struct ResultText {
    std::u16string text;
    /// The format that the status line shows: the one asked for, or FORMAT_SCI where the result needs an
    /// exponent.
    std::int32_t formatId = FORMAT_NORM;
};

/// The text of an evaluation's result. While calcError is set it is that error's message. A complex number is
/// shown in radix 10 as two parts in exponent form with four decimals: "1.0000E0+2.0000E0i", "i". A matrix
/// has no text of one row and gives an empty one.
ResultText ComposeResult(const CalcValue& value, const ResultSettings& settings);

}  // namespace quorix
