#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/data_line.h"

namespace quorix {

/// A unit or currency: x of it are factor * x + offset in the terms above and below the line. A record
/// without terms is a base unit.
struct UnitRecord {
    std::u16string name;
    std::u16string symbol;
    double factor = 1;
    double offset = 0;
    /// The terms of the definition, each repeated per exponent.
    std::vector<std::u16string> numerators;
    std::vector<std::u16string> denominators;

    [[nodiscard]] bool IsBase() const { return numerators.empty() && denominators.empty(); }
};

/// Reads the row 'Name Symbol !' or 'Name Symbol Factor Offset Definition'; what follows is ignored. False
/// for a missing field, a number that is none and a definition that fails; `record` is then unspecified.
bool ReadUnitRow(FieldCutter& fields, UnitRecord& record);

}  // namespace quorix
