#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quorix {

/// Q of the last of `rounds` QR rounds on the n by n matrix a (row by row), from Q = identity. Stops early
/// where Q repeats itself after one or two rounds, with the Q that the last round would give.
std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds);

/// Q of one factorisation B = Q·R by modified Gram-Schmidt in two passes, column by column. The plain way
/// that QrRounds equals bit for bit.
std::vector<double> QrFactor(std::span<const double> b, std::size_t n);

}  // namespace quorix
