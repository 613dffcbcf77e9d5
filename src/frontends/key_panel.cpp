#include "frontends/key_panel.h"

#include "frontends/key_codes.h"

namespace quorix {

namespace {

constexpr FrameLayout kLayouts[] = {
    // portrait
    {{0, 0, 240, 294}, {3, 3, 237, 53}, {3, 54, 237, 138}, {3, 139, 238, 291}, 39, 28, 47, 38, {}},
    // landscape
    {{0, 0, 320, 214},
     {3, 1, 237, 52},
     {4, 25, 316, 106},
     {3, 106, 318, 214},
     39,
     27,
     45,
     36,
     {235, 0, 320, 25}},
    // square
    {{0, 0, 240, 242}, {3, 3, 237, 53}, {3, 54, 237, 138}, {3, 138, 238, 242}, 39, 28, 47, 26, {}},
};

constexpr int kNoCell = -1;
constexpr int kPortraitUpperColumns = 6;
constexpr int kPortraitLowerColumns = 5;
constexpr int kLandscapeUpperColumns = 8;
constexpr int kLandscapeLowerColumns = 7;
constexpr int kPanelRows = 3;
constexpr int kPortraitLowerRows = 4;

/// The upper panel in landscape: the cursor keys fill the end of the first row, the rest follows in
/// portrait's order.
constexpr std::array<int, kLandscapeUpperColumns* kPanelRows> kLandscapeUpper = {
    kNoCell, kNoCell, kNoCell, kNoCell, kNoCell, kNoCell, CELL_LEFT, CELL_RIGHT,  //
    0,       1,       2,       3,       4,       5,       6,         7,           //
    8,       9,       10,      11,      12,      13,      14,        CELL_DELETE,
};

/// The lower panel in landscape: "6789CCM2345-*R01.~+/=". The two cells of C are one key.
constexpr std::array<int, kLandscapeLowerColumns* kPanelRows> kLandscapeLower = {
    KEY_6, KEY_7, KEY_8,     KEY_9,    KEY_CLEAR, KEY_CLEAR,    KEY_STORE,   //
    KEY_2, KEY_3, KEY_4,     KEY_5,    KEY_MINUS, KEY_MULTIPLY, KEY_RECALL,  //
    KEY_0, KEY_1, KEY_POINT, KEY_SIGN, KEY_PLUS,  KEY_DIVIDE,   KEY_EQUALS,
};

struct GridPlace {
    int column = 0;
    int row = 0;
    int columns = 1;
};

template <std::size_t N>
GridPlace PlaceIn(const std::array<int, N>& grid, int gridColumns, int cell) {
    for (std::size_t i = 0; i < N; ++i) {
        if (grid[i] == cell) {
            const bool twice = i + 1 < N && grid[i + 1] == cell;
            return {static_cast<int>(i) % gridColumns, static_cast<int>(i) / gridColumns, twice ? 2 : 1};
        }
    }
    return {};
}

GridPlace PlaceOf(Orientation orientation, PanelCell cell) {
    const bool upper = cell.panel == Panel::upper;
    if (orientation == Orientation::landscape) {
        return upper ? PlaceIn(kLandscapeUpper, kLandscapeUpperColumns, cell.cell)
                     : PlaceIn(kLandscapeLower, kLandscapeLowerColumns, cell.cell);
    }
    const int columns = upper ? kPortraitUpperColumns : kPortraitLowerColumns;
    return {cell.cell % columns, cell.cell / columns, 1};
}

int CellOfPlace(Orientation orientation, Panel panel, int column, int row) {
    const bool upper = panel == Panel::upper;
    if (orientation == Orientation::landscape) {
        const int columns = upper ? kLandscapeUpperColumns : kLandscapeLowerColumns;
        if (column >= columns || row >= kPanelRows) {
            return kNoCell;
        }
        const auto index = static_cast<std::size_t>(row * columns + column);
        return upper ? kLandscapeUpper[index] : kLandscapeLower[index];
    }
    const int columns = upper ? kPortraitUpperColumns : kPortraitLowerColumns;
    const int rows = upper ? kPanelRows : kPortraitLowerRows;
    return column < columns && row < rows ? row * columns + column : kNoCell;
}

}  // namespace

const FrameLayout& LayoutOf(Orientation orientation) {
    return kLayouts[static_cast<std::size_t>(orientation)];
}

PanelCell CellAt(Orientation orientation, int scale, Point point) {
    const FrameLayout& layout = LayoutOf(orientation);
    // In landscape the display covers the upper panel's empty cells; they are none anyway.
    const struct {
        Panel panel;
        Rect rect;
        int width;
        int height;
    } panels[] = {
        {Panel::upper, layout.upperPanel.Scaled(scale), layout.upperCellWidth * scale,
         layout.upperCellHeight * scale},
        {Panel::lower, layout.lowerPanel.Scaled(scale), layout.lowerCellWidth * scale,
         layout.lowerCellHeight * scale},
    };
    for (const auto& [panel, rect, width, height] : panels) {
        if (rect.Contains(point)) {
            const int cell =
                CellOfPlace(orientation, panel, (point.x - rect.left) / width, (point.y - rect.top) / height);
            return cell == kNoCell ? PanelCell{} : PanelCell{panel, cell};
        }
    }
    return {};
}

Rect CellRect(Orientation orientation, PanelCell cell) {
    const FrameLayout& layout = LayoutOf(orientation);
    const GridPlace place = PlaceOf(orientation, cell);
    const bool upper = cell.panel == Panel::upper;
    const Rect& panel = upper ? layout.upperPanel : layout.lowerPanel;
    const int width = upper ? layout.upperCellWidth : layout.lowerCellWidth;
    const int height = upper ? layout.upperCellHeight : layout.lowerCellHeight;
    const int left = panel.left + place.column * width;
    const int top = panel.top + place.row * height;
    return {left, top, left + place.columns * width, top + height};
}

int CapRowOf(PanelCell cell) {
    if (cell.panel == Panel::upper) {
        switch (cell.cell) {
            case CELL_CHOOSER: return CAP_CHOOSER;
            case CELL_SHIFT: return CAP_SHIFT;
            case CELL_MENU: return CAP_MENU;
            default: return CAP_FUNCTION;
        }
    }
    if (cell.cell == KEY_CLEAR) {
        return CAP_CLEAR;
    }
    return DigitOf(cell.cell) >= 0 || cell.cell == KEY_POINT || cell.cell == KEY_SIGN ? CAP_DIGIT
                                                                                      : CAP_OPERATOR;
}

CellState PanelLooks::StateOf(PanelCell cell) const {
    if (cell == PanelCell{Panel::upper, CELL_CHOOSER}) {
        return chooserOpen_       ? CellState::latchedDown
               : cell == pressed_ ? CellState::pressed
                                  : CellState::latchedUp;
    }
    return cell == pressed_ ? CellState::pressed : CellState::up;
}

bool PanelLooks::LooksDown(PanelCell cell) const {
    const CellState state = StateOf(cell);
    return state == CellState::pressed || state == CellState::latchedDown;
}

}  // namespace quorix
