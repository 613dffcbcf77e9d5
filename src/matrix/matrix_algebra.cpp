#include "matrix/matrix_algebra.h"

#include <cmath>

#include "engine/calc_context.h"
#include "matrix/matrix_errors.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr double kProductCutOff = 1e-12;

}  // namespace

CalcValue MakeMatrix(int rows, int cols) {
    CalcValue matrix;
    matrix.kind = KIND_MATRIX;
    matrix.rows = static_cast<std::uint16_t>(rows);
    matrix.cols = static_cast<std::uint16_t>(cols);
    matrix.data.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols), 0.0);
    return matrix;
}

CalcValue MakeNumber(double number) {
    CalcValue value;
    etoq(number, value.number.re);
    return value;
}

void MatrixMultiply(const CalcValue& left, const CalcValue& right, CalcValue& out) {
    if (!IsMatrix(left) || !IsMatrix(right) || left.cols != right.rows) {
        calcContext().calcError = ERROR_MATRIX_MULTIPLICATION;
        out.Clear();
        return;
    }
    CalcValue product = MakeMatrix(left.rows, right.cols);
    const std::size_t columns = right.cols;
    const std::size_t inner = left.cols;
    for (std::size_t i = 0; i < left.rows; ++i) {
        double* const row = product.data.data() + i * columns;
        // Columns side by side: each element still sums over k in order.
        for (std::size_t k = 0; k < inner; ++k) {
            const double factor = left.data[i * inner + k];
            const double* const other = right.data.data() + k * columns;
            for (std::size_t j = 0; j < columns; ++j) {
                row[j] += factor * other[j];
            }
        }
        for (std::size_t j = 0; j < columns; ++j) {
            if (std::fabs(row[j]) < kProductCutOff) {
                row[j] = 0.0;
            }
        }
    }
    out = std::move(product);
}

void ScaleMatrix(CalcValue& matrix, double factor) {
    for (double& element : matrix.data) {
        element *= factor;
    }
}

CalcValue Transposed(const CalcValue& matrix) {
    CalcValue out = MakeMatrix(matrix.cols, matrix.rows);
    for (std::size_t i = 0; i < matrix.rows; ++i) {
        for (std::size_t j = 0; j < matrix.cols; ++j) {
            out.data[j * matrix.rows + i] = matrix.data[i * matrix.cols + j];
        }
    }
    return out;
}

bool IsSymmetric(const CalcValue& matrix) {
    return IsSquareMatrix(matrix) && Transposed(matrix).data == matrix.data;
}

}  // namespace quorix
