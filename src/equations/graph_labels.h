#pragma once

// The numbers beside the ticks of a picture, drawn with the same pen as the curves, so that no font is
// needed.

#include <string_view>
#include <vector>

#include "equations/graph_drawing.h"

namespace quorix {

/// Width of the strokes of labels in logical units.
inline constexpr double kLabelWidth = 0.9;

/// Strokes of a text of digits, "-" and "." whose upper left corner is `at`; other characters are blanks.
/// scale: pixels of a logical unit.
std::vector<GraphRun> TextStrokes(std::string_view text, GraphPoint at, double scale);

/// Labels "%.2lf" at whole units along the bottom and the left edge, so many units apart that they do not
/// touch. The one at the origin is left out.
std::vector<GraphRun> GraphLabels(const GraphView& view);

}  // namespace quorix
