#pragma once

#include <QImage>
#include <QString>
#include <filesystem>

#include "shell/module_wnd.h"

namespace quorix {

/// Message of a button to its parent: its child id (first), and whether it is latched (second).
inline constexpr int MSG_BUTTON = 5101;

/// A skinned button: a cap of the upper panel with a text or a picture. A press captures the pen; a release
/// inside posts MSG_BUTTON to the parent. As a toggle it stays down until the next press.
class MorvaneButton : public WindowBase, public CellSource {
  public:
    MorvaneButton(WindowBase& parent, ModuleSite& site, int childId);

    /// Place in the parent, in logical units.
    void LayOut(const Rect& place) { SetPlace(place.Scaled(Scale())); }
    void SetText(const QString& text);
    /// A picture in place of the text, drawn in the middle.
    void SetPicture(const QImage& picture);
    void SetCapRow(UpperCapRow row) { row_ = row; }
    void SetToggle(bool toggle) { toggle_ = toggle; }
    void SetLatched(bool latched);
    [[nodiscard]] bool Latched() const { return latched_; }
    /// A sound of its own that a press plays, in place of none.
    void SetSound(const std::filesystem::path& wav) { sound_ = wav; }

    [[nodiscard]] int AccessibleCellCount() const override { return 1; }
    [[nodiscard]] QString AccessibleCellName(int /*index*/) const override { return accessibleName(); }
    [[nodiscard]] QRect AccessibleCellRect(int /*index*/) const override { return rect(); }
    [[nodiscard]] bool AccessibleCellDown(int /*index*/) const override { return pressed_ || latched_; }
    void PressAccessibleCell(int index) override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;

  private:
    [[nodiscard]] bool Inside(Point at) const;

    WindowBase& parent_;
    ModuleSite& site_;
    QString text_;
    QImage picture_;
    UpperCapRow row_ = CAP_FUNCTION;
    std::filesystem::path sound_;
    bool toggle_ = false;
    bool latched_ = false;
    bool captured_ = false;
    bool pressed_ = false;
};

}  // namespace quorix
