#pragma once

#include <QImage>

#include "shell/module_wnd.h"
#include "shell/number_keyboard.h"

namespace quorix {

/// The number pad of the forms. Command cells send MSG_PAD_COMMAND with the cookie to the receiver; the
/// others type into the edit control that has the focus, and into nothing else.
class MorvaneCalNumberKeyboardWnd : public WindowBase {
  public:
    /// A child of `parent`; the receiver outlives it.
    MorvaneCalNumberKeyboardWnd(WindowBase& parent, WindowBase& receiver, ModuleSite& site,
                                PadKind kind = PadKind::numbers);

    /// Fills a place of the parent (logical units), which has room for the keys; they stand at its upper
    /// left.
    void LayOut(const Rect& place);
    void SetPadMode(int padMode);
    void SetCookie(std::intptr_t padCookie) { padCookie_ = padCookie; }
    [[nodiscard]] const NumberPad& Pad() const { return pad_; }

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenUp(Point at) override;

  private:
    void PaintCell(QPainter& painter, int cell);
    void Press(const PadKey& key);

    WindowBase& receiver_;
    ModuleSite& site_;
    PadKind kind_;
    NumberPad pad_;
    std::intptr_t padCookie_ = 0;
    int pressed_ = -1;
    QImage keys_;
    QImage functions_;
    double density_ = 0;
};

}  // namespace quorix
