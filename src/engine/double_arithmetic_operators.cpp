#include "engine/double_arithmetic_operators.h"

#include "engine/double_operands.h"

namespace quorix {
void DoubleAdd(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        left = {left.re + right->re, left.im + right->im};
    }
}

void DoubleSubtract(OperandStack<DComplex>& stack, std::int32_t base) {
    if (stack.depth - base == 1) {
        DComplex& number = stack.Top();
        number = {0.0 - number.re, 0.0 - number.im};
        return;
    }
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        left = {left.re - right->re, left.im - right->im};
    }
}

// Real operands take the plain operation, which keeps rounding noise and 0 · infinity out of the imaginary
// part.
void DoubleMultiply(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        if (IsReal(left) && IsReal(*right)) {
            left = {left.re * right->re, 0.0};
        } else {
            left = {left.re * right->re - left.im * right->im, left.re * right->im + left.im * right->re};
        }
    }
}

void DoubleDivide(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        if (right->re == 0.0 && right->im == 0.0) {
            calcContext().calcError = ERROR_DIVISION;
        } else if (IsReal(left) && IsReal(*right)) {
            left = {left.re / right->re, 0.0};
        } else {
            const double square = right->re * right->re + right->im * right->im;
            left = {(left.re * right->re + left.im * right->im) / square,
                    (left.im * right->re - left.re * right->im) / square};
        }
    }
}

}  // namespace quorix
