#pragma once

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// The operators of the fast evaluator, which computes in doubles.
const OperatorTable<DComplex>& DoubleOperatorTable();

}  // namespace quorix
