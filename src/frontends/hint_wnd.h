#pragma once

// The function hint at the cursor.

#include <QString>
#include <vector>

#include "frontends/function_hints.h"
#include "frontends/sheet_painter.h"
#include "platform/qt/window_base.h"

namespace quorix {

/// A label over the frame that takes no taps. A row too wide for the frame is set narrow, then in lines.
class HintWnd : public WindowBase {
  public:
    /// A child of the frame, hidden.
    explicit HintWnd(WindowBase* frame);

    void SetColours(const SheetColours& colours);
    /// Shows a hint under the cursor's bar or, where there is no room, above its line. `cursor` (as
    /// LedWnd::CursorRect gives it) and `bounds`, the part of the frame to stay in: its device pixels.
    void ShowHint(const FunctionHint& hint, const Rect& cursor, const Rect& bounds);

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// A run of text in one look.
    struct Run {
        QString text;
        bool bold;
    };
    using TextLine = std::vector<Run>;

    [[nodiscard]] std::vector<Run> RunsOf(const FunctionHint& hint) const;
    [[nodiscard]] double WidthOf(const Run& run) const;
    [[nodiscard]] double WidthOf(const TextLine& line) const;
    [[nodiscard]] std::vector<TextLine> Wrapped(const std::vector<Run>& runs, double room) const;

    SheetColours colours_;
    std::vector<TextLine> lines_;
    bool condensed_ = false;
};

}  // namespace quorix
