#pragma once

// The text of a result as the display's result row and the console show it.

#include <cstdint>
#include <string>

#include "engine/calc_value.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"

namespace quorix {

struct ResultSettings {
    std::int32_t radixId = RADIX_DEC;
    std::int32_t wordId = WORD_8;
    std::int32_t formatId = FORMAT_NORM;
    int fixDigits = 4;
    /// Index of the greatest denominator of FRAC.
    std::uint32_t fractionLimit = 0;
    std::u16string numberLocale = u"English (US)";
    /// Digits of the conversion of real numbers behind the point.
    int digits = kResultDigits;
};

struct ResultText {
    std::u16string text;
    /// The format that the status line shows with it: SCI for complex numbers and exponent form, else the
    /// asked one.
    std::int32_t formatId = FORMAT_NORM;
};

/// Composes a number's text: format, fraction, complex parts, radix, separators. A matrix has no text here.
ResultText ComposeResult(const CalcValue& value, const ResultSettings& settings);

}  // namespace quorix
