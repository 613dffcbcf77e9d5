#pragma once

// 2/pi to as many bits as the largest argument of a circular function needs. Internal to the number
// functions.

#include <array>

#include "numerics/limbs.h"

namespace quorix {

/// Enough for the exponents up to 16641 and a window behind them.
inline constexpr std::size_t kTwoOverPiLimbs = 282;

/// The fraction 2/pi, the most significant limb first.
extern const std::array<limbs::Limb, kTwoOverPiLimbs> kTwoOverPi;

}  // namespace quorix
