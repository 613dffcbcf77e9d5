#pragma once

#include <cstdint>
#include <string>

namespace quorix {

inline constexpr std::u16string_view kModeString = u"String-Standard";
inline constexpr std::u16string_view kModeBasic = u"Basic-Standard";
inline constexpr std::u16string_view kModeRpn = u"Basic-RPN";

/// The preferences that the key machine reads; owned by the shell, one per process.
struct CalculatorSettings {
    /// kModeString, kModeBasic or kModeRpn; forced to kModeString in categories above 2.
    std::u16string inputMode{kModeString};
    /// "English (US)", "English (UK)" or "European".
    std::u16string numberLocale{u"English (US)"};
    /// Decimals of the FIX format, 0 to 32.
    std::uint8_t fixDigits = 4;
    /// Index of the greatest denominator of FRAC: 0, 1, 2 for 10^3, 10^6, 10^9; others count as 0.
    std::uint32_t fractionLimit = 0;
    std::uint32_t toolTipsEnabled = 1;

    [[nodiscard]] bool IsStringMode() const { return inputMode == kModeString; }
};

}  // namespace quorix
