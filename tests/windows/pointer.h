#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace quorix::testing {

inline void SendMouse(QWidget& target, QEvent::Type type, QPointF at,
                      Qt::MouseButton button = Qt::LeftButton) {
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, target.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&target, &event);
}

inline void Tap(QWidget& target, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    SendMouse(target, QEvent::MouseButtonPress, at, button);
    SendMouse(target, QEvent::MouseButtonRelease, at, button);
}

}  // namespace quorix::testing
