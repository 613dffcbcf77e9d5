#pragma once

// The translation of a display line to the engine's notation.

#include <optional>
#include <string>
#include <string_view>

namespace quorix {

/// Longest text that the engine takes.
inline constexpr std::size_t kLongestExpression = 4095;

/// Display text ("2√(9)", "3×[ans]", "2i") to engine notation ("RT(2,9)", "3*[VRE]", "2*i"): signs, leading
/// zeros, degrees of roots, implicit multiplication, names, decimal sign of the locale. radix: 2, 8, 10 or
/// 16; in 16 the letters A to F are digits. Nothing when the result is longer than kLongestExpression.
std::optional<std::u16string> ToEngineText(std::u16string_view displayText, std::u16string_view numberLocale,
                                           int radix);

/// Replaces every occurrence of `from` (not empty) in `text`.
void ReplaceAll(std::u16string& text, std::u16string_view from, std::u16string_view to);

/// The reverse for single characters and the answer: "*", "/", "-" to the display's signs, "[VRE]" to
/// "[ans]".
std::u16string ToDisplaySigns(std::u16string_view engineText);

}  // namespace quorix
