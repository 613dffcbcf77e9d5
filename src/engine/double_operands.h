#pragma once

// What the rows of the double operator table share.

#include <cmath>

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

inline bool IsReal(const DComplex& number) {
    return number.im == 0.0;
}

inline bool IsNotANumber(const DComplex& number) {
    return std::isnan(number.re) || std::isnan(number.im);
}

/// Takes the right operand off the stack; the left one is then on top. Null, with -1 in calcError, when there
/// are fewer than two.
inline const DComplex* PopRight(OperandStack<DComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 2)) return nullptr;
    const DComplex* right = &stack.Top();
    --stack.depth;
    return right;
}

}  // namespace quorix
