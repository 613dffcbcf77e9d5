#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quorix {

/// Partial sums of a squared length: element i goes to sum i mod 8, and the sums are added in pairs.
inline constexpr std::size_t kLengthSums = 8;

/// Q of the last of `rounds` QR rounds on the n by n matrix a (row by row), from Q = identity: B = A·Q, B =
/// Q·R.
///
/// The factor comes column by column: components along the earlier columns are subtracted one after the other
/// (modified Gram-Schmidt), then once more all together; a column left with less than 1e-14 of its length is
/// replaced by the first unit vector that is not negligible itself. Sums run over rows, and over earlier
/// columns, in order. Stops early where Q repeats itself after one or two rounds, with the Q that the last
/// round would give.
std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds);

}  // namespace quorix
