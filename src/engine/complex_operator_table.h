#pragma once

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// The operators of the evaluator and the key engines that compute in extended precision.
const OperatorTable<QComplex>& ComplexOperatorTable();

}  // namespace quorix
