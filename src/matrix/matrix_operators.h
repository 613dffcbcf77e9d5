#pragma once

#include <span>

#include "engine/calc_value.h"
#include "engine/operator_table.h"

namespace quorix {

/// MatrixOperatorTable: the 13 operators of matrix expressions, in table order. The composition root hands it
/// to SetMatrixOperators.
std::span<const OperatorRow<CalcValue>> MatrixOperatorTable();

}  // namespace quorix
