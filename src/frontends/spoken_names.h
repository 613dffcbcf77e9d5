#pragma once

// What keys are called when they are spoken, for assistive programs and as handles of tests.

#include <cstdint>
#include <string_view>

#include "frontends/key_panel.h"
#include "frontends/panel_keys.h"

namespace quorix {

/// "sine", "open parenthesis"; empty for a code without a key.
std::u16string_view SpokenNameOfKey(std::int32_t code);
std::u16string_view SpokenNameOfCommand(PanelCommand command);

/// The name of what a cell does in a category now: orange after SHIFT. Empty for a dead cell.
std::u16string_view SpokenNameOfCell(PanelCell cell, int category, bool orange, std::int32_t radixId);

}  // namespace quorix
