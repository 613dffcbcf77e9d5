#include "matrix/determinant.h"

#include <cmath>
#include <utility>
#include <vector>

#include "engine/calc_context.h"
#include "matrix/matrix_errors.h"

namespace quorix {

namespace {

constexpr double kPivotProductCutOff = 1e-300;
constexpr double kResultCutOff = 1e-10;

}  // namespace

double DeterminantOf(const CalcValue& matrix) {
    if (matrix.kind != KIND_MATRIX || matrix.rows != matrix.cols || matrix.rows == 0) {
        calcContext().calcError = ERROR_DETERMINANT;
        return 0.0;
    }
    const auto n = static_cast<std::size_t>(matrix.rows);
    std::vector<double> copy = matrix.data;
    std::vector<double*> row(n);
    for (std::size_t r = 0; r < n; ++r) {
        row[r] = copy.data() + r * n;
    }
    double product = 1.0;
    for (std::size_t c = 0; c + 1 < n; ++c) {
        std::size_t best = c;
        for (std::size_t r = c + 1; r < n; ++r) {
            if (std::fabs(row[r][c]) > std::fabs(row[best][c])) {
                best = r;
            }
        }
        std::swap(row[c], row[best]);
        product = best == c ? row[c][c] * product : -(row[c][c] * product);
        if (std::fabs(product) < kPivotProductCutOff) {
            return 0.0;
        }
        const double reciprocal = 1.0 / row[c][c];
        double* const pivot = row[c];
        for (std::size_t j = c + 1; j < n; ++j) {
            pivot[j] *= reciprocal;
        }
        for (std::size_t r = c + 1; r < n; ++r) {
            double* const target = row[r];
            const double factor = target[c];
            for (std::size_t j = c + 1; j < n; ++j) {
                target[j] -= factor * pivot[j];
            }
        }
    }
    product *= row[n - 1][n - 1];
    return std::fabs(product) < kResultCutOff ? 0.0 : product;
}

}  // namespace quorix
