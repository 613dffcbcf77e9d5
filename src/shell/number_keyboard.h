#pragma once

// The number pad of the forms and the letter keyboard of the macro editor: cells found by arithmetic. No
// window.

#include <cstdint>
#include <optional>

#include "platform/geometry.h"

namespace quorix {

/// What a cell of a pad means.
struct PadKey {
    enum class Kind : std::uint8_t { command, character, left, right };
    Kind kind = Kind::character;
    /// Command 0 to 2, or the character.
    int value = 0;
    friend constexpr bool operator==(const PadKey&, const PadKey&) = default;
};

enum class PadKind : std::uint8_t { numbers, letters };

inline constexpr int kPadModeCount = 4;
inline constexpr int kPadCommandCells = 3;

class NumberPad {
  public:
    NumberPad(PadKind kind, bool landscape) : kind_(kind), landscape_(landscape) {}

    /// 0 to 3: how the three command cells are joined; other values are ignored.
    void SetMode(int padMode);
    [[nodiscard]] int Mode() const { return padMode_; }
    void SetLandscape(bool landscape) { landscape_ = landscape; }

    [[nodiscard]] int Columns() const { return landscape_ ? 8 : 6; }
    [[nodiscard]] int Rows() const;
    [[nodiscard]] int CellWidth() const { return 39; }
    [[nodiscard]] int CellHeight() const { return landscape_ ? 27 : 28; }

    /// The cell at a point in device pixels of the pad, or -1.
    [[nodiscard]] int CellAt(Point at, int scale) const;
    /// A cell's rectangle in logical units; joined command cells are one.
    [[nodiscard]] Rect RectOf(int cell) const;
    /// What a cell means; nothing for cells without a key.
    [[nodiscard]] std::optional<PadKey> KeyOf(int cell) const;
    /// The first of the command cells that make one key with `cell`.
    [[nodiscard]] int FirstJoined(int cell) const;

  private:
    PadKind kind_;
    bool landscape_;
    int padMode_ = 0;
};

}  // namespace quorix
