#pragma once

#include <cstdint>

namespace quorix {

/// Codes that the matrix operators raise; their words stand in the engine's error table.
enum MatrixError : std::int32_t {
    ERROR_MATRIX_ADDITION = -10,
    ERROR_MATRIX_MULTIPLICATION = -38,
    ERROR_MATRIX_INVERSION = -39,
    ERROR_NOT_SYMMETRIC = -42,
    ERROR_RANK = -43,
    ERROR_DETERMINANT = -44,
    ERROR_TRANSPOSITION = -45,
    ERROR_MATRIX_SUBTRACTION = -46,
    ERROR_EIGENVECTOR = -47,
    ERROR_LINEAR_DEPENDENCE = -48,
};

}  // namespace quorix
