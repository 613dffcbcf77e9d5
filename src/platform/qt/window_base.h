#pragma once

// The base of every window of ours.

#include <QImage>
#include <QRect>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <map>

#include "platform/geometry.h"
#include "platform/timers.h"

namespace quorix {

/// A window with a table of message handlers, a child id, timers by number and a back buffer.
///
/// Coordinates are device pixels of the device screen: logical units times Scale(). `Zoom` widens that screen
/// on the desktop; Qt paints at the zoom times the desktop's own pixel ratio, so texts stay sharp.
class WindowBase : public QWidget, public Timers {
  public:
    using MessageParam = std::intptr_t;
    using MessageHandler = std::function<MessageParam(MessageParam first, MessageParam second)>;

    /// A child window takes scale and zoom of its parent.
    explicit WindowBase(WindowBase* parent = nullptr, int childId = 0);
    ~WindowBase() override;

    [[nodiscard]] int ChildId() const { return childId_; }
    /// The child window with this id among the direct children, or null.
    [[nodiscard]] WindowBase* ChildWindow(int childId) const;

    /// Calls the handler of a message and returns what it gives; 0 when the window has none for it. The
    /// handler runs before this returns.
    MessageParam SendMessage(int message, MessageParam first = 0, MessageParam second = 0);

    /// Device pixels for one logical unit, 1 or 2. Setting it repaints the window and its children.
    [[nodiscard]] int Scale() const { return scale_; }
    void SetScale(int scale);
    /// Desktop points for one device pixel, above 0. Setting it lays the window and its children out anew.
    [[nodiscard]] double Zoom() const { return zoom_; }
    void SetZoom(double zoom);
    /// Pixels of the desktop for one device pixel: the zoom times the desktop's own ratio, which changes when
    /// the window moves to another desktop screen. Whoever keeps pictures asks for it when painting.
    [[nodiscard]] double Density() const { return zoom_ * devicePixelRatioF(); }

    /// Place within the parent (for a top-level window: size alone), in device pixels.
    void SetPlace(const Rect& devicePixels);
    [[nodiscard]] const Rect& Place() const { return place_; }

    /// A rectangle of device pixels in the window's own coordinates, desktop points.
    [[nodiscard]] QRect OnDesktop(const Rect& devicePixels) const;

    /// Marks a part to be painted anew, in device pixels.
    void Invalidate(const Rect& devicePixels);
    void InvalidateAll();

    /// Timers of this window; they end with it.
    void Set(int id, int milliseconds) override;
    void Kill(int id) override;

  protected:
    /// A main window keeps its size within a foreign one, too, which decides where it stands.
    void StandAlone() { standsAlone_ = true; }

    /// Enters a message into the window's table; a later handler replaces an earlier one.
    void Handle(int message, MessageHandler handler);

    /// Paints in device pixels; `dirty` is the part that is asked for, and the clip.
    virtual void Paint(QPainter& painter, const Rect& dirty) = 0;
    virtual void OnTimer(int /*id*/) {}
    /// The pen, in device pixels. A double tap is a press. Moves come while it is down.
    virtual void OnPenDown(Point /*at*/) {}
    virtual void OnPenMove(Point /*at*/) {}
    virtual void OnPenUp(Point /*at*/) {}
    /// After a change of scale.
    virtual void OnScaleChanged() {}

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    void ApplyPlace();
    void PrepareBuffer();
    [[nodiscard]] Point PenPoint(const QMouseEvent& event) const;

    int childId_;
    bool standsAlone_ = false;
    int scale_ = 2;
    double zoom_ = 1.0;
    Rect place_;
    QImage buffer_;
    Rect dirty_;  ///< Part of the buffer that is out of date; empty when none is.
    std::map<int, MessageHandler> handlers_;
    std::map<int, int> timers_;  ///< Our number to Qt's.
};

}  // namespace quorix
