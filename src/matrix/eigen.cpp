#include "matrix/eigen.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/calc_context.h"
#include "matrix/elimination.h"
#include "matrix/inversion.h"
#include "matrix/matrix_algebra.h"
#include "matrix/matrix_errors.h"
#include "matrix/orthonormalise.h"
#include "matrix/qr_rounds.h"

namespace quorix {

namespace {

/// Eigenvalues nearer than this are one.
constexpr double kSameEigenvalue = 1e-15;
/// Eigenvalues that can be told apart by marks.
constexpr std::size_t kMostEigenvalues = 128;

/// out = left · right for n by n arrays, sums over k in order.
std::vector<double> Product(const std::vector<double>& left, std::span<const double> right, std::size_t n) {
    std::vector<double> out(n * n, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t k = 0; k < n; ++k) {
            const double factor = left[i * n + k];
            for (std::size_t j = 0; j < n; ++j) {
                out[i * n + j] += factor * right[k * n + j];
            }
        }
    }
    return out;
}

/// T = (Q^T·A)·Q.
std::vector<double> Rotated(std::span<const double> a, const std::vector<double>& q, std::size_t n) {
    std::vector<double> transposed(n * n);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            transposed[j * n + i] = q[i * n + j];
        }
    }
    return Product(Product(transposed, a, n), q, n);
}

/// Eigenvector of the upper triangle of t for its diagonal element i, of unit length.
std::vector<double> TriangularEigenvector(const std::vector<double>& t, std::size_t n, std::size_t i,
                                          bool& repeated) {
    std::vector<double> y(n, 0.0);
    y[i] = 1.0;
    for (std::size_t k = i; k-- > 0;) {
        double sum = -t[k * n + i];
        for (std::size_t m = k + 1; m < i; ++m) {
            sum -= t[k * n + m] * y[m];
        }
        const double difference = t[k * n + k] - t[i * n + i];
        repeated = repeated || difference == 0.0;
        y[k] = sum / difference;
    }
    double squared = 0.0;
    for (const double element : y) {
        squared += element * element;
    }
    for (double& element : y) {
        element /= std::sqrt(squared);
    }
    return y;
}

/// Appends the vectors of the null space of the reduced matrix as columns of `vectors` from `column` on;
/// columns beyond the matrix are dropped. r: rows of the reduced matrix that are not zero.
int AppendNullSpace(const CalcValue& reduced, int r, int column, CalcValue& vectors) {
    const int cols = reduced.cols;
    CalcValue leading = MakeMatrix(r, r);
    for (int i = 0; i < r; ++i) {
        for (int j = 0; j < r; ++j) {
            leading.data[static_cast<std::size_t>(i * r + j)] =
                reduced.data[static_cast<std::size_t>(i * cols + j)];
        }
    }
    // Whether it could be inverted is not asked; a singular block gives dependent vectors, which are told
    // later.
    InvertInPlace(leading);
    for (int t = 0; t < cols - r && column < vectors.cols; ++t, ++column) {
        CalcValue right = MakeMatrix(r, 1);
        for (int i = 0; i < r; ++i) {
            right.data[static_cast<std::size_t>(i)] =
                -reduced.data[static_cast<std::size_t>(i * cols + r + t)];
        }
        CalcValue y;
        MatrixMultiply(leading, right, y);
        for (int i = 0; i < r; ++i) {
            vectors.data[static_cast<std::size_t>(i * vectors.cols + column)] =
                y.data[static_cast<std::size_t>(i)];
        }
        vectors.data[static_cast<std::size_t>((r + t) * vectors.cols + column)] = 1.0;
    }
    return column;
}

}  // namespace

std::vector<double> EigenvaluesOf(std::span<const double> a, int n) {
    const auto size = static_cast<std::size_t>(n);
    const std::vector<double> t = Rotated(a, QrRounds(a, size, kQrRounds), size);
    std::vector<double> values(size);
    for (std::size_t i = 0; i < size; ++i) {
        values[i] = t[i * size + i];
    }
    return values;
}

EigenResult EigenDecompose(std::span<const double> a, int n) {
    const auto size = static_cast<std::size_t>(n);
    const std::vector<double> q = QrRounds(a, size, kQrRounds);
    const std::vector<double> t = Rotated(a, q, size);
    EigenResult result;
    std::vector<double> y(size * size, 0.0);
    for (std::size_t i = 0; i < size; ++i) {
        result.values.push_back(t[i * size + i]);
        const std::vector<double> column = TriangularEigenvector(t, size, i, result.repeated);
        for (std::size_t k = 0; k < size; ++k) {
            y[k * size + i] = column[k];
        }
    }
    result.vectors = Product(q, y, size);
    return result;
}

bool EigenvectorsOf(const CalcValue& matrix, CalcValue& vectors) {
    const int n = matrix.rows;
    if (n == 1) {
        vectors = matrix;
        return Orthonormalise(vectors);
    }
    const std::vector<double> values = EigenvaluesOf(matrix.data, n);
    CalcValue found = MakeMatrix(n, n);
    std::array<bool, kMostEigenvalues> marked{};
    const std::size_t count = std::min(values.size(), kMostEigenvalues);
    int column = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (marked[i]) {
            continue;
        }
        for (std::size_t j = i + 1; j < count; ++j) {
            marked[j] = marked[j] || std::fabs(values[j] - values[i]) < kSameEigenvalue;
        }
        CalcValue reduced = matrix;
        for (int k = 0; k < n; ++k) {
            reduced.data[static_cast<std::size_t>(k * n + k)] -= values[i];
        }
        Reduce(reduced);
        const int r = FirstZeroRow(reduced);
        if (r == 0) {
            calcContext().calcError = ERROR_EIGENVECTOR;
            return false;
        }
        column = AppendNullSpace(reduced, r, column, found);
    }
    if (!Orthonormalise(found)) {
        return false;
    }
    vectors = std::move(found);
    return true;
}

}  // namespace quorix
