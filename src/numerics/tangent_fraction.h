#pragma once

// The continued fraction of the hyperbolic tangent. Internal to the number functions.

#include "numerics/limbs.h"

namespace quorix {

/// tanh(y) = y * denominator / numerator. Both are fractions in the same unknown unit; the numerator is the
/// larger one and not below 1/8, their difference not below a half of it for z <= 1.
struct TangentFraction {
    limbs::Mantissa numerator, denominator;
};

/// 1 + z/(3 + z/(5 + ...)) with `levels` odd numbers, for the square z = y^2 in [0, 1), as
/// numerator/denominator. By the recurrence N' = m N + z D, D' = N from the last odd number m to 1.
TangentFraction HyperbolicTangentFraction(const limbs::Mantissa& z, int levels);

}  // namespace quorix
