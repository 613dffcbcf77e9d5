#pragma once

// The integer family of the complex operator table: real operands only (-54), then by the rules of
// integer_operations.h.

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

void ComplexModulo(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexShiftLeft(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexShiftRight(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexRotateLeft(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexRotateRight(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexAnd(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexOr(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexXor(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexNand(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexNor(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexNot(OperandStack<QComplex>& stack, std::int32_t base);
void ComplexNegateWord(OperandStack<QComplex>& stack, std::int32_t base);

}  // namespace quorix
