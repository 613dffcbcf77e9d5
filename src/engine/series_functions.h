#pragma once

#include <cstdint>

#include "engine/named_arguments.h"
#include "numerics/qreal.h"

namespace quorix {

enum class Series : std::uint8_t { sum, product };

/// fnSum or fnProduct(expression, variable, from, to, step): every occurrence of the variable's name in the
/// expression, as a plain substring, is replaced by "(value)", and the terms are added or multiplied. Stores
/// -41 for a step of the wrong sign or larger than the span.
QReal CallSeries(NamedArguments& arguments, Series series);

/// expression with every occurrence of `variable` replaced. An empty variable leaves it as it is.
std::u16string TermText(std::u16string_view expression, std::u16string_view variable,
                        std::u16string_view value);

}  // namespace quorix
