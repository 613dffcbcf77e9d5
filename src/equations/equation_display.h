#pragma once

// Lines of results as TeX.

#include <string>
#include <string_view>

namespace quorix {

/// Puts parentheses around what stands about each "/", from blank to blank.
void WrapQuotients(std::u16string& text);
/// An exact text as TeX: fractions and roots, groups in braces.
std::string ExactTextToTeX(std::u16string_view exactText);
/// Cuts zeros, then points at the end of a line; "-0" becomes "0".
void TrimDecimalLine(std::string& line);
/// "%.*f"; a zero has no sign.
std::string FixedDecimal(double value, int decimals);

/// "X_1"; an index of several digits in braces.
std::string VariableTeX(std::size_t index);

}  // namespace quorix
