#pragma once

namespace quorix {

/// Rounds to `digits` decimals: upward when the fraction is above one half, else downward. So an exact half
/// goes down, and every negative value goes to the next lower one; both are intended.
double RoundTo(double x, int digits);

// Decimals of the loan and the mortgage, of what is typed as of what is computed.
inline constexpr int kMoneyDigits = 2;
inline constexpr int kYearlyRateDigits = 4;
inline constexpr int kCountDigits = 2;
/// Of the rate of one period, as a factor.
inline constexpr int kPeriodRateDigits = 7;

}  // namespace quorix
