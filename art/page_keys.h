#pragma once

#include <string_view>

namespace quorix::art {

/// Markup of the label on a cell of the upper panel, found through the key that the cell sends; empty where
/// nothing stands. An orange function that is the plain one again has no label.
std::u16string_view LabelOfCell(int category, int cell, bool orange);

}  // namespace quorix::art
