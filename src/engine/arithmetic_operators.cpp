#include "engine/arithmetic_operators.h"

#include "engine/complex_operands.h"

namespace quorix {
namespace {

// The operations of the numeric core take the right operand first.
using BinaryOperation = void (*)(const QComplex& right, const QComplex& left, QComplex& result);

template <BinaryOperation operation>
bool ApplyBinary(OperandStack<QComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 2)) return false;
    const QComplex& right = stack.Top();
    KeepRightOperand(right);
    QComplex& result = stack.Top(1);
    operation(right, result, result);
    --stack.depth;
    FoldNumericError();
    return true;
}

void ClearTinyRealPart(QComplex& number) {
    if (IsBelowTiny(number.re)) qclear(number.re);
}

// The negative of zero is zero without a sign.
void Negate(QReal& part) {
    if (!part.IsZero()) qneg(part);
}

}  // namespace

void ComplexAdd(OperandStack<QComplex>& stack, std::int32_t base) {
    if (ApplyBinary<qcadd>(stack, base)) ClearTinyRealPart(stack.Top());
}

void ComplexSubtract(OperandStack<QComplex>& stack, std::int32_t base) {
    if (stack.depth - base == 1) {
        Negate(stack.Top().re);
        Negate(stack.Top().im);
        FoldNumericError();
        return;
    }
    if (ApplyBinary<qcsub>(stack, base)) ClearTinyRealPart(stack.Top());
}

void ComplexMultiply(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<qcmul>(stack, base);
}

void ComplexDivide(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<qcdiv>(stack, base);
}

}  // namespace quorix
