#pragma once

#include <QColor>
#include <QPointF>
#include <span>

#include "icon_paths.h"
#include "picture.h"

namespace quorix::art {

struct IconColors {
    QColor main;
    QColor accent;
};

/// Lays an icon on `picture`. `origin` (units) is the top left corner of its grid, `grid` the number of grid
/// units on a side and `size` the side in units; `weight` multiplies every stroke.
void LayIcon(Picture& picture, QPointF origin, std::span<const IconStroke> icon, double grid, double size,
             const IconColors& colors, double weight = 1.0);

}  // namespace quorix::art
