#pragma once

// Texts of formula files for the screen.

#include <string>
#include <string_view>

namespace quorix {

/// A unit or a symbol in TeX as plain text: "kg/m^3" is kg/m³, "^o" is °, "\Omega" is Ω, "v_0" is v0.
/// Commands that are not known lose their backslash.
std::u16string PlainFormulaText(std::string_view tex);

}  // namespace quorix
