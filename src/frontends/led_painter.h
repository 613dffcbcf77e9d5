#pragma once

// Draws the calculator's display. All coordinates are device pixels of the display window: logical units
// times the scale.

#include <QFont>
#include <QImage>
#include <array>
#include <string_view>
#include <vector>

#include "frontends/display_layout.h"
#include "frontends/led_display.h"
#include "frontends/line_painter.h"
#include "platform/color.h"
#include "platform/dense_picture.h"

class QPainter;

namespace quorix {

/// The three frame lines, from the outermost; one device pixel each.
using DisplayFrameColours = std::array<ColorRef, 3>;

class LedPainter {
  public:
    /// The TeX button: the up look at left, the down look at right. Empty: no button is drawn.
    void SetTexButton(const DensePicture& picture);

    /// Width of each token of a line in device pixels, for CLedDisplay::UpdateView.
    std::vector<int> MeasureTokens(std::u16string_view line, std::u16string_view tokenLengths, int scale) {
        return line_.MeasureTokens(line, tokenLengths, scale);
    }
    /// The cursor's bar in device pixels of the display. Brings the view of the line up to date first.
    Rect CursorRect(CLedDisplay& display, int scale);

    /// Draws the whole display into `size` (a rectangle at 0, 0). Brings the view of the line up to date
    /// first.
    void Paint(QPainter& painter, const Rect& size, CLedDisplay& display, const DisplayFrameColours& frame,
               int scale);

  private:
    void PaintStatus(QPainter& painter, const CLedDisplay& display, int scale) const;
    void PaintLine(QPainter& painter, const CLedDisplay& display, const std::vector<int>& widths, int scale);
    void PaintResult(QPainter& painter, const CLedDisplay& display, int scale) const;
    void PaintTexButton(QPainter& painter, const CLedDisplay& display, int scale) const;
    std::vector<int> UpdateView(CLedDisplay& display, int scale);
    static LinePlace PlaceOfLine(int scale);

    QImage texButton_;
    LinePainter line_{{.em = 17, .weight = kMediumWeight}};
};

}  // namespace quorix
