#include "matrix/qr_rounds.h"

#include <algorithm>
#include <cmath>
#include <cstring>

// The rounds are written once, in vectors of a width that the template is given, and compiled for each
// instruction set. Every element keeps its own order of operations and every sum over rows its kPartialSums
// parts, so no bit depends on the width.
#if defined(__GNUC__) && defined(__x86_64__)
#define QUORIX_HAS_WIDE_VECTORS
#define QUORIX_TARGET(name) __attribute__((target(name)))
#endif
// What handles vectors is inlined into a function for its instruction set, so no vector is passed by a
// calling convention.
#define QUORIX_KERNEL [[gnu::always_inline]] inline
#pragma GCC diagnostic ignored "-Wpsabi"

namespace quorix {

namespace {

/// A column that keeps less than this of its length was dependent on the earlier ones.
constexpr double kNegligible = 1e-14;

/// Columns are padded with zeros to whole blocks of this many rows, one for each partial sum.
constexpr std::size_t kBlock = kPartialSums;
static_assert(kBlock == 8);

struct alignas(kBlock * sizeof(double)) Block {
    double rows[kBlock] = {};
};

/// Columns one behind the other, each of whole blocks.
using Columns = std::vector<Block>;

constexpr std::size_t BlocksFor(std::size_t n) {
    return (n + kBlock - 1) / kBlock;
}

template <std::size_t kWidth>
using VectorOf [[gnu::vector_size(kWidth * sizeof(double))]] = double;

/// The sum of the lanes in halves.
QUORIX_KERNEL double AddLanes(const VectorOf<2>& lanes) {
    return lanes[0] + lanes[1];
}
QUORIX_KERNEL double AddLanes(const VectorOf<4>& lanes) {
    return AddLanes(__builtin_shufflevector(lanes, lanes, 0, 1) +
                    __builtin_shufflevector(lanes, lanes, 2, 3));
}
QUORIX_KERNEL double AddLanes(const VectorOf<8>& lanes) {
    return AddLanes(__builtin_shufflevector(lanes, lanes, 0, 1, 2, 3) +
                    __builtin_shufflevector(lanes, lanes, 4, 5, 6, 7));
}

/// The rounds for columns of kBlocks blocks, or of any number if that is 0, in vectors of kWidth doubles.
template <std::size_t kWidth, std::size_t kBlocks>
class Rounds {
  public:
    QUORIX_KERNEL Rounds(std::span<const double> a, std::size_t n) : n_(n), anyBlocks_(BlocksFor(n)) {
        for (Columns* columns : {&a_, &b_, &q_, &next_, &beforeLast_}) {
            columns->resize(n * Blocks());
        }
        dots_.resize(n);
        lengths_.resize(n);
        for (std::size_t i = 0; i < n; ++i) {
            Column(q_, i)[i] = 1.0;
            for (std::size_t j = 0; j < n; ++j) {
                Column(a_, j)[i] = a[i * n + j];
            }
        }
    }

    QUORIX_KERNEL std::vector<double> Run(int rounds) {
        for (int round = 1; round <= rounds; ++round) {
            Multiply();
            Factor();
            const bool repeats = Equal(next_, q_);
            // Negative eigenvalues turn their columns' signs in every round.
            const bool alternates = Equal(next_, beforeLast_);
            beforeLast_.swap(q_);
            q_.swap(next_);
            if (repeats) {
                break;
            }
            if (alternates) {
                return RowByRow((rounds - round) % 2 == 0 ? q_ : beforeLast_);
            }
        }
        return RowByRow(q_);
    }

  private:
    using Vector = VectorOf<kWidth>;
    static constexpr std::size_t kPerBlock = kBlock / kWidth;

    [[nodiscard]] QUORIX_KERNEL std::size_t Blocks() const { return kBlocks != 0 ? kBlocks : anyBlocks_; }
    [[nodiscard]] QUORIX_KERNEL std::size_t Vectors() const { return Blocks() * kPerBlock; }

    [[nodiscard]] QUORIX_KERNEL std::size_t Stride() const { return Blocks() * kBlock; }

    QUORIX_KERNEL double* Column(Columns& columns, std::size_t j) const { return columns[j * Blocks()].rows; }
    QUORIX_KERNEL static Vector Load(const double* column, std::size_t vector) {
        Vector loaded;
        std::memcpy(&loaded, column + vector * kWidth, sizeof loaded);
        return loaded;
    }
    QUORIX_KERNEL static void Store(double* column, std::size_t vector, const Vector& value) {
        std::memcpy(column + vector * kWidth, &value, sizeof value);
    }

    /// The partial sums in halves: four and four, two and two, one and one.
    QUORIX_KERNEL static double AddParts(Vector* parts) {
        for (std::size_t half = kPerBlock / 2; half > 0; half /= 2) {
            for (std::size_t v = 0; v < half; ++v) {
                parts[v] += parts[v + half];
            }
        }
        return AddLanes(parts[0]);
    }

    /// A column in registers, or a view of it where the number of blocks is not known.
    struct Held {
        QUORIX_KERNEL explicit Held(const double* column) {
            if constexpr (kBlocks != 0) {
                for (std::size_t v = 0; v < kBlocks * kPerBlock; ++v) {
                    vectors[v] = Load(column, v);
                }
            } else {
                start = column;
            }
        }
        QUORIX_KERNEL Vector operator[](std::size_t v) const {
            if constexpr (kBlocks != 0) {
                return vectors[v];
            } else {
                return Load(start, v);
            }
        }
        Vector vectors[kBlocks != 0 ? kBlocks * kPerBlock : 1];
        const double* start;
    };

    /// Products of `left` and each of the others; several share its loads.
    template <std::size_t kCount>
    QUORIX_KERNEL void Dots(const Held& left, const Held (&right)[kCount], double* dots) const {
        Vector parts[kCount][kPerBlock];
        for (std::size_t v = 0; v < kPerBlock; ++v) {
            for (std::size_t c = 0; c < kCount; ++c) {
                parts[c][v] = left[v] * right[c][v];
            }
        }
        for (std::size_t v = kPerBlock; v < Vectors(); ++v) {
            for (std::size_t c = 0; c < kCount; ++c) {
                parts[c][v % kPerBlock] += left[v] * right[c][v];
            }
        }
        for (std::size_t c = 0; c < kCount; ++c) {
            dots[c] = AddParts(parts[c]);
        }
    }
    QUORIX_KERNEL double LengthOf(const double* column) const {
        const Held held(column);
        double squared = 0.0;
        Dots(held, {held}, &squared);
        return std::sqrt(squared);
    }

    /// Subtracts from kCount columns one behind the other their components along `unit`.
    template <std::size_t kCount>
    QUORIX_KERNEL void Project(double* columns, const Held& unit) const {
        double dots[kCount];
        if constexpr (kCount == 1) {
            Dots(unit, {Held(columns)}, dots);
        } else {
            Dots(unit, {Held(columns), Held(columns + Stride())}, dots);
        }
        for (std::size_t v = 0; v < Vectors(); ++v) {
            for (std::size_t c = 0; c < kCount; ++c) {
                double* const column = columns + c * Stride();
                Store(column, v, Load(column, v) - unit[v] * dots[c]);
            }
        }
    }

    /// Vectors that a tile of a sum of columns has; a divisor of a column's vectors.
    static constexpr std::size_t kTile = kBlocks == 0                   ? kPerBlock
                                         : kBlocks * kPerBlock % 4 == 0 ? 4
                                         : kBlocks * kPerBlock % 3 == 0 ? 3
                                                                        : kBlocks * kPerBlock;
    struct Tile {
        Vector vectors[kTile] = {};
    };

    /// sums[c] = sum over k of columns[k] · factors[c · stride + k] in order, for the tile at vector v.
    template <std::size_t kSums>
    QUORIX_KERNEL void SumColumns(const Columns& columns, const double* factors, std::size_t stride,
                                  std::size_t count, std::size_t v, Tile (&sums)[kSums]) const {
        const double* column = columns[0].rows;
        for (std::size_t k = 0; k < count; ++k, column += Stride()) {
            for (std::size_t t = 0; t < kTile; ++t) {
                const Vector rows = Load(column, v + t);
                for (std::size_t c = 0; c < kSums; ++c) {
                    sums[c].vectors[t] += rows * factors[c * stride + k];
                }
            }
        }
    }

    /// b = a · q, three columns at a time.
    QUORIX_KERNEL void Multiply() {
        for (std::size_t v = 0; v < Vectors(); v += kTile) {
            std::size_t j = 0;
            for (; j + 3 <= n_; j += 3) {
                MultiplyTile<3>(j, v);
            }
            for (; j < n_; ++j) {
                MultiplyTile<1>(j, v);
            }
        }
    }
    template <std::size_t kSums>
    QUORIX_KERNEL void MultiplyTile(std::size_t j, std::size_t v) {
        Tile sums[kSums];
        SumColumns(a_, Column(q_, j), Stride(), n_, v, sums);
        for (std::size_t c = 0; c < kSums; ++c) {
            for (std::size_t t = 0; t < kTile; ++t) {
                Store(Column(b_, j + c), v + t, sums[c].vectors[t]);
            }
        }
    }

    /// Subtracts from `column` its components along the first `count` columns of the factor, all taken of the
    /// column as it came in.
    QUORIX_KERNEL void ProjectTogether(double* column, std::size_t count) {
        const Held held(column);
        std::size_t k = 0;
        for (; k + 2 <= count; k += 2) {
            Dots(held, {Held(Column(next_, k)), Held(Column(next_, k + 1))}, &dots_[k]);
        }
        for (; k < count; ++k) {
            Dots(held, {Held(Column(next_, k))}, &dots_[k]);
        }
        for (std::size_t v = 0; v < Vectors(); v += kTile) {
            Tile sums[1];
            SumColumns(next_, dots_.data(), 0, count, v, sums);
            for (std::size_t t = 0; t < kTile; ++t) {
                Store(column, v + t, held[v + t] - sums[0].vectors[t]);
            }
        }
    }

    /// The factor Q of b goes to next_; b is used up.
    QUORIX_KERNEL void Factor() {
        for (std::size_t j = 0; j < n_; ++j) {
            lengths_[j] = LengthOf(Column(b_, j));
        }
        FinishColumn(0);
        for (std::size_t j = 1; j < n_; ++j) {
            const Held unit(Column(next_, j - 1));
            // The next column first: the others fill the time that its length takes.
            Project<1>(Column(b_, j), unit);
            FinishColumn(j);
            std::size_t later = j + 1;
            for (; later + 2 <= n_; later += 2) {
                Project<2>(Column(b_, later), unit);
            }
            for (; later < n_; ++later) {
                Project<1>(Column(b_, later), unit);
            }
        }
    }

    QUORIX_KERNEL void FinishColumn(std::size_t j) {
        double* const column = Column(b_, j);
        ProjectTogether(column, j);
        double length = LengthOf(column);
        if (!(length > kNegligible * lengths_[j])) [[unlikely]] {
            length = ReplaceByUnitVector(column, j);
        }
        const double reciprocal = 1.0 / length;
        for (std::size_t v = 0; v < Vectors(); ++v) {
            Store(Column(next_, j), v, Load(column, v) * reciprocal);
        }
    }

    /// The first unit vector that keeps a part outside the first `count` columns of the factor.
    QUORIX_KERNEL double ReplaceByUnitVector(double* column, std::size_t count) {
        double length = 0.0;
        for (std::size_t unit = 0; unit < n_ && !(length > kNegligible); ++unit) {
            std::fill_n(column, n_, 0.0);
            column[unit] = 1.0;
            ProjectTogether(column, count);
            ProjectTogether(column, count);
            length = LengthOf(column);
        }
        return length;
    }

    QUORIX_KERNEL static bool Equal(const Columns& left, const Columns& right) {
        return std::equal(left.begin(), left.end(), right.begin(), [](const Block& l, const Block& r) {
            return std::equal(l.rows, l.rows + kBlock, r.rows);
        });
    }

    QUORIX_KERNEL std::vector<double> RowByRow(Columns& columns) const {
        std::vector<double> out(n_ * n_);
        for (std::size_t i = 0; i < n_; ++i) {
            for (std::size_t j = 0; j < n_; ++j) {
                out[i * n_ + j] = Column(columns, j)[i];
            }
        }
        return out;
    }

    std::size_t n_;
    std::size_t anyBlocks_;
    Columns a_;
    Columns b_;
    Columns q_;
    Columns next_;
    Columns beforeLast_;
    std::vector<double> dots_;
    std::vector<double> lengths_;
};

/// kBlocks is the number of blocks where it is known when compiling.
template <std::size_t kWidth>
QUORIX_KERNEL std::vector<double> RoundsOfWidth(std::span<const double> a, std::size_t n, int rounds) {
    switch (BlocksFor(n)) {
        case 1: return Rounds<kWidth, 1>(a, n).Run(rounds);
        case 2: return Rounds<kWidth, 2>(a, n).Run(rounds);
        case 3: return Rounds<kWidth, 3>(a, n).Run(rounds);
        case 4: return Rounds<kWidth, 4>(a, n).Run(rounds);
        default: return Rounds<kWidth, 0>(a, n).Run(rounds);
    }
}

#if defined(QUORIX_HAS_WIDE_VECTORS)
QUORIX_TARGET("avx512f")
std::vector<double> RoundsAvx512(std::span<const double> a, std::size_t n, int rounds) {
    return RoundsOfWidth<8>(a, n, rounds);
}
QUORIX_TARGET("avx2")
std::vector<double> RoundsAvx2(std::span<const double> a, std::size_t n, int rounds) {
    return RoundsOfWidth<4>(a, n, rounds);
}
#endif

}  // namespace

std::size_t WidestVectors() {
#if defined(QUORIX_HAS_WIDE_VECTORS)
    static const std::size_t widest = __builtin_cpu_supports("avx512f") ? 8
                                      : __builtin_cpu_supports("avx2")  ? 4
                                                                        : 2;
    return widest;
#else
    return 2;
#endif
}

std::vector<double> QrRounds(std::span<const double> a, std::size_t n, int rounds, std::size_t width) {
    if (n == 0) {
        return {};
    }
#if defined(QUORIX_HAS_WIDE_VECTORS)
    const std::size_t usable = std::min(width, WidestVectors());
    if (usable >= 8) {
        return RoundsAvx512(a, n, rounds);
    }
    if (usable >= 4) {
        return RoundsAvx2(a, n, rounds);
    }
#else
    static_cast<void>(width);
#endif
    return RoundsOfWidth<2>(a, n, rounds);
}

}  // namespace quorix
