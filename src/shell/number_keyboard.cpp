#include "shell/number_keyboard.h"

#include <array>
#include <string_view>

namespace quorix {

namespace {

/// The command of each command cell, by mode.
constexpr int kCommands[kPadModeCount][kPadCommandCells] = {{0, 1, 2}, {0, 0, 1}, {0, 0, 0}, {0, 1, 1}};

constexpr char16_t kBackspace = 8;
constexpr std::u16string_view kNumberKeys = u"1234567890.-";
constexpr std::u16string_view kLetterKeys = u"abcdefghijklmnopqrstuvwxyz";
constexpr int kBackspaceCell = 3;
/// Portrait alone has the arrows, behind backspace.
constexpr int kLeftCell = 4;
constexpr int kRightCell = 5;

}  // namespace

void NumberPad::SetMode(int padMode) {
    if (padMode >= 0 && padMode < kPadModeCount) {
        padMode_ = padMode;
    }
}

int NumberPad::Rows() const {
    const int keys = kBackspaceCell + 1 +
                     static_cast<int>(kind_ == PadKind::letters ? kLetterKeys.size()
                                                                : kNumberKeys.size() + (landscape_ ? 0 : 2));
    return (keys + Columns() - 1) / Columns();
}

int NumberPad::CellAt(Point at, int scale) const {
    const int column = at.x / (CellWidth() * scale);
    const int row = at.y / (CellHeight() * scale);
    if (at.x < 0 || at.y < 0 || column >= Columns() || row >= Rows()) {
        return -1;
    }
    return row * Columns() + column;
}

int NumberPad::FirstJoined(int cell) const {
    while (cell > 0 && cell < kPadCommandCells &&
           kCommands[padMode_][cell] == kCommands[padMode_][cell - 1]) {
        --cell;
    }
    return cell;
}

Rect NumberPad::RectOf(int cell) const {
    int first = cell;
    int last = cell;
    if (cell < kPadCommandCells) {
        first = FirstJoined(cell);
        while (last + 1 < kPadCommandCells && kCommands[padMode_][last + 1] == kCommands[padMode_][cell]) {
            ++last;
        }
    }
    const int top = cell / Columns() * CellHeight();
    return {first % Columns() * CellWidth(), top, (last % Columns() + 1) * CellWidth(), top + CellHeight()};
}

std::optional<PadKey> NumberPad::KeyOf(int cell) const {
    if (cell < 0) {
        return std::nullopt;
    }
    if (cell < kPadCommandCells) {
        return PadKey{PadKey::Kind::command, kCommands[padMode_][cell]};
    }
    if (cell == kBackspaceCell) {
        return PadKey{PadKey::Kind::character, kBackspace};
    }
    int index = cell - kBackspaceCell - 1;
    if (kind_ == PadKind::numbers && !landscape_) {
        if (cell == kLeftCell || cell == kRightCell) {
            return PadKey{cell == kLeftCell ? PadKey::Kind::left : PadKey::Kind::right, 0};
        }
        index -= 2;
    }
    const std::u16string_view keys = kind_ == PadKind::letters ? kLetterKeys : kNumberKeys;
    if (index >= static_cast<int>(keys.size())) {
        return std::nullopt;
    }
    return PadKey{PadKey::Kind::character, keys[static_cast<std::size_t>(index)]};
}

}  // namespace quorix
