#pragma once

#include <QMenu>

namespace quorix {

/// A list that opens over a window: shipped face at the window's size, on the light sheet. It deletes itself
/// when it closes. pixelsPerUnit: desktop points for one logical unit.
QMenu* NewPopupMenu(QWidget* parent, double pixelsPerUnit);

}  // namespace quorix
