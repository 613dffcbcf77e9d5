#pragma once

// The category chooser: a sheet of sixteen tiles with a row of tools. No window: places, pages, and what a
// pen or a key chooses.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "frontends/categories.h"
#include "frontends/key_panel.h"
#include "platform/geometry.h"
#include "shell/main_frame.h"

namespace quorix {

/// A part of the sheet that can be pressed.
struct SheetPart {
    enum class Kind : std::uint8_t { none, tile, tool, pageBack, pageForth };
    Kind kind = Kind::none;
    /// Of a tile: its category. Of a tool: its number.
    int index = 0;
    friend constexpr bool operator==(const SheetPart&, const SheetPart&) = default;
};

enum class SheetKey : std::uint8_t { left, right, up, down, next, previous, choose, close };

/// All rectangles are logical units within the sheet.
class ToolsPanel {
  public:
    /// order: the categories as the user arranged them. sheetWidth, sheetHeight: room in logical units; a
    /// sheet too low for all tiles spreads them evenly over pages. The page with `current` is shown first.
    ToolsPanel(const std::array<std::uint8_t, kCategoryCount>& order, int current, int roomWidth,
               int roomHeight);

    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] int PageCount() const { return pages_; }
    [[nodiscard]] int Page() const { return page_; }
    [[nodiscard]] int Current() const { return current_; }

    /// The parts of the page on show, tiles first, in the order in which the keyboard walks them.
    [[nodiscard]] std::vector<SheetPart> Parts() const;
    [[nodiscard]] Rect RectOf(const SheetPart& part) const;
    /// The part at a point, kind none where there is none.
    [[nodiscard]] SheetPart PartAt(Point at) const;
    /// Height at which a hair line parts tiles and tools.
    [[nodiscard]] int RuleHeight() const { return height_ - kToolRowHeight; }

    [[nodiscard]] const SheetPart& Pressed() const { return pressed_; }
    [[nodiscard]] const SheetPart& Focused() const { return focused_; }

    void PenDown(Point at) { pressed_ = PartAt(at); }
    /// What the pen has chosen: a tile or a tool. Page keys turn the page and choose nothing.
    std::optional<SheetPart> PenUp(Point at);
    /// The same by a key; `close` chooses a part of kind none.
    std::optional<SheetPart> Key(SheetKey key);

    static constexpr int kTileWidth = 58;
    static constexpr int kTileHeight = 45;
    static constexpr int kToolRowHeight = 27;
    static constexpr int kPageKeySize = 24;
    static constexpr int kBorder = 1;

  private:
    std::optional<SheetPart> Choose(const SheetPart& part);
    void TurnPage(int step);
    [[nodiscard]] int PlaceOnPage(int category) const;
    [[nodiscard]] bool PageKeysBesideTools() const;

    std::array<std::uint8_t, kCategoryCount> order_;
    int current_;
    int columns_ = 4;
    int rows_ = 4;
    int pages_ = 1;
    int page_ = 0;
    int width_ = 0;
    int height_ = 0;
    SheetPart pressed_;
    SheetPart focused_;
};

/// Where a sheet stands (logical units of the client area) that the chooser key at `key` opens: below it
/// where there is room, else above it, else at the foot of the client area.
Rect SheetRoom(Orientation orientation, const Rect& key);

}  // namespace quorix
