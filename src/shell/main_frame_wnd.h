#pragma once

// The one top-level window: paints the body and the panels, loads the skin, and hands everything else to
// CMainFrame.

#include <memory>

#include "frontends/led_wnd.h"
#include "frontends/panel_painter.h"
#include "platform/clock.h"
#include "platform/qt/qt_wait_cursor.h"
#include "platform/qt/view_settings.h"
#include "platform/qt/window_base.h"
#include "shell/colours.h"
#include "shell/main_frame.h"
#include "shell/skin.h"

namespace quorix {

class MainFrameWnd : public WindowBase, public FrameHost {
  public:
    explicit MainFrameWnd(const std::filesystem::path& programFolder);
    ~MainFrameWnd() override;

    /// Reads preferences, skin and pictures and lays the window out. False when the skin cannot be read:
    /// start-up then ends; SkinPathTried names the file.
    bool Create();
    [[nodiscard]] std::filesystem::path SkinPathTried() const;
    [[nodiscard]] CMainFrame& Frame() { return *frame_; }

    void InvalidateAll() override;
    void InvalidateDisplay() override;
    void InvalidateCell(PanelCell cell) override;
    void CategoryChanged(int category) override;
    void OpenPopup(PopupId id, PanelCell at, std::vector<std::u16string_view> items) override;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnTimer(int id) override { frame_->OnTimer(id); }
    void OnPenDown(Point at) override { frame_->ButtonDown(at); }
    void OnPenMove(Point at) override { frame_->MouseMove(at); }
    void OnPenUp(Point at) override { frame_->ButtonUp(at); }
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    bool DesktopKey(const QKeyEvent& event);
    /// False when the skin cannot be read; the window is laid out all the same.
    bool ApplyView();
    void LoadColours();
    void PreparePictures();
    void LayOut();

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
    std::unique_ptr<LedWnd> led_;
    std::unique_ptr<CMainFrame> frame_;
    bool closed_ = false;
};

}  // namespace quorix
