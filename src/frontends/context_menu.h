#pragma once

// The context menu of an expression line.

#include <array>
#include <cstdint>
#include <string_view>

#include "frontends/led_display.h"
#include "platform/clipboard.h"

namespace quorix {

enum ContextMenuId : int { MENU_CUT = 1000, MENU_COPY = 1001, MENU_PASTE = 1002, MENU_CLEAR = 1003 };

struct ContextMenuItem {
    int id;
    std::u16string_view text;
    bool enabled;
};

/// The items for the display's line as it stands; "Paste" asks the clipboard.
std::array<ContextMenuItem, 4> ContextMenuOf(const CLedDisplay& display, Clipboard& clipboard);
/// Carries out an item. The clipboard gets and gives display text; an unknown id does nothing.
void RunContextMenu(int id, CLedDisplay& display, Clipboard& clipboard);

}  // namespace quorix
