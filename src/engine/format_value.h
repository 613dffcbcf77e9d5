#pragma once

// Numbers to display text.

#include <cstdint>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// Digits behind the point that results are converted with, and those of the parts of a complex number.
inline constexpr int kResultDigits = 32;
inline constexpr int kComplexDigits = 4;

/// Settings of one conversion. digits: 0 to 99; fixedDecimals is read by FORMAT_FIX only.
/// typedFractionDigits >= 0 keeps a point and that many decimals visible while a fraction is being typed.
struct FormatSettings {
    std::int32_t radixId = 147;
    std::int32_t wordId = 138;
    std::int32_t formatId = 135;
    int digits = kResultDigits;
    int fixedDecimals = 4;
    int typedFractionDigits = -1;
};

/// mantissa carries the number; exponent is empty or "E5", "E-12".
struct FormattedValue {
    std::u16string mantissa;
    std::u16string exponent;
};

FormattedValue FormatValue(const QReal& value, const FormatSettings& settings);
/// The same, never in exponent form.
std::u16string FormatValuePlain(const QReal& value, const FormatSettings& settings);

}  // namespace quorix
