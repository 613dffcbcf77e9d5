#pragma once

#include <cstddef>
#include <cstdint>

namespace quorix {

/// Codes of the data file readers and the unit table. A positive code is the number of a line.
enum DataError : std::int32_t {
    DATA_NO_ERROR = 0,
    DATA_NOT_OPENED = -1,
    UNITS_NOT_SAME = -2,
    UNIT_UNKNOWN = -3,
    DATA_OVERFLOW = -5,
};

/// Lists grow with their file up to this many rows; one more is DATA_OVERFLOW, so that memory stays bounded.
inline constexpr std::size_t kMostDataRows = 100'000;

}  // namespace quorix
