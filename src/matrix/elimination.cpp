#include "matrix/elimination.h"

#include <algorithm>
#include <cmath>

namespace quorix {

namespace {

/// An element of an updated row below this is meant to be zero.
constexpr double kElementCutOff = 1e-8;

double* RowOf(CalcValue& matrix, int row) {
    return matrix.data.data() + static_cast<std::ptrdiff_t>(row) * matrix.cols;
}

bool RowIsZero(const CalcValue& matrix, int row) {
    const double* const first = matrix.data.data() + static_cast<std::ptrdiff_t>(row) * matrix.cols;
    return std::all_of(first, first + matrix.cols, [](double x) { return x == 0.0; });
}

bool ColumnIsZero(const CalcValue& matrix, int column) {
    for (int row = 0; row < matrix.rows; ++row) {
        if (matrix.data[static_cast<std::size_t>(row * matrix.cols + column)] != 0.0) {
            return false;
        }
    }
    return true;
}

}  // namespace

void EliminateStep(CalcValue& matrix, int row, int column) {
    double* const target = RowOf(matrix, row);
    for (int p = column; p < row; ++p) {
        const double* const pivot = RowOf(matrix, p);
        if (pivot[column] == 0.0) {
            continue;
        }
        const double factor = target[column] / pivot[column];
        for (int j = 0; j < matrix.cols; ++j) {
            target[j] -= pivot[j] * factor;
            if (std::fabs(target[j]) < kElementCutOff) {
                target[j] = 0.0;
            }
        }
        return;
    }
    std::swap_ranges(target, target + matrix.cols, RowOf(matrix, row - 1));
}

void Reduce(CalcValue& matrix) {
    for (int column = 0; column < matrix.cols; ++column) {
        for (int row = matrix.rows - 1; row > column; --row) {
            EliminateStep(matrix, row, column);
        }
    }
}

int RankOf(CalcValue matrix) {
    Reduce(matrix);
    int rows = 0;
    for (int row = 0; row < matrix.rows; ++row) {
        rows += RowIsZero(matrix, row) ? 0 : 1;
    }
    int columns = 0;
    for (int column = 0; column < matrix.cols; ++column) {
        columns += ColumnIsZero(matrix, column) ? 0 : 1;
    }
    return std::min(rows, columns);
}

int FirstZeroRow(const CalcValue& matrix) {
    int row = 0;
    while (row < matrix.rows && !RowIsZero(matrix, row)) {
        ++row;
    }
    return row;
}

}  // namespace quorix
