#pragma once

class QWidget;

namespace quorix {

/// Shows what this program is, over `parent`, whose logical units are this many desktop points.
/// Returns at once.
void ShowAbout(QWidget* parent, double pixelsPerUnit);

}  // namespace quorix
