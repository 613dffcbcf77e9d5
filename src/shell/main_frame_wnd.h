#pragma once

// The one top-level window: paints the body and the panels, loads the skin, and hands everything else to
// CMainFrame.

#include <QPointer>
#include <array>
#include <bitset>
#include <memory>

#include "frontends/hint_wnd.h"
#include "frontends/led_wnd.h"
#include "frontends/panel_painter.h"
#include "frontends/type_ahead_wnd.h"
#include "platform/clock.h"
#include "platform/help_viewer.h"
#include "platform/qt/accessible_cells.h"
#include "platform/qt/full_screen.h"
#include "platform/qt/html_window.h"
#include "platform/qt/qt_wait_cursor.h"
#include "platform/qt/view_settings.h"
#include "platform/qt/window_base.h"
#include "shell/colours.h"
#include "shell/list_box_wnd.h"
#include "shell/main_frame.h"
#include "shell/module_wnd.h"
#include "shell/skin.h"
#include "shell/tools_panel_wnd.h"

namespace quorix {

class MainFrameWnd : public WindowBase, public FrameHost, public ModuleSite, public CellSource {
  public:
    /// sound and helpViewer may be null; they outlive the window.
    explicit MainFrameWnd(const std::filesystem::path& programFolder, SoundPlayer* sound = nullptr,
                          HelpViewer* helpViewer = nullptr);
    ~MainFrameWnd() override;

    /// Reads preferences, skin and pictures and lays the window out. False when the skin cannot be read:
    /// start-up then ends; SkinPathTried names the file.
    bool Create();
    [[nodiscard]] std::filesystem::path SkinPathTried() const;
    /// Runs when the window has been closed and the state is saved: the program ends, whatever else is open.
    void SetClosed(std::function<void()> closed) { whenClosed_ = std::move(closed); }
    /// Ends the program from the message loop, saving the state.
    void Quit();
    /// Shows the window before all others.
    void Raise();
    [[nodiscard]] CMainFrame& Frame() override { return *frame_; }
    /// The live window of a module, or null.
    [[nodiscard]] ModuleWnd* Module(ModuleWindow window) const {
        return modules_[static_cast<std::size_t>(window)].get();
    }
    [[nodiscard]] ToolsPanelWnd& Chooser() { return *chooser_; }
    /// The open popup list, or null.
    [[nodiscard]] MorvaneListBoxWnd* Popup() const { return popup_; }

    void InvalidateAll() override;
    void InvalidateDisplay() override;
    void InvalidateCell(PanelCell cell) override;
    void CategoryChanged(int category) override;
    void OpenPopup(PopupId id, PanelCell at, const std::vector<std::u16string>& items) override;
    void ClosePopup() override;
    void ShowChooser(bool open) override;
    void RunTool(Tool tool) override;
    void ShowHint(const std::optional<FunctionHint>& hint) override;
    void NamesChanged() override;
    void ResultShown() override { led_->Announce(); }
    void ShowMissing(std::u16string_view name) override;
    void CreateModule(int category) override;
    void DestroyModule(ModuleWindow window) override;
    void ShowModule(ModuleWindow window, bool shown) override;
    std::intptr_t SendToModule(ModuleWindow window, int message, std::intptr_t first,
                               std::intptr_t second) override;
    void ReloadSkin() override;

    [[nodiscard]] const std::filesystem::path& Folder() const override { return folder_; }
    [[nodiscard]] const Skin& CurrentSkin() const override { return skin_; }
    [[nodiscard]] const SkinColours& Colours() const override { return colours_; }
    [[nodiscard]] ColorRef BodyColour() const override { return bodyColour_; }
    [[nodiscard]] PanelPainter& Panels() override {
        PreparePictures();
        return panels_;
    }
    [[nodiscard]] int AccessibleCellCount() const override { return kUpperCellCount + kLowerCellCount; }
    [[nodiscard]] QString AccessibleCellName(int index) const override;
    [[nodiscard]] QRect AccessibleCellRect(int index) const override;
    [[nodiscard]] bool AccessibleCellDown(int index) const override;
    void PressAccessibleCell(int index) override;

    void PlaySound(const std::filesystem::path& wav) override;
    void OpenPopupAt(PopupId id, const Rect& at, const std::vector<std::u16string>& items) override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnTimer(int id) override { frame_->OnTimer(id); }
    void OnPenDown(Point at) override { frame_->ButtonDown(at); }
    void OnPenMove(Point at) override { frame_->MouseMove(at); }
    void OnPenUp(Point at) override { frame_->ButtonUp(at); }
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Tab takes a name from the open list; nothing else here has the focus.
    bool focusNextPrevChild(bool /*next*/) override { return false; }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool DesktopKey(const QKeyEvent& event);
    bool EditKey(const QKeyEvent& event);
    [[nodiscard]] Rect ClientPixels() const;
    bool ChooserKeyPressed(const QKeyEvent& event);
    void PaintPanels(QPainter& painter, const Rect& dirty);
    struct MacroPadLabel {
        int cell;
        int labelOf;
        const char16_t* text;
    };
    [[nodiscard]] const MacroPadLabel* MacroLabelOf(PanelCell cell) const;
    void PaintLogo(QPainter& painter);
    void OpenPreferences();
    void OpenHelp();
    void OpenAbout();
    void ShowNotice(const QString& text);
    [[nodiscard]] PageGround Ground() const { return EntryOf(frame_->CurrentCategory()).ground; }
    /// False when the skin cannot be read; the window is laid out all the same.
    bool ApplyView();
    void LoadColours();
    void PreparePictures();
    void LayOut();
    void ToggleFullScreen();
    [[nodiscard]] double ZoomNow() const;

    std::filesystem::path folder_;
    SystemClock clock_;
    QtWaitCursor waitCursor_;
    ViewSettings view_;
    Skin skin_;
    SkinColours colours_;
    PanelPainter panels_;
    ColorRef bodyColour_ = kWhite;
    /// What the painter's pictures were loaded for; 0 and -1: not yet.
    double loadedDensity_ = 0;
    int loadedCategory_ = -1;
    SoundPlayer* sound_;
    HelpViewer* helpViewer_;
    std::unique_ptr<HtmlWindow> help_;
    std::unique_ptr<LedWnd> led_;
    std::unique_ptr<CMainFrame> frame_;
    std::array<std::unique_ptr<ModuleWnd>, kModuleWindowCount> modules_;
    std::unique_ptr<ToolsPanelWnd> chooser_;
    std::unique_ptr<HintWnd> hint_;
    std::unique_ptr<TypeAheadWnd> names_;
    QPointer<MorvaneListBoxWnd> popup_;
    /// There while the window fills the screen.
    std::unique_ptr<FullScreenGround> ground_;
    bool closed_ = false;
    /// By HardKey: pressed here and not released yet.
    std::bitset<kHardKeyCount> hardKeysDown_;
    std::function<void()> whenClosed_;
};

}  // namespace quorix
