#pragma once

// The display as a window: paints, and hands the pen on.

#include "frontends/led_display.h"
#include "frontends/led_painter.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/window_base.h"

namespace quorix {

/// Child id of the display in the frame.
inline constexpr int kLedWindowId = 1234;

class LedWnd : public WindowBase {
  public:
    explicit LedWnd(WindowBase* parent) : WindowBase(parent, kLedWindowId) {}

    /// The model outlives the window. holdInterval: milliseconds after which a held pen opens the context
    /// menu.
    void SetDisplay(CLedDisplay* display, int holdInterval);
    void SetFrameColours(const DisplayFrameColours& colours);
    /// The file of the TeX button that suits the scale; the picture is read at the first paint.
    void SetTexButton(const std::filesystem::path& file);

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnTimer(int id) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void OpenContextMenu(QPoint globalPosition);

    CLedDisplay* display_ = nullptr;
    int holdInterval_ = 0;
    Point pressedAt_;
    bool menuOpened_ = false;
    LedPainter painter_;
    std::filesystem::path texButton_;
    double texButtonDensity_ = 0;  ///< For which it has been loaded; 0: not yet.
    DisplayFrameColours frame_{};
    QtClipboard clipboard_;
};

}  // namespace quorix
