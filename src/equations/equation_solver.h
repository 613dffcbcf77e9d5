#pragma once

// The "=" of the page of single equations.

#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Shown for a line that fails the input check, and for a degree outside 1 to 4. The two spellings are
/// intended.
inline constexpr std::string_view kInvalidLine = "\\rightarrow\\text{Invalid Parameters!}";
inline constexpr std::string_view kInvalidDegree = "\\rightarrow\\text{Invalid parameters!}";
/// Shown where no root is real: for degree 2, and for degrees 3 and 4.
inline constexpr std::string_view kNoQuadraticRoot = "\\text{Cannot be solved!}";
inline constexpr std::string_view kNoRoot = "\\rightarrow\\text{Cannot be solved!}";

/// Solves the polynomial equation whose coefficients the line holds, highest power first, parted by blanks.
/// Result: the lines to show, as TeX: "X=..." for degree 1, "X_1=..." and so on for real roots, or one of the
/// messages. calcError is 0 at the end.
std::vector<std::string> SolveEquationCommand(std::u16string_view line);

}  // namespace quorix
