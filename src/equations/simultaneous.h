#pragma once

// Linear systems: each equation a line of coefficients whose last one is the right-hand side.

#include <string>
#include <string_view>
#include <vector>

namespace quorix {

inline constexpr std::string_view kUnequalEquations = "Equations have not the same number of parameters!";
inline constexpr std::string_view kUnequalCounts =
    "Number of equations and number of variables are not the same.";
inline constexpr std::string_view kNotSolved = "Cannot solved";

/// Either a message for a box and no lines, or the lines of the result list, as TeX.
struct SystemSolution {
    std::string_view message;
    std::vector<std::string> lines;
};

/// Values of a line's tokens in doubles; a token that fails reads as 0.
std::vector<double> ParseCoefficients(std::u16string_view line);
/// x = A^-1 b for lines that pass the input check. Lines "X_1=fraction=decimal" with six decimals; kNotSolved
/// for a determinant below 1e-10 or of rounding alone, and for any engine error. calcError is 0 at the end.
SystemSolution SolveSimultaneous(const std::vector<std::u16string>& equations);

}  // namespace quorix
