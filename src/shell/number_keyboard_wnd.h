#pragma once

#include <QImage>
#include <array>

#include "platform/qt/accessible_cells.h"
#include "shell/module_wnd.h"
#include "shell/number_keyboard.h"

namespace quorix {

/// The number pad of the forms. Command cells send MSG_PAD_COMMAND with the cookie to the receiver; the
/// others type into the edit control that has the focus, and into nothing else.
class MorvaneCalNumberKeyboardWnd : public WindowBase, public CellSource {
  public:
    /// A child of `parent`; the receiver outlives it.
    MorvaneCalNumberKeyboardWnd(WindowBase& parent, WindowBase& receiver, ModuleSite& site,
                                PadKind kind = PadKind::numbers);

    ~MorvaneCalNumberKeyboardWnd() override;

    /// Fills a place of the parent (logical units), which has room for the keys; they stand at its upper
    /// left.
    void LayOut(const Rect& place);
    void SetPadMode(int padMode);
    void SetCookie(std::intptr_t padCookie) { padCookie_ = padCookie; }
    /// What the command cells are called, by command.
    void SetCommandNames(std::array<QString, kPadCommandCells> names) { commandNames_ = std::move(names); }
    [[nodiscard]] const NumberPad& Pad() const { return pad_; }
    /// The skin has changed.
    void ReloadPictures() { OnScaleChanged(); }

    [[nodiscard]] int AccessibleCellCount() const override { return pad_.Columns() * pad_.Rows(); }
    [[nodiscard]] QString AccessibleCellName(int index) const override;
    [[nodiscard]] QRect AccessibleCellRect(int index) const override;
    [[nodiscard]] bool AccessibleCellDown(int index) const override { return index == pressed_; }
    void PressAccessibleCell(int index) override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenUp(Point at) override;
    void OnScaleChanged() override;

  private:
    void PaintCell(QPainter& painter, int cell);
    void Press(const PadKey& key);
    void LeaveFocusAlone(QWidget* focus);

    WindowBase& receiver_;
    ModuleSite& site_;
    PadKind kind_;
    NumberPad pad_;
    std::intptr_t padCookie_ = 0;
    int pressed_ = -1;
    QMetaObject::Connection focusWatch_;
    std::array<QString, kPadCommandCells> commandNames_;
    QImage keys_;
    QImage functions_;
    double density_ = 0;
};

}  // namespace quorix
