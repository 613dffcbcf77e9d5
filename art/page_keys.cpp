#include "page_keys.h"

#include "engine/identifiers.h"
#include "frontends/key_labels.h"
#include "frontends/panel_keys.h"

namespace quorix::art {

std::u16string_view LabelOfCell(int category, int cell, bool orange) {
    if (const std::u16string_view own = OwnLabelOfCell(category, cell, orange); !own.empty()) {
        return own;
    }
    // In the hexadecimal base every cell lives.
    const PanelAction action = UpperAction(category, cell, orange, RADIX_HEX);
    if (orange && action == UpperAction(category, cell, false, RADIX_HEX)) {
        return {};
    }
    return LabelOfKey(action.key);
}

}  // namespace quorix::art
