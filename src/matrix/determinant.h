#pragma once

#include "engine/calc_value.h"

namespace quorix {

/// Determinant of a square matrix by Gaussian elimination with partial pivoting (of equal pivots the upper
/// one). A pivot product below 1e-300 or a result below 1e-10 gives 0. A record that is no square matrix
/// stores -44 and gives 0.
double DeterminantOf(const CalcValue& matrix);

}  // namespace quorix
