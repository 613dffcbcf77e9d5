#include "platform/qt/full_screen.h"

#include <QCloseEvent>
#include <QScreen>
#include <algorithm>

namespace quorix {

FullScreenGround::FullScreenGround(const QColor& colour, std::function<void()> left)
    : left_(std::move(left)) {
    QPalette ground = palette();
    ground.setColor(QPalette::Window, colour);
    setPalette(ground);
    setAutoFillBackground(true);
}

void FullScreenGround::Take(QWidget& window) {
    setWindowTitle(window.windowTitle());
    setGeometry(window.screen()->geometry());
    window_ = &window;
    window.setParent(this);
    window.installEventFilter(this);
    showFullScreen();
    window.show();
    Centre();
    window.setFocus();
}

void FullScreenGround::GiveBack(QWidget& window) {
    window.removeEventFilter(this);
    window_ = nullptr;
    hide();
    window.setParent(nullptr);
    window.show();
    window.setFocus();
}

double FullScreenGround::RoomFor(QSize size) const {
    const QSize room = screen()->geometry().size();
    return std::min(room.width() / static_cast<double>(size.width()),
                    room.height() / static_cast<double>(size.height()));
}

void FullScreenGround::Centre() {
    if (window_ != nullptr) {
        window_->move((width() - window_->width()) / 2, (height() - window_->height()) / 2);
    }
}

void FullScreenGround::resizeEvent(QResizeEvent* /*event*/) {
    Centre();
}

bool FullScreenGround::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Resize) {
        Centre();
    }
    return QWidget::eventFilter(watched, event);
}

void FullScreenGround::closeEvent(QCloseEvent* event) {
    event->ignore();
    left_();
}

}  // namespace quorix
