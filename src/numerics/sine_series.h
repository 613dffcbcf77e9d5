#pragma once

// The Taylor series of the sine and the hyperbolic sine. Internal to the number functions.

#include "numerics/wide.h"

namespace quorix {

enum class SeriesSigns { kAlternating, kPositive };

/// z/3! - z^2/5! + z^3/7! - ... or, with positive signs, z/3! + z^2/5! + ..., for z = r^2 in [0, 2.5]: what 1
/// lacks of, or sinh has beyond, sin(r)/r and sinh(r)/r.
Wide SineSeries(const Wide& z, SeriesSigns signs);

}  // namespace quorix
