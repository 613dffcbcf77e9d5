#pragma once

// How the named functions are written in mathematics.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/named_functions.h"

namespace quorix {

/// The translation of an argument, given the name that is bound in it, or an empty one.
using TranslateArgument = std::function<std::string(std::string_view argument, std::string_view boundName)>;

/// TeX of a call of the named function `row` for the text between its parentheses; nothing for a function
/// that is written as it is typed, or when arguments are missing. A bound name itself is not translated.
std::optional<std::string> CallToTeX(NamedFunction row, std::string_view arguments,
                                     const TranslateArgument& translate);

/// How a form holds together before what follows it.
enum class FormHold {
    whole,    ///< always read as one
    script,   ///< a raised sign behind it would be read as a part's
    sum,      ///< all but terms and factors would be read into it
    product,  ///< all but terms would be
};
FormHold HoldOf(NamedFunction row);

/// What stands for a call whose ")" is not typed yet; empty for a function of which nothing is shown.
std::string_view OpenCallToTeX(NamedFunction row);

}  // namespace quorix
