#pragma once

// The four operations of the double operator table.

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

void DoubleAdd(OperandStack<DComplex>& stack, std::int32_t base);
/// Difference; with one operand above the base its negation.
void DoubleSubtract(OperandStack<DComplex>& stack, std::int32_t base);
void DoubleMultiply(OperandStack<DComplex>& stack, std::int32_t base);
/// Quotient; a divisor of zero leaves -5 in calcError.
void DoubleDivide(OperandStack<DComplex>& stack, std::int32_t base);

/// The same where no imaginary part is involved.
inline double RealAdd(double left, double right) {
    return left + right;
}
inline double RealSubtract(double left, double right) {
    return left - right;
}
inline double RealNegate(double operand) {
    return 0.0 - operand;
}
inline double RealMultiply(double left, double right) {
    return left * right;
}
inline double RealDivide(double left, double right) {
    return right == 0.0 ? kNoRealResult : left / right;
}

}  // namespace quorix
