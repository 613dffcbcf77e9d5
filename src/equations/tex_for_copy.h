#pragma once

#include <string>
#include <string_view>

namespace quorix {

/// A line in the engine's notation as a formula for TeX systems: ExpressionToTeX, with the names of functions
/// as commands, "*" as a centred dot, and the scale operator before a number or parentheses as a power of
/// ten.
std::string TexForCopy(std::u16string_view engineText);

}  // namespace quorix
