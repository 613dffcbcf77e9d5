#pragma once

#include <string>

#include "numerics/qreal.h"

namespace quorix {

/// A number as text for an expression: "((mantissa)*10^(exponent))" with 32 digits in radix 10, otherwise the
/// digits of the radix at the word size.
std::u16string PastedNumber(const QReal& value, int radix);

/// Digits with which a running variable is pasted into a term.
inline constexpr int kTermDigits = 64;
/// A running variable's value as a term's text: "(value)".
std::u16string PastedTermValue(const QReal& value);

}  // namespace quorix
