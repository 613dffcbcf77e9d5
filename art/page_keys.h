// Which label stands on which cell of the upper panel.
#pragma once

#include <string_view>

#include "frontends/key_labels.h"

namespace quorix::art {

/// A run of cells whose key codes are the cell number plus an offset.
struct KeyRun {
    int category;
    int firstCell;
    int lastCell;
    bool orange;
    int offset;
};

/// First match wins.
inline constexpr KeyRun kKeyRuns[] = {
    {0, 3, 11, false, 22}, {0, 2, 2, true, 32},  {0, 3, 11, true, 32},   {1, 2, 2, false, 48},
    {1, 3, 11, false, 48}, {1, 3, 10, true, 57}, {1, 11, 11, true, 120}, {2, 3, 11, false, 66},
    {2, 2, 2, true, 135},  {2, 3, 4, true, 75},  {2, 5, 5, true, 32},    {2, 6, 11, true, 74},
    {3, 4, 11, false, 82}, {3, 5, 11, true, 89}, {4, 2, 11, false, 99},  {5, 4, 11, false, 107},
};

/// Markup of a label; empty where nothing stands. Cells 12 to 17 are the same in every category.
constexpr std::u16string_view LabelOfCell(int category, int cell, bool orange) {
    if (const std::u16string_view own = OwnLabelOfCell(category, cell, orange); !own.empty()) {
        return own;
    }
    if (cell >= 12) {
        return orange ? std::u16string_view{} : LabelOfKey(cell - 12 + 44);
    }
    for (const KeyRun& run : kKeyRuns) {
        if (run.category == category && run.orange == orange && cell >= run.firstCell &&
            cell <= run.lastCell) {
            return LabelOfKey(cell + run.offset);
        }
    }
    return {};
}

}  // namespace quorix::art
