#pragma once

class QWidget;

namespace quorix {

/// Shows what this program is, over `parent`. Returns at once.
void ShowAbout(QWidget* parent);

}  // namespace quorix
