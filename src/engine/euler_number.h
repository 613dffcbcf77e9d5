#pragma once

#include "numerics/qreal.h"

namespace quorix {

/// The constant e to the full 336 bits.
const QReal& EulerNumber();

}  // namespace quorix
