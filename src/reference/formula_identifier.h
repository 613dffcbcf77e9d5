#pragma once

// Names of formulas and folders in the library: dotted paths of up to four parts, "1.2.3".

#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

/// One byte a part, the first part in the highest byte; absent parts are 0: "1.2" is 0x01020000.
using FormulaId = std::uint32_t;

/// Each part is read as a decimal integer as far as it goes and masked to 8 bits; parts behind the fourth are
/// ignored. A text without digits gives 0.
FormulaId ParseFormulaId(std::string_view text);

/// The dotted text; zero bytes at the end are dropped, so 0 gives an empty text.
std::string FormulaIdText(FormulaId id);

/// The identifier with its last part that is not zero cleared; 0 for a single part.
FormulaId ParentFormulaId(FormulaId id);

}  // namespace quorix
