#pragma once

#include <cstdint>
#include <vector>

#include "numerics/qreal.h"

namespace quorix {

enum ValueKind : std::uint8_t { KIND_REAL = 0, KIND_MATRIX = 1, KIND_COMPLEX = 2 };

/// Tagged result of an evaluation. A list is a matrix of one column; there is no text value.
struct CalcValue {
    ValueKind kind = KIND_REAL;
    /// The value for kinds real and complex; all zero for a matrix.
    QComplex number;
    std::uint16_t rows = 0;
    std::uint16_t cols = 0;
    /// rows · cols doubles, row by row.
    std::vector<double> data;

    /// Back to an all-zero real.
    void Clear() { *this = CalcValue{}; }
};

}  // namespace quorix
