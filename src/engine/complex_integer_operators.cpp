#include "engine/complex_integer_operators.h"

#include "engine/complex_operands.h"
#include "engine/integer_operations.h"

namespace quorix {

namespace {

bool IsReal(const QComplex& number) {
    if (IsBelowTiny(number.im)) {
        return true;
    }
    calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
    return false;
}

/// Puts the outcome on top, or its error into calcError.
void Finish(const IntegerOutcome& outcome, QComplex& top) {
    if (outcome.error != 0) {
        calcContext().calcError = outcome.error;
        return;
    }
    top = {};
    etoq(outcome.value, top.re);
    FoldNumericError();
}

template <BinaryIntegerOperation operation>
void ApplyBinary(OperandStack<QComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 2) || !IsReal(stack.Top()) || !IsReal(stack.Top(1))) {
        return;
    }
    KeepRightOperand(stack.Top());
    const double right = qtoe(stack.Top().re);
    --stack.depth;
    Finish(operation(qtoe(stack.Top().re), right, calcContext().wordSize), stack.Top());
}

template <UnaryIntegerOperation operation>
void ApplyUnary(OperandStack<QComplex>& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1) && IsReal(stack.Top())) {
        Finish(operation(qtoe(stack.Top().re), calcContext().wordSize), stack.Top());
    }
}

}  // namespace

void ComplexModulo(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerMod>(stack, base);
}
void ComplexShiftLeft(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerShiftLeft>(stack, base);
}
void ComplexShiftRight(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerShiftRight>(stack, base);
}
void ComplexRotateLeft(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerRotateLeft>(stack, base);
}
void ComplexRotateRight(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerRotateRight>(stack, base);
}
void ComplexAnd(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerAnd>(stack, base);
}
void ComplexOr(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerOr>(stack, base);
}
void ComplexXor(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerXor>(stack, base);
}
void ComplexNand(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerNand>(stack, base);
}
void ComplexNor(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyBinary<IntegerNor>(stack, base);
}
void ComplexNot(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyUnary<IntegerNot>(stack, base);
}
void ComplexNegateWord(OperandStack<QComplex>& stack, std::int32_t base) {
    ApplyUnary<IntegerNegate>(stack, base);
}

}  // namespace quorix
