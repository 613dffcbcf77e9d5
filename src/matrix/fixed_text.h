#pragma once

// Numbers as the grids and data files write them. The locale of the process plays no part.

#include <string>

namespace quorix {

/// "%.*f" of the value; a zero that is shown has no sign.
std::string FixedText(double value, int decimals);

/// "%.0f" for a whole value, "%.8f" otherwise.
std::string CellText(double value);

}  // namespace quorix
