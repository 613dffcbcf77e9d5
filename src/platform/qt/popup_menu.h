#pragma once

#include <QMenu>

#include "platform/color.h"

namespace quorix {

/// Those of the light sheet, unless a skin has others.
struct MenuColours {
    ColorRef sheet = MakeColor(0xF3, 0xF5, 0xF9);
    ColorRef ink = MakeColor(0x24, 0x30, 0x4A);
    ColorRef line = MakeColor(0xC4, 0xCD, 0xDC);
    ColorRef chosen = MakeColor(0x2F, 0x62, 0xB8);
    ColorRef chosenInk = MakeColor(0xFF, 0xFF, 0xFF);
};

/// A list that opens over a window: shipped face at the window's size. It deletes itself when it closes.
/// pixelsPerUnit: desktop points for one logical unit.
QMenu* NewPopupMenu(QWidget* parent, double pixelsPerUnit, const MenuColours& colours = {});

}  // namespace quorix
