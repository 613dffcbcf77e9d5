#include "matrix/qr_rounds.h"

#include <algorithm>
#include <cmath>
#include <cstring>

// The kernels run in lanes over columns or rows: every element keeps its own order of operations, so no bit
// depends on the width of the lanes, and the processor's widest may be used.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
#define QUORIX_WIDE_LANES __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define QUORIX_WIDE_LANES
#endif
#define QUORIX_KERNEL static inline __attribute__((always_inline))

namespace quorix {

namespace {

/// A column that keeps less than this of its length was dependent on the earlier ones.
constexpr double kNegligible = 1e-14;

/// Rows are padded with zero columns to a multiple of this.
constexpr std::size_t kLanes = 8;

constexpr std::size_t LanesDown(std::size_t n) {
    return n / kLanes * kLanes;
}
constexpr std::size_t LanesUp(std::size_t n) {
    return LanesDown(n + kLanes - 1);
}

/// One vector of lanes; the compiler splits it where the processor has narrower ones.
using Lanes = double __attribute__((vector_size(kLanes * sizeof(double))));

/// sums[l] = sum over i of factors[i] · rows[i · stride + l], i in order, for kVectors · kLanes values of l.
template <std::size_t kVectors>
QUORIX_KERNEL void SumRows(const double* factors, const double* rows, std::size_t stride, std::size_t count,
                           double* sums) {
    Lanes lanes[kVectors] = {};
#pragma GCC unroll 6
    for (std::size_t i = 0; i < count; ++i) {
        const double factor = factors[i];
        for (std::size_t v = 0; v < kVectors; ++v) {
            Lanes row;
            std::memcpy(&row, rows + i * stride + v * kLanes, sizeof row);
            lanes[v] += row * factor;
        }
    }
    std::memcpy(sums, lanes, sizeof lanes);
}

/// SumRows over the lanes `first` to `end`, both multiples of kLanes.
QUORIX_KERNEL void SumRowsBetween(const double* factors, const double* rows, std::size_t stride,
                                  std::size_t count, std::size_t first, std::size_t end, double* sums) {
    std::size_t at = first;
    // Several sums at a time hide that each addition waits for the one before.
    for (; at + 4 * kLanes <= end; at += 4 * kLanes) {
        SumRows<4>(factors, rows + at, stride, count, sums + at);
    }
    for (; at + 2 * kLanes <= end; at += 2 * kLanes) {
        SumRows<2>(factors, rows + at, stride, count, sums + at);
    }
    for (; at < end; at += kLanes) {
        SumRows<1>(factors, rows + at, stride, count, sums + at);
    }
}

/// out = a · q; a is n by n without padding.
QUORIX_WIDE_LANES void Multiply(const double* a, const double* q, double* out, std::size_t n,
                                std::size_t stride) {
    for (std::size_t i = 0; i < n; ++i) {
        SumRowsBetween(a + i * n, q, stride, n, 0, stride, out + i * stride);
    }
}

/// Subtracts from the columns behind k of b their components along `unit`. Finished columns of b may change
/// too.
QUORIX_WIDE_LANES void ProjectLaterColumns(double* b, const double* unit, std::size_t k, double* dots,
                                           std::size_t n, std::size_t stride) {
    const std::size_t first = LanesDown(k + 1);
    SumRowsBetween(unit, b, stride, n, first, stride, dots);
    for (std::size_t at = first; at < stride; at += kLanes) {
        Lanes dot;
        std::memcpy(&dot, dots + at, sizeof dot);
#pragma GCC unroll 6
        for (std::size_t i = 0; i < n; ++i) {
            Lanes row;
            std::memcpy(&row, b + i * stride + at, sizeof row);
            row -= dot * unit[i];
            std::memcpy(b + i * stride + at, &row, sizeof row);
        }
    }
}

/// Subtracts from `column` its components along the first `count` columns of q, all taken of the column as it
/// came in. columns: the same columns one behind the other; dots, sums: room for `stride` numbers.
QUORIX_WIDE_LANES void ProjectColumn(double* column, const double* q, const double* columns,
                                     std::size_t count, double* dots, double* sums, std::size_t n,
                                     std::size_t stride) {
    SumRowsBetween(column, q, stride, n, 0, LanesUp(count), dots);
    SumRowsBetween(dots, columns, stride, count, 0, stride, sums);
    for (std::size_t i = 0; i < stride; ++i) {
        column[i] -= sums[i];
    }
}

/// column has padding of zeros.
QUORIX_WIDE_LANES double LengthOf(const double* column, std::size_t stride) {
    static_assert(kLengthSums == kLanes);
    double sums[kLanes] = {};
    for (std::size_t i = 0; i < stride; i += kLanes) {
        for (std::size_t l = 0; l < kLanes; ++l) {
            sums[l] += column[i + l] * column[i + l];
        }
    }
    return std::sqrt(((sums[0] + sums[1]) + (sums[2] + sums[3])) +
                     ((sums[4] + sums[5]) + (sums[6] + sums[7])));
}

QUORIX_WIDE_LANES void ColumnLengths(const double* b, double* lengths, std::size_t n, std::size_t stride) {
    std::fill(lengths, lengths + stride, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < stride; ++j) {
            lengths[j] += b[i * stride + j] * b[i * stride + j];
        }
    }
    for (std::size_t j = 0; j < stride; ++j) {
        lengths[j] = std::sqrt(lengths[j]);
    }
}

/// Factors B = Q·R for one size, with its room kept between the rounds.
class Factorisation {
  public:
    explicit Factorisation(std::size_t n)
        : n_(n),
          stride_(LanesUp(n)),
          columns_(n * stride_),
          column_(stride_),
          dots_(stride_),
          sums_(stride_),
          lengths_(stride_) {}

    [[nodiscard]] std::size_t Stride() const { return stride_; }

    /// b is used up; q takes the factor.
    void Run(double* b, double* q) {
        ColumnLengths(b, lengths_.data(), n_, stride_);
        for (std::size_t j = 0; j < n_; ++j) {
            FinishColumn(b, q, j);
            ProjectLaterColumns(b, columns_.data() + j * stride_, j, dots_.data(), n_, stride_);
        }
    }

  private:
    void Project(const double* q, std::size_t count) {
        ProjectColumn(column_.data(), q, columns_.data(), count, dots_.data(), sums_.data(), n_, stride_);
    }

    /// The first unit vector that keeps a part outside the first `count` columns of q.
    double ReplaceByUnitVector(const double* q, std::size_t count) {
        double length = 0.0;
        for (std::size_t unit = 0; unit < n_ && !(length > kNegligible); ++unit) {
            std::fill(column_.begin(), column_.end(), 0.0);
            column_[unit] = 1.0;
            Project(q, count);
            Project(q, count);
            length = LengthOf(column_.data(), stride_);
        }
        return length;
    }

    void FinishColumn(const double* b, double* q, std::size_t j) {
        for (std::size_t i = 0; i < n_; ++i) {
            column_[i] = b[i * stride_ + j];
        }
        Project(q, j);
        double length = LengthOf(column_.data(), stride_);
        if (!(length > kNegligible * lengths_[j])) {
            length = ReplaceByUnitVector(q, j);
        }
        const double reciprocal = 1.0 / length;
        double* const finished = columns_.data() + j * stride_;
        for (std::size_t i = 0; i < n_; ++i) {
            finished[i] = column_[i] * reciprocal;
            q[i * stride_ + j] = finished[i];
        }
    }

    std::size_t n_;
    std::size_t stride_;
    std::vector<double> columns_;
    std::vector<double> column_;
    std::vector<double> dots_;
    std::vector<double> sums_;
    std::vector<double> lengths_;
};

std::vector<double> WithoutPadding(const std::vector<double>& q, std::size_t n, std::size_t stride) {
    std::vector<double> out(n * n);
    for (std::size_t i = 0; i < n; ++i) {
        std::copy_n(q.begin() + static_cast<std::ptrdiff_t>(i * stride), n,
                    out.begin() + static_cast<std::ptrdiff_t>(i * n));
    }
    return out;
}

}  // namespace

std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds) {
    Factorisation factorisation(n);
    const std::size_t stride = factorisation.Stride();
    std::vector<double> q(n * stride, 0.0);
    for (std::size_t i = 0; i < n; ++i) {
        q[i * stride + i] = 1.0;
    }
    std::vector<double> product(n * stride);
    std::vector<double> next(n * stride, 0.0);
    std::vector<double> beforeLast(n * stride, 0.0);
    for (int round = 1; round <= rounds; ++round) {
        Multiply(a.data(), q.data(), product.data(), n, stride);
        factorisation.Run(product.data(), next.data());
        if (next == q) {
            return WithoutPadding(next, n, stride);
        }
        // Negative eigenvalues turn their columns' signs in every round.
        if (next == beforeLast) {
            return WithoutPadding((rounds - round) % 2 == 0 ? next : q, n, stride);
        }
        beforeLast.swap(q);
        q.swap(next);
    }
    return WithoutPadding(q, n, stride);
}

}  // namespace quorix
