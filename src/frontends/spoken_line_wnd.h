#pragma once

// What assistive programs are told of a window that shows a line.

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace quorix {

/// A window with a text that can be spoken. The window's accessible name says what it is.
class SpokenLine {
  public:
    virtual ~SpokenLine() = default;
    [[nodiscard]] virtual QString SpokenText() const = 0;
    [[nodiscard]] virtual bool IsEditable() const = 0;
};

/// Makes windows that are SpokenLine an accessible text; once is enough, more does no harm. Call it before
/// the window gets a name or title, as MakeCellsAccessible.
void MakeSpokenLinesAccessible();
/// The text of the window has changed.
void AnnounceText(QWidget& window, const QString& text);

}  // namespace quorix
