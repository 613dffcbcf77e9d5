#pragma once

#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// What "=" pressed again needs to repeat the last operation. It persists between calculations.
struct RepeatRegisters {
    /// The value that the last "=" left.
    QComplex left;
    /// The right operand, written by each binary operator on complex numbers.
    QComplex right;
    /// Name of the last operator applied from the complex or the double table; points into the table.
    std::u16string_view lastOperator;

    void Clear() { *this = {}; }
};

/// The one set of the process.
inline RepeatRegisters& repeatRegisters() {
    static constinit RepeatRegisters registers;
    return registers;
}

}  // namespace quorix
