#pragma once

// Coefficients of the series, as fractions of 384 bits. Internal to the number functions.

#include <array>

#include "numerics/limbs.h"

namespace quorix {

/// 1/(2k + 1) for k from 1 on; entry 0 is not used.
inline constexpr std::size_t kOddReciprocals = 78;
const std::array<limbs::Mantissa, kOddReciprocals>& OddReciprocals();

/// 4^k / (2k + 1)! for k from 1 on; entry 0 is not used. The series of the sine in z/4.
inline constexpr std::size_t kSineCoefficients = 46;
const std::array<limbs::Mantissa, kSineCoefficients>& SineCoefficients();

}  // namespace quorix
