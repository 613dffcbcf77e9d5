#pragma once

#include "palette.h"
#include "picture.h"

namespace quorix::art {

/// Paints one key cap that fills `cell` (units): the slab stands one unit in at the left, right and top and
/// two at the bottom, over its shadow; pressed, it stands one unit lower without shadow and is darker at the
/// top.
void PaintCap(QPainter& painter, const QRectF& cell, double radius, const CapColors& colors,
              const QColor& shadow, bool down);

}  // namespace quorix::art
