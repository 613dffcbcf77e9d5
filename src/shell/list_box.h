#pragma once

// The popup list of all modules, without its window: rows of fixed height, a scroll position, and what a pen
// or a key chooses.

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace quorix {

enum class ListKey : std::uint8_t { up, down, pageUp, pageDown, first, last, choose, close };

/// All lengths are logical units within the list.
class MorvaneListBox {
  public:
    static constexpr int kRowHeight = 18;
    static constexpr int kBorder = 1;
    /// The two scroll keys stand in a strip of this width at the right.
    static constexpr int kScrollWidth = 20;

    /// width, height: the rectangle; with fewer rows than it can show the list shrinks to them. selected: the
    /// row to begin with, -1 for none.
    MorvaneListBox(std::vector<std::u16string> items, int width, int height, int selected = -1);

    [[nodiscard]] const std::vector<std::u16string>& Items() const { return items_; }
    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] int FirstVisible() const { return first_; }
    [[nodiscard]] int VisibleRows() const { return visible_; }
    [[nodiscard]] bool Scrolls() const { return static_cast<int>(items_.size()) > visible_; }
    [[nodiscard]] int Selected() const { return selected_; }
    [[nodiscard]] Rect RowRect(int row) const;
    [[nodiscard]] Rect UpKey() const;
    [[nodiscard]] Rect DownKey() const;
    [[nodiscard]] bool UpPressed() const { return pressed_ == Pressed::up; }
    [[nodiscard]] bool DownPressed() const { return pressed_ == Pressed::down; }

    void PenDown(Point at);
    /// A pen that moves with a row pressed takes the mark along.
    void PenMove(Point at);
    /// The row chosen, if any.
    std::optional<int> PenUp(Point at);
    void Scroll(int rows);
    /// The row chosen by a key; `close` chooses -1.
    std::optional<int> Key(ListKey key);
    /// Marks the next row that begins with a letter, blind to case.
    void Seek(char16_t letter);

  private:
    enum class Pressed : std::uint8_t { none, row, up, down };
    [[nodiscard]] int RowAt(Point at) const;
    void Select(int row);

    std::vector<std::u16string> items_;
    int width_;
    int height_;
    int visible_;
    int first_ = 0;
    int selected_;
    Pressed pressed_ = Pressed::none;
};

}  // namespace quorix
