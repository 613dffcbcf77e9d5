#pragma once

#include <QImage>
#include <functional>
#include <memory>

#include "platform/qt/accessible_cells.h"
#include "shell/list_box.h"
#include "shell/module_wnd.h"

namespace quorix {

/// A popup list over the frame. `chosen` is called once, with the row, or with -1 when it closes without a
/// choice.
class MorvaneListBoxWnd : public WindowBase, public CellSource {
  public:
    MorvaneListBoxWnd(WindowBase& frame, ModuleSite& site, int popupId, std::function<void(int row)> chosen);

    /// Opens the list below `anchor` (device pixels of the client area), or above it where there is more
    /// room; as wide as its rows need.
    void Open(const Rect& anchor, std::vector<std::u16string> items, int selected);
    /// A key while the list is open; false for one that means nothing to it.
    bool Key(const QKeyEvent& event);
    [[nodiscard]] int PopupNumber() const { return ChildId(); }
    [[nodiscard]] const MorvaneListBox& Model() const { return *model_; }

    [[nodiscard]] int AccessibleCellCount() const override;
    [[nodiscard]] QString AccessibleCellName(int index) const override;
    [[nodiscard]] QRect AccessibleCellRect(int index) const override;
    void PressAccessibleCell(int index) override { Choose(index); }

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;
    void OnTimer(int id) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void PaintScrollKeys(QPainter& painter);
    void Choose(std::optional<int> row);
    [[nodiscard]] Point Units(Point at) const { return {at.x / Scale(), at.y / Scale()}; }

    ModuleSite& site_;
    std::function<void(int row)> chosen_;
    std::unique_ptr<MorvaneListBox> model_;
    QImage scrollKeys_;
    double density_ = 0;
};

}  // namespace quorix
