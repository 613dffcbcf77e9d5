#include "platform/qt/window_base.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/conversions.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

bool IsEmpty(const Rect& rect) {
    return rect.Width() <= 0 || rect.Height() <= 0;
}

Rect United(const Rect& a, const Rect& b) {
    if (IsEmpty(a)) {
        return b;
    }
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

Rect Common(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

int Zoomed(int pixels, double zoom) {
    return static_cast<int>(std::lround(pixels * zoom));
}

/// The desktop points that a rectangle of device pixels touches.
QRect Outward(const Rect& rect, double zoom) {
    return QRectF(rect.left * zoom, rect.top * zoom, rect.Width() * zoom, rect.Height() * zoom)
        .toAlignedRect();
}

}  // namespace

WindowBase::WindowBase(WindowBase* parent, int childId) : QWidget(parent), childId_(childId) {
    if (parent != nullptr) {
        scale_ = parent->scale_;
        zoom_ = parent->zoom_;
    }
    setAttribute(Qt::WA_OpaquePaintEvent);
}

WindowBase::~WindowBase() = default;

WindowBase* WindowBase::ChildWindow(int childId) const {
    for (QObject* child : children()) {
        auto* const window = dynamic_cast<WindowBase*>(child);
        if (window != nullptr && window->childId_ == childId) {
            return window;
        }
    }
    return nullptr;
}

void WindowBase::Handle(int message, MessageHandler handler) {
    handlers_[message] = std::move(handler);
}

WindowBase::MessageParam WindowBase::SendMessage(int message, MessageParam first, MessageParam second) {
    const auto it = handlers_.find(message);
    if (it == handlers_.end()) {
        return 0;
    }
    // A copy: the handler may change the table.
    const MessageHandler handler = it->second;
    return handler(first, second);
}

void WindowBase::SetScale(int scale) {
    scale_ = scale;
    for (QObject* child : children()) {
        if (auto* const window = dynamic_cast<WindowBase*>(child)) {
            window->SetScale(scale);
        }
    }
    OnScaleChanged();
    InvalidateAll();
}

void WindowBase::SetZoom(double zoom) {
    zoom_ = zoom;
    for (QObject* child : children()) {
        if (auto* const window = dynamic_cast<WindowBase*>(child)) {
            window->SetZoom(zoom);
        }
    }
    ApplyPlace();
    InvalidateAll();
}

void WindowBase::SetPlace(const Rect& devicePixels) {
    place_ = devicePixels;
    ApplyPlace();
}

void WindowBase::ApplyPlace() {
    if (IsEmpty(place_)) {
        return;
    }
    if (isWindow() || standsAlone_) {
        setFixedSize(Zoomed(place_.Width(), zoom_), Zoomed(place_.Height(), zoom_));
        return;
    }
    // Edges are rounded, not sizes, so that neighbours keep touching at every zoom.
    const int left = Zoomed(place_.left, zoom_);
    const int top = Zoomed(place_.top, zoom_);
    setGeometry(left, top, Zoomed(place_.right, zoom_) - left, Zoomed(place_.bottom, zoom_) - top);
}

QRect WindowBase::OnDesktop(const Rect& devicePixels) const {
    return Outward(devicePixels, zoom_);
}

void WindowBase::Invalidate(const Rect& devicePixels) {
    if (IsEmpty(devicePixels)) {
        return;
    }
    dirty_ = United(dirty_, devicePixels);
    update(Outward(devicePixels, zoom_));
}

void WindowBase::InvalidateAll() {
    buffer_ = {};
    update();
}

void WindowBase::PrepareBuffer() {
    const double ratio = devicePixelRatioF();
    const QSize size(static_cast<int>(std::ceil(width() * ratio)),
                     static_cast<int>(std::ceil(height() * ratio)));
    const Rect whole{0, 0, static_cast<int>(std::ceil(width() / zoom_)),
                     static_cast<int>(std::ceil(height() / zoom_))};
    if (buffer_.size() != size || buffer_.devicePixelRatio() != ratio) {
        buffer_ = QImage(size, QImage::Format_RGB32);
        buffer_.setDevicePixelRatio(ratio);
        buffer_.fill(Qt::white);
        dirty_ = whole;
    }
    const Rect dirty = Common(dirty_, whole);
    dirty_ = {};
    if (IsEmpty(dirty)) {
        return;
    }
    QPainter painter(&buffer_);
    painter.scale(zoom_, zoom_);
    painter.setClipRect(ToQRect(dirty));
    Paint(painter, dirty);
}

void WindowBase::paintEvent(QPaintEvent* event) {
    if (size().isEmpty()) {
        return;
    }
    PrepareBuffer();
    QPainter painter(this);
    const double ratio = buffer_.devicePixelRatio();
    const QRect part = event->rect();
    const QRect source =
        QRectF(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio)
            .toAlignedRect();
    DrawPicture(painter, QPointF(source.topLeft()) / ratio, buffer_, source);
}

Point WindowBase::PenPoint(const QMouseEvent& event) const {
    const QPointF at = event.position() / zoom_;
    return {static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
}

void WindowBase::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        OnPenDown(PenPoint(*event));
    }
}

void WindowBase::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void WindowBase::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        OnPenMove(PenPoint(*event));
    }
}

void WindowBase::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        OnPenUp(PenPoint(*event));
    }
}

void WindowBase::Set(int id, int milliseconds) {
    Kill(id);
    timers_[id] = startTimer(milliseconds, Qt::PreciseTimer);
}

void WindowBase::Kill(int id) {
    if (const auto it = timers_.find(id); it != timers_.end()) {
        killTimer(it->second);
        timers_.erase(it);
    }
}

void WindowBase::timerEvent(QTimerEvent* event) {
    const auto it = std::find_if(timers_.begin(), timers_.end(),
                                 [&](const auto& timer) { return timer.second == event->timerId(); });
    if (it == timers_.end()) {
        QWidget::timerEvent(event);
        return;
    }
    OnTimer(it->first);
}

}  // namespace quorix
