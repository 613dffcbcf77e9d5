#pragma once

// Rounding of doubles to decimals, as writing them to text and reading them back does it.

#include <cmath>
#include <limits>

namespace quorix {

/// The same as RoundTo12Decimals by whole numbers of 128 bits; any value.
double RoundTo12DecimalsExactly(double value);

/// The double nearest to `value` written with 12 decimals ("%.12f"). Infinities and not-a-numbers pass.
inline double RoundTo12Decimals(double value) {
    constexpr double kScale = 1e12;
    // Added and taken off again, it rounds a double below 2^51 to a whole number, ties to even.
    constexpr double kRoundingShift = 6755399441055744.0;
    constexpr double kRoundingLimit = 2251799813685248.0;
    // The product is off by less than its size over 2^53; unless it lies that near to a half, it rounds to
    // the right whole number.
    const double scaled = std::fabs(value) * kScale;
    const double whole = (scaled + kRoundingShift) - kRoundingShift;
    const double uncertainty = scaled * std::numeric_limits<double>::epsilon();
    if (!(scaled < kRoundingLimit) || !(std::fabs(scaled - whole) + uncertainty < 0.5)) {
        return RoundTo12DecimalsExactly(value);
    }
    return std::copysign(whole / kScale, value);
}

/// The whole number that `value`, not negative, is when written with 13 decimals ("%.13f"), or -1 when it is
/// none then. Not-a-numbers and infinities are none.
double WholeAt13Decimals(double value);

}  // namespace quorix
