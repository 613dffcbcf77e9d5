#pragma once

// The expression box as a window: paints, and hands keyboard and pen on.

#include <memory>

#include "frontends/line_painter.h"
#include "frontends/morvane_cal_edit.h"
#include "frontends/spoken_line_wnd.h"
#include "platform/color.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/window_base.h"

namespace quorix {

class MorvaneCalEditWnd : public WindowBase, public SpokenLine {
  public:
    /// settings outlive the window. useInArithmetic: the line is on the clipboard for the calculator.
    MorvaneCalEditWnd(WindowBase* parent, int childId, const CalculatorSettings& settings,
                      std::function<void()> useInArithmetic = {});

    [[nodiscard]] MorvaneCalEdit& Edit() { return edit_; }
    /// Border colour 2 of the skin.
    void SetBorderColour(ColorRef colour);
    /// Milliseconds after which a held pen opens the context menu; 0: never.
    void SetHoldInterval(int milliseconds) { holdInterval_ = milliseconds; }

    [[nodiscard]] QString SpokenText() const override;
    [[nodiscard]] bool IsEditable() const override { return !edit_.ReadOnly(); }

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnTimer(int id) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void Changed();
    bool EditShortcut(const QKeyEvent& event);
    void OpenContextMenu(QPoint globalPosition);

    MorvaneCalEdit edit_;
    LinePainter line_{{.em = 15, .weight = kMediumWeight}};
    QtClipboard clipboard_;
    ColorRef borderColour_ = 0;
    int holdInterval_ = 0;
    Point pressedAt_;
    bool menuOpened_ = false;
};

}  // namespace quorix
