#pragma once

// The look of what opens over the panels: a light sheet with rounded corners and a hair line round it.

#include <QWidget>

#include "platform/color.h"
#include "platform/geometry.h"

class QPainter;

namespace quorix {

struct SheetColours {
    ColorRef sheet = MakeColor(0xF3, 0xF5, 0xF9);
    ColorRef ink = MakeColor(0x24, 0x30, 0x4A);
    ColorRef line = MakeColor(0xC4, 0xCD, 0xDC);
    ColorRef accent = MakeColor(0xCF, 0x6E, 0x08);
};

/// Fills the whole window of this size, device pixels.
void PaintSheet(QPainter& painter, const Rect& size, const SheetColours& colours, int scale);

/// Cuts the window to the sheet's shape; to be called after each change of size. pixelsPerUnit: desktop
/// points for one logical unit.
void CutToSheet(QWidget& window, double pixelsPerUnit);

}  // namespace quorix
