#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quorix {

/// Partial sums of every sum over the rows of a column, padded with zeros to a multiple of it: element i goes
/// to sum i mod 8. They are added in halves: four and four, two and two, one and one.
inline constexpr std::size_t kPartialSums = 8;

/// Doubles in the widest vectors of this processor that the rounds are compiled for: 8, 4 or 2.
std::size_t WidestVectors();

/// Q of the last of `rounds` QR rounds on the n by n matrix a (row by row), from Q = identity: B = A·Q, B =
/// Q·R.
///
/// The factor comes column by column: components along the earlier columns are subtracted one after the other
/// (modified Gram-Schmidt), then once more all together; a column left with less than 1e-14 of its length is
/// replaced by the first unit vector that is not negligible itself. Sums over columns run in order. Stops
/// early where Q repeats itself after one or two rounds, with the Q that the last round would give.
///
/// width: doubles in a vector, at most WidestVectors(); the result does not depend on it.
std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds,
                             std::size_t width = WidestVectors());

}  // namespace quorix
