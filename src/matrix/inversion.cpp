#include "matrix/inversion.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <vector>

#include "matrix/determinant.h"

namespace quorix {

namespace {

struct PivotPlace {
    std::size_t row;
    std::size_t column;
};

/// Gauss-Jordan elimination in place with full pivoting. Rows are padded with zeros to whole groups of
/// columns, which compilers turn into vectors; every element keeps its own order of operations.
class Elimination {
  public:
    explicit Elimination(const CalcValue& matrix)
        : n_(static_cast<std::size_t>(matrix.rows)),
          stride_((n_ + kGroup - 1) / kGroup * kGroup),
          a_(n_ * stride_),
          isRowUsed_(n_),
          searched_(stride_) {
        for (std::size_t r = 0; r < n_; ++r) std::copy_n(&matrix.data[r * n_], n_, Row(r));
        std::fill_n(searched_.begin(), n_, kMagnitude);
    }

    /// False when a pivot is 0.
    bool Run() {
        steps_.reserve(n_);
        for (std::size_t step = 0; step < n_; ++step) {
            const PivotPlace place = FindPivot();
            searched_[place.column] = 0;
            isRowUsed_[place.column] = true;
            if (place.row != place.column) {
                std::swap_ranges(Row(place.row), Row(place.row) + n_, Row(place.column));
            }
            steps_.push_back(place);
            if (Row(place.column)[place.column] == 0.0) return false;
            ClearColumnByPivotRow(place.column);
        }
        return true;
    }

    void Store(CalcValue& matrix) const {
        std::vector<std::size_t> columns(n_);
        std::iota(columns.begin(), columns.end(), std::size_t{0});
        for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
            std::swap(columns[step->row], columns[step->column]);
        }
        for (std::size_t r = 0; r < n_; ++r) {
            for (std::size_t c = 0; c < n_; ++c) matrix.data[r * n_ + c] = Row(r)[columns[c]];
        }
    }

  private:
    static constexpr std::size_t kGroup = 8;
    static constexpr std::uint64_t kMagnitude = ~std::uint64_t{0} >> 1U;

    [[nodiscard]] double* Row(std::size_t r) { return a_.data() + r * stride_; }
    [[nodiscard]] const double* Row(std::size_t r) const { return a_.data() + r * stride_; }

    /// The last element of the unused rows and columns whose magnitude is the greatest. What is no number is
    /// passed over.
    [[nodiscard]] PivotPlace FindPivot() const {
        PivotPlace place{0, 0};
        double best = 0.0;
        for (std::size_t r = 0; r < n_; ++r) {
            const double greatest = isRowUsed_[r] ? -1.0 : GreatestIn(Row(r));
            if (greatest >= best) {
                best = greatest;
                place.row = r;
            }
        }
        for (std::size_t c = 0; c < n_; ++c) {
            if (searched_[c] != 0 && std::fabs(Row(place.row)[c]) == best) place.column = c;
        }
        return place;
    }

    [[nodiscard]] double GreatestIn(const double* row) const {
        std::array<double, kGroup> greatest{};
        for (std::size_t c = 0; c < stride_; c += kGroup) {
            for (std::size_t lane = 0; lane < kGroup; ++lane) {
                const double magnitude =
                    std::bit_cast<double>(std::bit_cast<std::uint64_t>(row[c + lane]) & searched_[c + lane]);
                greatest[lane] = magnitude > greatest[lane] ? magnitude : greatest[lane];
            }
        }
        return *std::ranges::max_element(greatest);
    }

    void ClearColumnByPivotRow(std::size_t p) {
        double* const pivot = Row(p);
        const double reciprocal = 1.0 / pivot[p];
        pivot[p] = 1.0;
        for (std::size_t j = 0; j < stride_; ++j) pivot[j] *= reciprocal;
        for (std::size_t r = 0; r < n_; ++r) {
            if (r == p) continue;
            double* const row = Row(r);
            const double factor = row[p];
            row[p] = 0.0;
            for (std::size_t j = 0; j < stride_; ++j) row[j] -= factor * pivot[j];
        }
    }

    std::size_t n_;
    std::size_t stride_;
    std::vector<double> a_;
    std::vector<bool> isRowUsed_;
    /// Bits of the magnitude in columns that are still searched, none in the others.
    std::vector<std::uint64_t> searched_;
    std::vector<PivotPlace> steps_;
};

}  // namespace

bool InvertInPlace(CalcValue& matrix) {
    if (matrix.kind != KIND_MATRIX || matrix.rows != matrix.cols || matrix.rows == 0 ||
        DeterminantOf(matrix) == 0.0) {
        return false;
    }
    Elimination elimination(matrix);
    if (!elimination.Run()) return false;
    elimination.Store(matrix);
    return true;
}

}  // namespace quorix
