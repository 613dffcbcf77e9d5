#pragma once

// The four operations of the complex operator table.

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// Sum. A real part whose magnitude is below 1e-64 becomes zero.
void ComplexAdd(OperandStack<QComplex>& stack, std::int32_t base);
/// Difference, cleaned like the sum; with one operand above the base its negation.
void ComplexSubtract(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexMultiply(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexDivide(OperandStack<QComplex>& stack, std::int32_t base);

}  // namespace quorix
