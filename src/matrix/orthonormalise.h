#pragma once

#include "engine/calc_value.h"

namespace quorix {

/// Orthonormalises the columns of a matrix in place by classical Gram-Schmidt. A column that is left with a
/// squared length below 1e-12 stores -48, gives false and leaves the matrix as it was.
bool Orthonormalise(CalcValue& matrix);

}  // namespace quorix
