#pragma once

#include "shell/module_wnd.h"

namespace quorix {

/// The page of a category whose window does not exist yet: it says so, and leads back to the chooser.
class EmptyPageWnd : public ModuleWnd {
  public:
    using ModuleWnd::ModuleWnd;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override;
};

}  // namespace quorix
