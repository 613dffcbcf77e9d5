#pragma once

// Expressions as TeX: what the equation pages typeset and what "Copy as TeX" hands out.

#include <cstddef>
#include <string>
#include <string_view>

namespace quorix {

/// Size of a TeX text in the buffers of the rasteriser. A pass stops once its text has reached it, and such a
/// text is shown as kTexOverlength.
inline constexpr std::size_t kTexBufferSize = 8192;
inline constexpr std::string_view kTexOverlength = "Overlength!";
/// Shown for a source text of kTexSourceLimit characters or more.
inline constexpr std::size_t kTexSourceLimit = 4096;
inline constexpr std::string_view kTexSourceOverlength = "\\text{Overlength!}";

/// The passes, each in place on 8-bit text in the engine's notation. They take any text: what they do not
/// understand stays as it is. None evaluates; calcError is neither read nor set.

/// Parentheses round what "sqrt" applies to: "sqrt 25" to "sqrt(25)", "sqrt(9)!" to "sqrt((9)!)".
void EncloseRadicands(std::string& text);
/// "a^b" to "{a}^{b}", nested to the right, as it is calculated. A base that would not be read as a whole
/// gets parentheses: "sin 2^3" becomes "{(sin 2)}^{3}".
void TranslatePowers(std::string& text);
/// "a/b" to "\frac{a}{b}", nested to the left.
void TranslateFractions(std::string& text);
/// Fractions, then named functions in their mathematical forms (an open call becomes a placeholder), then
/// the values of stored variables with four decimals; a name that a function binds stays. Forms and values
/// get parentheses where what stands behind them would be read as a part of them. Result: 1.
int TranslateToTeX(std::string& text);
/// "(" to "\left( " and ")" to " \right)", those that are delimiters already excepted.
void WrapDelimiters(std::string& text);

/// The engine's or the display's text in 8 bits: signs as the engine writes them, Greek letters as commands,
/// "%" escaped, other characters beyond ASCII as "?".
std::string NarrowToTeX(std::u16string_view text);
/// A line in the engine's notation through all passes, as the rasteriser and other programs take it. One of
/// the two overlength texts when it is too long.
std::string ExpressionToTeX(std::u16string_view engineText);

/// Writes "%.*f" of a number, then cuts trailing zeros and the point. A zero has no sign.
std::string TrimmedDecimal(double value, int decimals);

}  // namespace quorix
