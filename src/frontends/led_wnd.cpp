#include "frontends/led_wnd.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <cstdlib>

#include "frontends/context_menu.h"
#include "platform/qt/conversions.h"

namespace quorix {

namespace {

/// Of this window: a pen held still on the text row.
constexpr int kGestureTimer = 1118;
/// A pen that strays farther than this, in device pixels, is no longer held still.
constexpr int kStillRadius = 6;

}  // namespace

LedWnd::LedWnd(WindowBase* parent) : WindowBase(parent, kLedWindowId) {
    MakeSpokenLinesAccessible();
    setAccessibleName(QStringLiteral("display"));
}

void LedWnd::SetDisplay(CLedDisplay* display, int holdInterval) {
    display_ = display;
    holdInterval_ = holdInterval;
    InvalidateAll();
}

void LedWnd::SetFrameColours(const DisplayFrameColours& colours) {
    frame_ = colours;
    InvalidateAll();
}

void LedWnd::SetTexButton(const std::filesystem::path& file) {
    texButton_ = file;
    texButtonDensity_ = 0;
    InvalidateAll();
}

void LedWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    if (display_ != nullptr) {
        if (texButtonDensity_ != Density()) {
            texButtonDensity_ = Density();
            painter_.SetTexButton(LoadDense(texButton_, Scale(), Density()));
        }
        painter_.Paint(painter, {0, 0, Place().Width(), Place().Height()}, *display_, frame_, Scale());
    }
}

void LedWnd::OnTimer(int id) {
    if (display_ == nullptr) {
        return;
    }
    if (id != kGestureTimer) {
        display_->OnTimer(id);
        return;
    }
    Kill(kGestureTimer);
    OpenContextMenu(QCursor::pos());
}

void LedWnd::OnPenDown(Point at) {
    if (display_ == nullptr) {
        return;
    }
    pressedAt_ = at;
    menuOpened_ = false;
    if (display_->GestureAllowedAt(at, Scale())) {
        Set(kGestureTimer, holdInterval_);
    }
    display_->PenDown(at, Scale());
}

void LedWnd::OnPenMove(Point at) {
    if (std::abs(at.x - pressedAt_.x) > kStillRadius || std::abs(at.y - pressedAt_.y) > kStillRadius) {
        Kill(kGestureTimer);
    }
}

void LedWnd::OnPenUp(Point at) {
    Kill(kGestureTimer);
    if (display_ != nullptr && !menuOpened_) {
        display_->PenUp(at, Scale());
    }
}

Rect LedWnd::CursorRect() {
    if (display_ == nullptr) {
        return {};
    }
    const Rect bar = painter_.CursorRect(*display_, Scale());
    return {bar.left + Place().left, bar.top + Place().top, bar.right + Place().left,
            bar.bottom + Place().top};
}

void LedWnd::Copy(bool alwaysLine) {
    if (display_ != nullptr) {
        CopyShortcut(*display_, clipboard_, alwaysLine);
    }
}

void LedWnd::PasteText() {
    if (display_ != nullptr) {
        PasteShortcut(*display_, clipboard_);
    }
}

QString LedWnd::SpokenText() const {
    if (display_ == nullptr) {
        return {};
    }
    const QString line = PaintedText(display_->GetLine());
    return display_->ShowsEquals() ? line + QStringLiteral(" = ") + PaintedText(display_->GetResultText())
                                   : line;
}

void LedWnd::Announce() {
    AnnounceText(*this, SpokenText());
}

void LedWnd::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        QtClipboard selection = QtClipboard::Selection();
        if (display_ != nullptr && QGuiApplication::clipboard()->supportsSelection() && selection.HasText()) {
            PasteShortcut(*display_, selection);
        } else {
            PasteText();
        }
    } else {
        WindowBase::mousePressEvent(event);
    }
}

void LedWnd::contextMenuEvent(QContextMenuEvent* event) {
    OpenContextMenu(event->globalPos());
}

void LedWnd::OpenContextMenu(QPoint globalPosition) {
    if (display_ == nullptr || !display_->AllowsGesture()) {
        return;
    }
    menuOpened_ = true;
    QMenu* const menu = NewPopupMenu(this, Scale() * Zoom(), menuColours_);
    for (const ContextMenuItem& item : ContextMenuOf(*display_, clipboard_, toTex_)) {
        QAction* const action = menu->addAction(ToQString(item.text));
        action->setEnabled(item.enabled);
        connect(action, &QAction::triggered, this,
                [this, id = item.id] { RunContextMenu(id, *display_, clipboard_, toTex_); });
    }
    menu->popup(globalPosition);
}

}  // namespace quorix
