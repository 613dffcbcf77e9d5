#pragma once

// The list of names that opens at the cursor while a letter is typed.

#include "frontends/sheet_painter.h"
#include "frontends/type_ahead.h"
#include "platform/qt/window_base.h"

namespace quorix {

/// A sheet over the frame with the candidates of a TypeAhead. A tap takes a row, a drag chooses.
class TypeAheadWnd : public WindowBase {
  public:
    /// A child of the frame, hidden. The model outlives the window.
    TypeAheadWnd(WindowBase* frame, TypeAhead& model);

    void SetColours(const SheetColours& colours);
    /// Follows the model after each of its changes: opens at the cursor, or closes. `cursor` (as
    /// LedWnd::CursorRect gives it) and `bounds`, the part of the frame to stay in: its device pixels.
    void Follow(const Rect& cursor, const Rect& bounds);
    /// Index of the candidate in the first row.
    [[nodiscard]] int FirstShown() const { return first_; }

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] int RowsShown() const;
    /// The candidate under a point, or one beyond the last.
    [[nodiscard]] std::size_t CandidateAt(Point at) const;
    void PaintRow(QPainter& painter, int row);

    TypeAhead& model_;
    SheetColours colours_;
    int first_ = 0;
};

}  // namespace quorix
