#include "matrix/inversion.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "matrix/determinant.h"

namespace quorix {

namespace {

struct PivotPlace {
    std::size_t row;
    std::size_t column;
};

/// The last element of the unused rows and columns whose magnitude is the greatest.
PivotPlace FindPivot(const std::vector<double>& a, std::size_t n, const std::vector<char>& used) {
    PivotPlace place{0, 0};
    double best = 0.0;
    for (std::size_t r = 0; r < n; ++r) {
        if (used[r] != 0) {
            continue;
        }
        for (std::size_t c = 0; c < n; ++c) {
            if (used[c] == 0 && std::fabs(a[r * n + c]) >= best) {
                best = std::fabs(a[r * n + c]);
                place = {r, c};
            }
        }
    }
    return place;
}

void SwapRows(std::vector<double>& a, std::size_t n, std::size_t r, std::size_t s) {
    std::swap_ranges(a.begin() + static_cast<std::ptrdiff_t>(r * n),
                     a.begin() + static_cast<std::ptrdiff_t>((r + 1) * n),
                     a.begin() + static_cast<std::ptrdiff_t>(s * n));
}

void ClearColumnByPivotRow(std::vector<double>& a, std::size_t n, std::size_t p) {
    double* const pivot = a.data() + p * n;
    const double reciprocal = 1.0 / pivot[p];
    pivot[p] = 1.0;
    for (std::size_t j = 0; j < n; ++j) {
        pivot[j] *= reciprocal;
    }
    for (std::size_t r = 0; r < n; ++r) {
        if (r == p) {
            continue;
        }
        double* const row = a.data() + r * n;
        const double factor = row[p];
        row[p] = 0.0;
        for (std::size_t j = 0; j < n; ++j) {
            row[j] -= factor * pivot[j];
        }
    }
}

}  // namespace

bool InvertInPlace(CalcValue& matrix) {
    if (matrix.kind != KIND_MATRIX || matrix.rows != matrix.cols || matrix.rows == 0 ||
        DeterminantOf(matrix) == 0.0) {
        return false;
    }
    const auto n = static_cast<std::size_t>(matrix.rows);
    std::vector<double>& a = matrix.data;
    std::vector<char> used(n, 0);
    std::vector<PivotPlace> steps;
    steps.reserve(n);
    for (std::size_t step = 0; step < n; ++step) {
        const PivotPlace place = FindPivot(a, n, used);
        used[place.column] = 1;
        if (place.row != place.column) {
            SwapRows(a, n, place.row, place.column);
        }
        steps.push_back(place);
        if (a[place.column * n + place.column] == 0.0) {
            return false;
        }
        ClearColumnByPivotRow(a, n, place.column);
    }
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (step->row != step->column) {
            for (std::size_t r = 0; r < n; ++r) {
                std::swap(a[r * n + step->row], a[r * n + step->column]);
            }
        }
    }
    return true;
}

}  // namespace quorix
