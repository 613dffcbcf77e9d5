#pragma once

// The operators of the double table over ranges: where an expression may run to infinity is told by its
// ranges, whatever its values at single points are.

#include <limits>
#include <optional>
#include <string_view>

namespace quorix {

/// Closed interval of real values; infinite ends tell that it may be unbounded.
struct ValueRange {
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();

    [[nodiscard]] bool Contains(double value) const { return least <= value && value <= greatest; }
    [[nodiscard]] bool IsBounded() const;
};

/// Everything that the operator may give for operands in the ranges, rounding included; more is allowed.
/// Nothing when some operands have no real value.
using RangeFunction = std::optional<ValueRange> (*)(const ValueRange& operand);
using RangeOperation = std::optional<ValueRange> (*)(const ValueRange& left, const ValueRange& right);

/// Null for operators whose ranges are not known. Angles are in the unit of the context.
RangeFunction FindRangeFunction(std::u16string_view name);
RangeOperation FindRangeOperation(std::u16string_view name);

}  // namespace quorix
