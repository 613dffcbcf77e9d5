#pragma once

#include "engine/calc_value.h"

namespace quorix {

/// Inverts a square matrix where it stands, by Gauss-Jordan elimination with full pivoting (of equal pivots
/// the later one). False, with nothing changed, when it is no square matrix or its determinant counts as 0;
/// false as well, with the content lost, when a pivot is exactly 0. No error code.
bool InvertInPlace(CalcValue& matrix);

}  // namespace quorix
