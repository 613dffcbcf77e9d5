#pragma once

// The evaluator of matrix expressions. It knows the operators that a higher layer hands in, numbers in double
// precision, and stored variables; no functions, no named constants.

#include <span>
#include <string>
#include <string_view>

#include "engine/calc_value.h"
#include "engine/operator_table.h"

namespace quorix {

/// Hands in the matrix operators; the rows must live as long as the program. Without them every operator is
/// an unknown word.
void SetMatrixOperators(std::span<const OperatorRow<CalcValue>> rows);

/// Evaluates a matrix expression in radix 10, "solve(a,b)" included. Result: whether it succeeded; `value`
/// then holds a matrix or a real number, and otherwise calcError a code and `value` is unchanged.
bool EvalToMatrix(std::u16string_view text, CalcValue& value);

}  // namespace quorix
