#pragma once

namespace quorix {

/// Rounds to `digits` decimals: upward when the fraction is above one half, else downward. So an exact half
/// goes down, and every negative value goes to the next lower one; both are intended.
double RoundTo(double x, int digits);

}  // namespace quorix
