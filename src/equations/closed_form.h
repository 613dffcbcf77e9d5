#pragma once

// Roots of polynomials of degree 2 to 4 by closed forms, in extended precision; nothing here iterates.

#include <array>
#include <string>
#include <string_view>

namespace quorix {

/// The real roots of a line of three coefficients, the one with the positive square root first. Result: 1, or
/// 0 when there is none or a coefficient has an error.
int QuadraticRootsNumeric(std::u16string_view line, double& root1, double& root2);

/// Texts of the roots with ten decimals. Result: a bit for each text whose root is real and satisfies the
/// equation (IsRootOf); a multiple root may have several bits. The first four, or five, coefficients of the
/// line are read; 0 when the first of them is 0, when there are fewer or when one has an error. The letters a
/// to e inside a coefficient are replaced like those of the formulas; this is intended.
int CubicRoots(std::u16string_view line, std::array<std::u16string, 3>& texts);
int QuarticRoots(std::u16string_view line, std::array<std::u16string, 4>& texts);

}  // namespace quorix
