#include "frontends/context_menu.h"

#include <algorithm>

#include "engine/number_locale.h"

namespace quorix {

namespace {

/// Other programs do not know the display's comma.
std::u16string ForOtherPrograms(std::u16string_view line) {
    std::u16string text(line);
    std::replace(text.begin(), text.end(), kDisplayComma, u',');
    return text;
}

/// One line of what may be many, without control characters.
std::u16string Pasteable(std::u16string text) {
    text.resize(std::min(text.size(), kLongestLine));
    std::erase_if(text, [](char16_t c) { return c < u' ' || c == u'\u007F'; });
    return text;
}

}  // namespace

std::array<ContextMenuItem, 4> ContextMenuOf(const CLedDisplay& display, Clipboard& clipboard) {
    const bool hasLine = !display.GetLine().empty();
    return {{{MENU_CUT, u"Cut", hasLine},
             {MENU_COPY, u"Copy", hasLine},
             {MENU_PASTE, u"Paste", clipboard.HasText()},
             {MENU_CLEAR, u"Clear", hasLine}}};
}

void RunContextMenu(int id, CLedDisplay& display, Clipboard& clipboard) {
    switch (id) {
        case MENU_CUT:
            clipboard.PutText(ForOtherPrograms(display.GetLine()));
            display.EraseLine();
            break;
        case MENU_COPY: clipboard.PutText(ForOtherPrograms(display.GetLine())); break;
        case MENU_PASTE: display.Paste(Pasteable(clipboard.GetText())); break;
        case MENU_CLEAR: display.EraseLine(); break;
        default: break;
    }
}

}  // namespace quorix
