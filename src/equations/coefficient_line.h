#pragma once

// A line of coefficients: expressions parted by blanks, highest power first.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Most characters of a coefficient, its parentheses included.
inline constexpr std::size_t kLongestCoefficient = 128;

/// The engine's signs for the display's: "*", "/" and "-".
std::u16string WithEngineSigns(std::u16string_view line);
/// Cuts runs of blanks down to one.
std::u16string CollapseBlanks(std::u16string_view line);
/// The parts of a line between blanks.
std::vector<std::u16string_view> SplitTokens(std::u16string_view line);
/// Each token in parentheses, its named functions computed; at most `limit` of them.
std::vector<std::u16string> CoefficientTexts(std::u16string_view line,
                                             std::size_t limit = std::u16string::npos);

/// The input check: the line with the engine's signs for the display's, trimmed, with single blanks, and
/// "--", "//" and ".." as one sign each; blanks, points and slashes at its ends are gone. Nothing when it has
/// no digit, or a token is too long or no expression.
std::optional<std::u16string> CheckedLine(std::u16string_view line);

/// Degree of a polynomial: leading tokens that are exactly 0 are dropped, the others, joined by single
/// blanks, written to normalisedLine. -1 when none is left.
int PolynomialDegree(std::u16string_view line, std::u16string& normalisedLine);

/// Value of a coefficient in doubles, calcError cleared before; 0 with a code in it on failure.
double CoefficientValue(std::u16string_view text);

}  // namespace quorix
