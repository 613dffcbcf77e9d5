#pragma once

#include <QPixmap>
#include <memory>

#include "platform/qt/accessible_cells.h"
#include "platform/qt/window_base.h"
#include "shell/module_wnd.h"
#include "shell/tools_panel.h"

namespace quorix {

/// The category chooser as a sheet over the frame.
class ToolsPanelWnd : public WindowBase, public CellSource {
  public:
    ToolsPanelWnd(WindowBase& frame, ModuleSite& site);

    /// Opens the sheet for the chooser key at `key`, logical units of the client area.
    void Open(const Rect& key);
    /// A key while the sheet is open.
    void Key(SheetKey key);
    [[nodiscard]] const ToolsPanel& Model() const { return *model_; }

    [[nodiscard]] int AccessibleCellCount() const override;
    [[nodiscard]] QString AccessibleCellName(int index) const override;
    [[nodiscard]] QRect AccessibleCellRect(int index) const override;
    [[nodiscard]] bool AccessibleCellDown(int index) const override;
    void PressAccessibleCell(int index) override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;

  private:
    struct Pictures {
        QImage sheet;
        QImage mask;
        QImage tiles;
        QImage icons;
        QImage labels;
        QImage tools;
        QImage pageKeys;
    };
    void LoadPictures();
    void PaintSheet(QPainter& painter);
    void PaintTile(QPainter& painter, const SheetPart& part);
    void PaintTool(QPainter& painter, const SheetPart& part);
    void PaintPageKey(QPainter& painter, const SheetPart& part);
    void PaintFocus(QPainter& painter);
    void Take(const std::optional<SheetPart>& chosen);
    [[nodiscard]] Rect Pixels(const SheetPart& part) const { return model_->RectOf(part).Scaled(Scale()); }
    [[nodiscard]] Point Units(Point at) const { return {at.x / Scale(), at.y / Scale()}; }

    ModuleSite& site_;
    std::unique_ptr<ToolsPanel> model_;
    Pictures pictures_;
    double density_ = 0;
    /// What stands behind the sheet, which lets it through.
    QPixmap behind_;
    /// Per cent of the background that the sheet lets through.
    int transparence_ = 0;
    bool byKeyboard_ = false;
};

}  // namespace quorix
