#pragma once

// The context menu of an expression line.

#include <string_view>
#include <vector>

#include "frontends/clipboard_commands.h"

namespace quorix {

enum ContextMenuId : int {
    MENU_CUT = 1000,
    MENU_COPY = 1001,
    MENU_PASTE = 1002,
    MENU_CLEAR = 1003,
    /// Of the modules' expression boxes: hands the line to the calculator.
    MENU_USE_IN_ARITHMETIC = 1004,
    /// Of the display, behind the four items that every line has.
    MENU_COPY_RESULT = 1005,
    MENU_COPY_ALL_DIGITS = 1006,
    MENU_COPY_TEX = 1007,
};

struct ContextMenuItem {
    int id;
    std::u16string_view text;
    bool enabled;
};

/// "Cut", "Copy", "Paste" and "Clear" for an editor's line as it stands; "Paste" asks the clipboard.
std::vector<ContextMenuItem> LineMenuOf(const ExpressionEditor& editor, Clipboard& clipboard);
/// Carries out one of them; another id does nothing. The clipboard gets and gives display text.
void RunLineMenu(int id, ExpressionEditor& editor, Clipboard& clipboard);

/// The display's menu: the four, then "Copy result", "Copy all digits", "Copy as TeX" (which needs toTex).
std::vector<ContextMenuItem> ContextMenuOf(const CLedDisplay& display, Clipboard& clipboard,
                                           const TexConverter& toTex = {});
void RunContextMenu(int id, CLedDisplay& display, Clipboard& clipboard, const TexConverter& toTex = {});

}  // namespace quorix
