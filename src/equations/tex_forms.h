#pragma once

// How the named functions are written in mathematics.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/named_functions.h"

namespace quorix {

/// TeX of a call of the named function `row` for the text between its parentheses; nothing for a function
/// that is written as it is typed, or when arguments are missing. translate: the translation of an argument;
/// the name of a bound variable is not handed to it.
std::optional<std::string> CallToTeX(NamedFunction row, std::string_view arguments,
                                     const std::function<std::string(std::string_view)>& translate);

/// What stands for a call whose ")" is not typed yet; empty for a function of which nothing is shown.
std::string_view OpenCallToTeX(NamedFunction row);

}  // namespace quorix
