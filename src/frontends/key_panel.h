#pragma once

// The two key panels: images with a grid over them, no windows. Taps become cells by arithmetic.
//
// Cells of the upper panel are numbered as in portrait, 0 to 17, whatever the orientation: 0 chooser, 1
// SHIFT, 2 menu, 3 to 11 functions, 12 to 17 "(" ")" "," delete left right. Cells of the lower panel are
// numbered by their key code, 0 to 19. Landscape moves and merges cells; it adds none.

#include <array>
#include <cstdint>
#include <optional>

#include "platform/geometry.h"
#include "platform/screen.h"

namespace quorix {

enum class Orientation : std::uint8_t { portrait, landscape, square };
enum class Panel : std::uint8_t { none, upper, lower };

constexpr Orientation OrientationOf(const DeviceScreen& screen) {
    return screen.IsLandscape() ? Orientation::landscape
           : screen.IsSquare()  ? Orientation::square
                                : Orientation::portrait;
}

inline constexpr int kUpperCellCount = 18;
inline constexpr int kLowerCellCount = 20;

enum UpperCell : int {
    CELL_CHOOSER = 0,
    CELL_SHIFT = 1,
    CELL_MENU = 2,
    CELL_FIRST_GENERAL = 12,
    CELL_DELETE = 15,
    CELL_LEFT = 16,
    CELL_RIGHT = 17,
};

/// How a cell looks.
enum class CellState : std::uint8_t { up = 0, pressed = 1, latchedDown = 2, latchedUp = 4 };

/// Rows of the cap images.
enum UpperCapRow : int { CAP_FUNCTION = 0, CAP_SHIFT = 1, CAP_MENU = 2, CAP_CHOOSER = 3 };
enum LowerCapRow : int { CAP_DIGIT = 0, CAP_OPERATOR = 1, CAP_CLEAR = 2 };

/// Where everything of the main window is, in logical units.
struct FrameLayout {
    Rect client;
    Rect display;
    Rect upperPanel;
    Rect lowerPanel;
    /// Size of one cell of each panel; C in landscape is two cells wide.
    int upperCellWidth;
    int upperCellHeight;
    int lowerCellWidth;
    int lowerCellHeight;
    /// Where the word "Landscape" stands; empty in the other orientations.
    Rect landscapeWord;
};

const FrameLayout& LayoutOf(Orientation orientation);

struct PanelCell {
    Panel panel = Panel::none;
    int cell = -1;
    friend constexpr bool operator==(const PanelCell&, const PanelCell&) = default;
};

/// The cell under a point in device pixels; panel `none` where there is no cell.
PanelCell CellAt(Orientation orientation, int scale, Point point);
/// A cell's rectangle in logical units.
Rect CellRect(Orientation orientation, PanelCell cell);
/// The row of the cap image (SmallButtons or LargeButtons) that a cell uses.
int CapRowOf(PanelCell cell);

/// How the cells look at the moment: one pressed cell at most, and the chooser key that latches.
class PanelLooks {
  public:
    [[nodiscard]] CellState StateOf(PanelCell cell) const;
    [[nodiscard]] bool LooksDown(PanelCell cell) const;
    /// Presses a cell; another pressed one comes up.
    void Press(PanelCell cell) { pressed_ = cell; }
    void Release() { pressed_ = {}; }
    [[nodiscard]] PanelCell Pressed() const { return pressed_; }
    void LatchChooser(bool open) { chooserOpen_ = open; }

  private:
    PanelCell pressed_;
    bool chooserOpen_ = false;
};

}  // namespace quorix
