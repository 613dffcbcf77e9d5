#pragma once

// The memories M1 to M5 keep numbers as text in the engine's notation.

#include <cstdint>
#include <string>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// A shown number ("1¸234.5E-12", "FF") in the form that both editor and engine read back: "1234.5exp(-12)".
std::u16string MemoryTextOf(std::u16string_view shown, std::u16string_view numberLocale,
                            std::int32_t radixId);

/// A complex number to the full digits of a result: "(1.5+2.25i)". In a decimal base only.
std::u16string MemoryTextOfComplex(const QComplex& value);

/// The value of a memory in the base of `radixId`; an empty or unreadable memory is 0. Leaves calcError
/// clear.
QComplex MemoryValue(std::u16string_view memory, std::int32_t radixId);

}  // namespace quorix
