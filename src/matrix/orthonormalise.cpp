#include "matrix/orthonormalise.h"

#include <cmath>
#include <vector>

#include "engine/calc_context.h"
#include "matrix/matrix_errors.h"

namespace quorix {

namespace {

constexpr double kSquaredLengthCutOff = 1e-12;

}  // namespace

bool Orthonormalise(CalcValue& matrix) {
    const std::size_t rows = matrix.rows;
    const std::size_t cols = matrix.cols;
    // Columns of the result one behind the other.
    std::vector<double> done(rows * cols);
    std::vector<double> correction(rows);
    for (std::size_t k = 0; k < cols; ++k) {
        double* const column = done.data() + k * rows;
        correction.assign(rows, 0.0);
        for (std::size_t j = 0; j < k; ++j) {
            const double* const earlier = done.data() + j * rows;
            double dot = 0.0;
            for (std::size_t i = 0; i < rows; ++i) {
                dot += matrix.data[i * cols + k] * earlier[i];
            }
            for (std::size_t i = 0; i < rows; ++i) {
                correction[i] -= dot * earlier[i];
            }
        }
        double squared = 0.0;
        for (std::size_t i = 0; i < rows; ++i) {
            column[i] = matrix.data[i * cols + k] + correction[i];
            squared += column[i] * column[i];
        }
        if (!(std::fabs(squared) >= kSquaredLengthCutOff)) {
            calcContext().calcError = ERROR_LINEAR_DEPENDENCE;
            return false;
        }
        const double length = std::sqrt(squared);
        for (std::size_t i = 0; i < rows; ++i) {
            column[i] /= length;
        }
    }
    for (std::size_t i = 0; i < rows; ++i) {
        for (std::size_t k = 0; k < cols; ++k) {
            matrix.data[i * cols + k] = done[k * rows + i];
        }
    }
    return true;
}

}  // namespace quorix
