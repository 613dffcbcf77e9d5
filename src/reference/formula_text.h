#pragma once

// Texts of formula files for the screen.

#include <string>
#include <string_view>

namespace quorix {

/// UTF-8, or Latin-1 where the bytes are no UTF-8.
std::u16string WideFormulaText(std::string_view bytes);

/// A unit or a symbol in TeX as plain text: "kg/m^3" is kg/m³, "^o" is °, "\Omega" is Ω, "v_0" is v0.
/// Commands that are not known lose their backslash.
std::u16string PlainFormulaText(std::string_view tex);

}  // namespace quorix
