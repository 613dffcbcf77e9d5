#pragma once

// Painted parts of a window as buttons for assistive programs: a key without a window of its own has a name,
// a place and can be pressed.

#include <QRect>
#include <QString>

class QWidget;

namespace quorix {

/// A window with painted parts. Indexes run from 0; a part with an empty name is not there at the moment.
class CellSource {
  public:
    virtual ~CellSource() = default;
    [[nodiscard]] virtual int AccessibleCellCount() const = 0;
    [[nodiscard]] virtual QString AccessibleCellName(int index) const = 0;
    /// In the window's own coordinates, desktop points.
    [[nodiscard]] virtual QRect AccessibleCellRect(int index) const = 0;
    [[nodiscard]] virtual bool AccessibleCellDown(int /*index*/) const { return false; }
    virtual void PressAccessibleCell(int index) = 0;
};

/// Makes windows that are CellSource accessible with their parts behind their child windows; once is enough,
/// more does no harm. Call it before the window gets a name or title: Qt tells assistive programs of that,
/// and keeps what it then finds.
void MakeCellsAccessible();

/// Presses the part of this name; false when there is none.
bool PressCellNamed(CellSource& source, const QString& name);

}  // namespace quorix
