#pragma once

// The display as a window: paints, and hands the pen on.

#include "frontends/clipboard_commands.h"
#include "frontends/led_painter.h"
#include "frontends/spoken_line_wnd.h"
#include "platform/qt/popup_menu.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/window_base.h"

namespace quorix {

/// Child id of the display in the frame.
inline constexpr int kLedWindowId = 1234;

class LedWnd : public WindowBase, public SpokenLine {
  public:
    explicit LedWnd(WindowBase* parent);

    /// The model outlives the window. holdInterval: milliseconds after which a held pen opens the context
    /// menu.
    void SetDisplay(CLedDisplay* display, int holdInterval);
    void SetFrameColours(const DisplayFrameColours& colours);
    /// Those of the context menu.
    void SetMenuColours(const MenuColours& colours) { menuColours_ = colours; }
    /// The file of the TeX button that suits the scale; the picture is read at the first paint.
    void SetTexButton(const std::filesystem::path& file);
    /// For "Copy as TeX", which is greyed without it.
    void SetTexConverter(TexConverter toTex) { toTex_ = std::move(toTex); }

    /// The cursor's bar in device pixels of the parent, brought up to date with the line: where hints and
    /// lists open.
    [[nodiscard]] Rect CursorRect();
    /// The copy and paste shortcuts of the frame (CopyShortcut, PasteShortcut).
    void Copy(bool alwaysLine);
    void PasteText();
    /// Tells assistive programs of the line and the result as they are now.
    void Announce();

    [[nodiscard]] QString SpokenText() const override;
    [[nodiscard]] bool IsEditable() const override { return true; }

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
    void OnTimer(int id) override;
    void OnPenDown(Point at) override;
    void OnPenMove(Point at) override;
    void OnPenUp(Point at) override;
    /// The middle key pastes.
    void mousePressEvent(QMouseEvent* event) override;
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
    MenuColours menuColours_;
    QtClipboard clipboard_;
    TexConverter toTex_;
};

}  // namespace quorix
