#pragma once

#include <cstdint>
#include <string>

namespace quorix {

/// Greatest denominator for a preference index 0, 1, 2: 1000, 1000000, 1000000000; any other index 1000.
double FractionDenominatorLimit(std::uint32_t fractionLimit);
/// Mixed fraction by continued fraction, tolerance 1e-14: "3 16/113", "-1/4", "0".
std::u16string FormatFraction(double value, double limit);

}  // namespace quorix
