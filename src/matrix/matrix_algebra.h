#pragma once

// Sums, products and transposes of matrices of doubles, row by row.

#include <cstdint>

#include "engine/calc_value.h"

namespace quorix {

/// A matrix of zeros.
CalcValue MakeMatrix(int rows, int cols);
CalcValue MakeNumber(double number);

inline bool IsMatrix(const CalcValue& value) {
    return value.kind == KIND_MATRIX;
}
inline bool IsSquareMatrix(const CalcValue& value) {
    return IsMatrix(value) && value.rows == value.cols;
}

/// out = left · right; elements of the product below 1e-12 become exactly 0. Stores -38 and leaves `out`
/// clear when one is no matrix or the inner sizes differ. out may be one of the operands.
void MatrixMultiply(const CalcValue& left, const CalcValue& right, CalcValue& out);

/// Every element times `factor`, without cut-off.
void ScaleMatrix(CalcValue& matrix, double factor);

CalcValue Transposed(const CalcValue& matrix);

/// Whether element (i, j) equals element (j, i) exactly; false for what is not square.
bool IsSymmetric(const CalcValue& matrix);

}  // namespace quorix
