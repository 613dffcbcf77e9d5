#pragma once

// The base of the modules' windows, and what the frame's window offers to them.

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "frontends/panel_painter.h"
#include "platform/color.h"
#include "platform/qt/accessible_cells.h"
#include "platform/qt/window_base.h"
#include "shell/category_registry.h"
#include "shell/colours.h"
#include "shell/main_frame.h"
#include "shell/skin.h"

namespace quorix {

/// The frame's window as its modules see it. It outlives them.
class ModuleSite {
  public:
    virtual ~ModuleSite() = default;
    [[nodiscard]] virtual CMainFrame& Frame() = 0;
    [[nodiscard]] virtual const std::filesystem::path& Folder() const = 0;
    [[nodiscard]] virtual const Skin& CurrentSkin() const = 0;
    [[nodiscard]] virtual const SkinColours& Colours() const = 0;
    [[nodiscard]] virtual ColorRef BodyColour() const = 0;
    /// Caps of the skin, in the density of the present paint.
    [[nodiscard]] virtual PanelPainter& Panels() = 0;
    /// Plays a sound of its own, when sounds are on and the file has a name.
    virtual void PlaySound(const std::filesystem::path& wav) = 0;
    /// Opens a list at a place (device pixels of the frame's client area); the choice comes as
    /// MSG_POPUP_CHOSEN.
    virtual void OpenPopupAt(PopupId id, const Rect& at, const std::vector<std::u16string>& items) = 0;
};

/// A window that stands in the frame for one category or several. It paints its own chooser key and opens the
/// chooser by it; everything else is the module's.
class ModuleWnd : public WindowBase, public CellSource {
  public:
    ModuleWnd(WindowBase& frame, ModuleSite& site, int category);

    /// The chooser key, in logical units of the frame's client area.
    [[nodiscard]] virtual Rect ChooserKey() const;
    /// Lays the window out for the present orientation.
    virtual void LayOut();
    void SetCategory(int category) { category_ = category; }
    [[nodiscard]] int Category() const { return category_; }

    /// The chooser key, unless the panels have it; windows with painted keys of their own add theirs.
    [[nodiscard]] int AccessibleCellCount() const override { return 1; }
    [[nodiscard]] QString AccessibleCellName(int index) const override;
    [[nodiscard]] QRect AccessibleCellRect(int index) const override;
    [[nodiscard]] bool AccessibleCellDown(int index) const override;
    void PressAccessibleCell(int index) override;

  protected:
    [[nodiscard]] ModuleSite& Site() const { return site_; }
    /// A picture of the skin in the density of the present paint; empty when the skin has none.
    [[nodiscard]] QImage SkinPicture(std::string_view key) const;
    /// The chooser key's place in this window, in device pixels.
    [[nodiscard]] Rect ChooserKeyHere() const;
    void PaintChooserKey(QPainter& painter);

    /// Windows with keys of their own call these first; true: the pen was on the chooser key.
    bool ChooserPenDown(Point at);
    bool ChooserPenUp(Point at);
    void OnPenDown(Point at) override { ChooserPenDown(at); }
    void OnPenUp(Point at) override { ChooserPenUp(at); }

  private:
    ModuleSite& site_;
    int category_;
    bool chooserPressed_ = false;
};

/// Makes a module's window; the frame's window owns it.
using ModuleFactory = std::unique_ptr<ModuleWnd> (*)(WindowBase& frame, ModuleSite& site, int category);

}  // namespace quorix
