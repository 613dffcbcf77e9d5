#pragma once

// Products and quotients by the rule of the words, for the few operands whose rounding depends on it: sums of
// 16-bit word products that leave out what lies wholly below the last word. Internal to the number core.

#include "numerics/limbs.h"

namespace quorix {

/// The product as the sum of the word products that reach the guard word or higher, cut below the guard word.
limbs::Mantissa ProductByWords(const limbs::Mantissa& a, const limbs::Mantissa& b);

/// A quarter of the quotient by Newton's iteration on the reciprocal, the working length doubled from one
/// word to 22.
limbs::Mantissa QuarterQuotientByWords(const limbs::Mantissa& dividend, const limbs::Mantissa& divisor);

}  // namespace quorix
