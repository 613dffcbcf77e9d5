#pragma once

// Rounding of doubles to decimals, as writing them to text and reading them back does it.

namespace quorix {

/// The double nearest to `value` written with 12 decimals ("%.12f"). Infinities and not-a-numbers pass.
double RoundTo12Decimals(double value);

/// The whole number that `value`, not negative, is when written with 13 decimals ("%.13f"), or -1 when it is
/// none then. Not-a-numbers and infinities are none.
double WholeAt13Decimals(double value);

}  // namespace quorix
