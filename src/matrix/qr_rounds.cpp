#include "matrix/qr_rounds.h"

#include <algorithm>
#include <cmath>

// The kernels run in lanes over columns: every column keeps its own order of operations, so no bit depends on
// the width.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
#define QUORIX_WIDE_LANES __attribute__((target_clones("avx2", "default")))
#else
#define QUORIX_WIDE_LANES
#endif

namespace quorix {

namespace {

/// A column that keeps less than this of its length was dependent on the earlier ones.
constexpr double kNegligible = 1e-14;

/// out(i, j) = sum over k of a(i, k)·q(k, j), k in order.
QUORIX_WIDE_LANES void Multiply(const double* a, const double* q, double* out, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        double* const row = out + i * n;
        std::fill(row, row + n, 0.0);
        for (std::size_t k = 0; k < n; ++k) {
            const double factor = a[i * n + k];
            const double* const other = q + k * n;
            for (std::size_t j = 0; j < n; ++j) {
                row[j] += factor * other[j];
            }
        }
    }
}

/// Subtracts from the columns `first` to n - 1 of b their components along column k of q; `dots` is room for
/// n.
QUORIX_WIDE_LANES void ProjectLaterColumns(double* b, const double* q, std::size_t k, std::size_t first,
                                           double* dots, std::size_t n) {
    std::fill(dots + first, dots + n, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        const double factor = q[i * n + k];
        const double* const row = b + i * n;
        for (std::size_t j = first; j < n; ++j) {
            dots[j] += factor * row[j];
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        const double factor = q[i * n + k];
        double* const row = b + i * n;
        for (std::size_t j = first; j < n; ++j) {
            row[j] -= dots[j] * factor;
        }
    }
}

/// The second pass: subtracts from `column` its components along the columns 0 to count - 1 of q, all taken
/// of the column as it came in.
QUORIX_WIDE_LANES void ProjectColumn(double* column, const double* q, std::size_t count, double* dots,
                                     std::size_t n) {
    std::fill(dots, dots + count, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        const double factor = column[i];
        const double* const row = q + i * n;
        for (std::size_t k = 0; k < count; ++k) {
            dots[k] += row[k] * factor;
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        const double* const row = q + i * n;
        double sum = 0.0;
        for (std::size_t k = 0; k < count; ++k) {
            sum += row[k] * dots[k];
        }
        column[i] -= sum;
    }
}

double LengthOf(const double* column, std::size_t n) {
    double squared = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        squared += column[i] * column[i];
    }
    return std::sqrt(squared);
}

/// The first unit vector that keeps a part outside the columns 0 to count - 1 of q, orthogonalised twice.
double ReplaceByUnitVector(std::vector<double>& column, const double* q, std::size_t count,
                           std::vector<double>& dots) {
    const std::size_t n = column.size();
    for (std::size_t unit = 0; unit < n; ++unit) {
        std::fill(column.begin(), column.end(), 0.0);
        column[unit] = 1.0;
        ProjectColumn(column.data(), q, count, dots.data(), n);
        ProjectColumn(column.data(), q, count, dots.data(), n);
        const double length = LengthOf(column.data(), n);
        if (length > kNegligible) {
            return length;
        }
    }
    return 0.0;
}

/// Finishes column j of q from the once projected column of b; `before` is the length it came with.
void FinishColumn(const double* b, double* q, std::size_t j, double before, std::vector<double>& column,
                  std::vector<double>& dots) {
    const std::size_t n = column.size();
    for (std::size_t i = 0; i < n; ++i) {
        column[i] = b[i * n + j];
    }
    ProjectColumn(column.data(), q, j, dots.data(), n);
    double length = LengthOf(column.data(), n);
    if (!(length > kNegligible * before)) {
        length = ReplaceByUnitVector(column, q, j, dots);
    }
    const double reciprocal = 1.0 / length;
    for (std::size_t i = 0; i < n; ++i) {
        q[i * n + j] = column[i] * reciprocal;
    }
}

std::vector<double> ColumnLengths(const double* b, std::size_t n) {
    std::vector<double> squared(n, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            squared[j] += b[i * n + j] * b[i * n + j];
        }
    }
    for (double& length : squared) {
        length = std::sqrt(length);
    }
    return squared;
}

/// b is used up; q takes the factor.
void FactorInPlace(double* b, double* q, std::size_t n, std::vector<double>& column,
                   std::vector<double>& dots) {
    const std::vector<double> before = ColumnLengths(b, n);
    for (std::size_t j = 0; j < n; ++j) {
        FinishColumn(b, q, j, before[j], column, dots);
        ProjectLaterColumns(b, q, j, j + 1, dots.data(), n);
    }
}

}  // namespace

std::vector<double> QrFactor(std::span<const double> b, std::size_t n) {
    std::vector<double> rest(b.begin(), b.end());
    std::vector<double> q(n * n, 0.0);
    std::vector<double> column(n);
    std::vector<double> dots(n);
    const std::vector<double> before = ColumnLengths(b.data(), n);
    for (std::size_t j = 0; j < n; ++j) {
        for (std::size_t k = 0; k < j; ++k) {
            double dot = 0.0;
            for (std::size_t i = 0; i < n; ++i) {
                dot += q[i * n + k] * rest[i * n + j];
            }
            for (std::size_t i = 0; i < n; ++i) {
                rest[i * n + j] -= dot * q[i * n + k];
            }
        }
        FinishColumn(rest.data(), q.data(), j, before[j], column, dots);
    }
    return q;
}

std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds) {
    std::vector<double> q(n * n, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        q[i * n + i] = 1.0;
    }
    std::vector<double> product(n * n);
    std::vector<double> next(n * n, 0.0);
    std::vector<double> beforeLast;
    std::vector<double> column(n);
    std::vector<double> dots(n);
    for (int round = 1; round <= rounds; ++round) {
        Multiply(a.data(), q.data(), product.data(), n);
        FactorInPlace(product.data(), next.data(), n, column, dots);
        if (next == q) {
            return next;
        }
        // Negative eigenvalues turn their columns' signs in every round.
        if (next == beforeLast) {
            return (rounds - round) % 2 == 0 ? next : q;
        }
        beforeLast.swap(q);
        q.swap(next);
        next.resize(n * n);
    }
    return q;
}

}  // namespace quorix
