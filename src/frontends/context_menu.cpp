#include "frontends/context_menu.h"

namespace quorix {

std::vector<ContextMenuItem> LineMenuOf(const ExpressionEditor& editor, Clipboard& clipboard) {
    const bool hasLine = !editor.GetLine().empty();
    const bool mayChange = editor.TakesEdits();
    return {{MENU_CUT, u"Cut", hasLine && mayChange},
            {MENU_COPY, u"Copy", hasLine},
            {MENU_PASTE, u"Paste", mayChange && clipboard.HasText()},
            {MENU_CLEAR, u"Clear", hasLine && mayChange}};
}

void RunLineMenu(int id, ExpressionEditor& editor, Clipboard& clipboard) {
    switch (id) {
        case MENU_CUT: CutLine(editor, clipboard); break;
        case MENU_COPY: CopyLine(editor, clipboard); break;
        case MENU_PASTE: PasteLine(editor, clipboard); break;
        case MENU_CLEAR: editor.EraseLine(); break;
        default: break;
    }
}

std::vector<ContextMenuItem> ContextMenuOf(const CLedDisplay& display, Clipboard& clipboard,
                                           const TexConverter& toTex) {
    std::vector<ContextMenuItem> items = LineMenuOf(display, clipboard);
    const bool stringMode = display.Settings().IsStringMode();
    for (ContextMenuItem& item : items) {
        // In the basic modes the line is a number: it can be copied, replaced, and cleared by the C key.
        item.enabled = stringMode              ? item.enabled
                       : item.id == MENU_PASTE ? clipboard.HasText()
                                               : item.id != MENU_CUT && !display.GetLine().empty();
    }
    const bool hasResult = HasResult(display);
    items.push_back({MENU_COPY_RESULT, u"Copy result", hasResult});
    items.push_back({MENU_COPY_ALL_DIGITS, u"Copy all digits", hasResult});
    items.push_back({MENU_COPY_TEX, u"Copy as TeX", toTex && stringMode && !display.GetLine().empty()});
    return items;
}

void RunContextMenu(int id, CLedDisplay& display, Clipboard& clipboard, const TexConverter& toTex) {
    const bool stringMode = display.Settings().IsStringMode();
    switch (id) {
        case MENU_PASTE: PasteShortcut(display, clipboard); break;
        case MENU_CLEAR:
            if (stringMode) {
                display.EraseLine();
            } else {
                display.Key(KEY_CLEAR);
            }
            break;
        case MENU_COPY_RESULT: CopyResult(display, clipboard); break;
        case MENU_COPY_ALL_DIGITS: CopyAllDigits(display, clipboard); break;
        case MENU_COPY_TEX: CopyTex(display, clipboard, toTex); break;
        default: RunLineMenu(id, display, clipboard); break;
    }
}

}  // namespace quorix
