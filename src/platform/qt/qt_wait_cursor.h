#pragma once

#include <QGuiApplication>

#include "platform/wait_cursor.h"

namespace quorix {

class QtWaitCursor : public WaitCursor {
  public:
    void Show() override { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    void Hide() override { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace quorix
