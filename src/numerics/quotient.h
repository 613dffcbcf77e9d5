#pragma once

// The quotient of two mantissas. Internal to the number core and its functions.

#include "numerics/limbs.h"

namespace quorix {

/// dividend / divisor, both normalised, in units of 2^-383 within 2^-375. Its top bit is clear if it is below
/// one.
limbs::Mantissa MantissaQuotient(const limbs::Mantissa& dividend, const limbs::Mantissa& divisor);

}  // namespace quorix
