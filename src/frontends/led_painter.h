#pragma once

// Draws the calculator's display. All coordinates are device pixels of the display window: logical units
// times the scale.

#include <QFont>
#include <QImage>
#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "frontends/display_layout.h"
#include "frontends/led_display.h"
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
    std::vector<int> MeasureTokens(std::u16string_view line, std::u16string_view tokenLengths, int scale);

    /// Draws the whole display into `size` (a rectangle at 0, 0). Brings the view of the line up to date
    /// first.
    void Paint(QPainter& painter, const Rect& size, CLedDisplay& display, const DisplayFrameColours& frame,
               int scale);

  private:
    void PaintStatus(QPainter& painter, const CLedDisplay& display, int scale) const;
    void PaintLine(QPainter& painter, const CLedDisplay& display, const std::vector<int>& widths, int scale);
    void PaintResult(QPainter& painter, const CLedDisplay& display, int scale) const;
    void PaintTexButton(QPainter& painter, const CLedDisplay& display, int scale) const;
    double AdvanceOf(char16_t sign, int scale);

    QImage texButton_;
    /// Advances of the text row's signs at a scale, measured once.
    std::map<char16_t, double> advances_;
    int advancesScale_ = 0;
};

}  // namespace quorix
