#pragma once

#include "engine/named_functions.h"
#include "numerics/qreal.h"

namespace quorix {

/// A statistic (NAMED_SUM to NAMED_GM) of the variable LIST, in doubles. -49 unless LIST is a matrix of one
/// column; -5 for ssd of fewer than two items; -4 for gm of a negative product with an even count.
QReal ListStatistic(NamedFunction function);

}  // namespace quorix
