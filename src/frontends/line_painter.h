#pragma once

// Draws the tokens of one expression line and their cursor: the text row of the display and of the
// expression boxes.

#include <map>
#include <string_view>
#include <vector>

#include "frontends/display_layout.h"
#include "frontends/token_line.h"
#include "platform/qt/fonts.h"

class QPainter;
class QString;

namespace quorix {

/// Text as it is painted: the separator of number texts has the glyph of a comma.
QString PaintedText(std::u16string_view text);

/// Where a line stands; all in device pixels.
struct LinePlace {
    Rect row;      ///< The clip. The cursor stands at its foot.
    int left = 0;  ///< Of the first visible token.
    double baseline = 0;
    int endCursorWidth = 0;  ///< Of the cursor behind the last token.
};

class LinePainter {
  public:
    explicit LinePainter(const TextFont& font) : font_(font) {}

    /// Width of each token in device pixels, for the editor's view. Measured once for each sign and scale.
    std::vector<int> MeasureTokens(std::u16string_view line, std::u16string_view tokenLengths, int scale);

    /// Draws the tokens in view; the view is up to date.
    void Paint(QPainter& painter, const TokenLine& line, const std::vector<int>& widths,
               const DisplayColours& colours, const LinePlace& place, int scale);

    /// The bar of the cursor at the foot of the row; of width 0 when it is out of view.
    static Rect CursorRect(const TokenLine& line, const std::vector<int>& widths, const LinePlace& place,
                           int scale);

  private:
    double AdvanceOf(char16_t sign, int scale);

    TextFont font_;
    std::map<char16_t, double> advances_;
    int advancesScale_ = 0;
};

}  // namespace quorix
