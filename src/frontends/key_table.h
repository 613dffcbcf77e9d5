#pragma once

// Tables of rows that begin with a key code, in the order of the codes, so that a search can halve them.

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace quorix {

template <class Row, std::size_t N>
constexpr bool IsSortedByCode(const Row (&rows)[N]) {
    return std::is_sorted(std::begin(rows), std::end(rows),
                          [](const Row& a, const Row& b) { return a.code <= b.code; });
}

/// The row of a key, or null.
template <class Row, std::size_t N>
const Row* FindRowOfKey(const Row (&rows)[N], std::int32_t code) {
    const Row* const row =
        std::lower_bound(std::begin(rows), std::end(rows), code,
                         [](const Row& candidate, std::int32_t key) { return candidate.code < key; });
    return row != std::end(rows) && row->code == code ? row : nullptr;
}

}  // namespace quorix
