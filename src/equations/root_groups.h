#pragma once

// Roots of very different sizes: equations of degrees 1 to 4 solved group by group.

#include <array>

#include "equations/extended_polynomial.h"
#include "equations/formula_roots.h"

namespace quorix {

/// Roots of a X^2 + b X + c with a not 0: the one with +S first, S being the square root of the discriminant.
/// Neither loses digits to cancellation. A discriminant below 2^-300 b^2 is rounding and counts as 0.
std::array<QComplex, 2> QuadraticRoots(const ExtendedPolynomial& polynomial);

/// Whether the values of the formulas hold all real roots, each of them as exact as its own size allows:
/// RootResidual is at most 1e-40, and whether a value is real is beyond doubt. Values that stand for an exact
/// root 0 become 0.
bool IsSettled(const ExtendedPolynomial& polynomial, RootSet& roots);

/// Roots by the same formulas where one pass of them loses digits to sizes far apart or to roots close
/// together. The Newton polygon of the coefficients tells how many roots there are of which size. The largest
/// are taken from the equation scaled to their size, the smallest from the one of the reciprocals, and what
/// lies between from the quotient by both; each group is then solved by itself, about its centre where that
/// is better. Real are values whose imaginary part is below 1e-16 of their size. Leading coefficient not 0;
/// degrees 1 to 4.
RootSet GroupedRoots(const ExtendedPolynomial& polynomial);

}  // namespace quorix
