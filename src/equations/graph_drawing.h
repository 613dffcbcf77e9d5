#pragma once

// What of a graph is drawn where, for whoever holds a pen. Evaluates nothing.

#include <string>
#include <vector>

#include "equations/graph_view.h"

namespace quorix {

/// Colour of axes and ticks.
inline constexpr ColorRef kGridColour = 0xC6C6C6;
/// Width of a curve in logical units; axes, ticks and cross-hair are 1 pixel wide.
inline constexpr double kCurveWidth = 1.25;

/// A place on the surface between pixels; whole numbers are the centres of pixels.
struct GraphPoint {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const GraphPoint&, const GraphPoint&) = default;
};

/// Points joined by lines, from left to right; at least two.
using GraphRun = std::vector<GraphPoint>;
/// The lines of a curve. Not joined are: samples further apart than ten steps; samples beyond 65535 pixels
/// from the axis, or that are no numbers; a turn with a jump that looks like a pole; samples with a pole
/// between them.
std::vector<GraphRun> GraphRuns(const GraphView& view, const GraphCurve& curve);

/// A line of 1 pixel, both ends included.
struct GraphLine {
    Point from;
    Point to;

    friend bool operator==(const GraphLine&, const GraphLine&) = default;
};
/// The axes that cross the surface, from edge to edge.
std::vector<GraphLine> GraphAxes(const GraphView& view);
/// A tick at each whole unit but the origin, on the bottom and the left edge, 3 logical units long; in
/// GRAPH_DEFERRED_SCALE by the pending scale.
std::vector<GraphLine> GraphTicks(const GraphView& view);

/// The cross-hair, shown in GRAPH_CROSS_HAIR alone.
struct GraphCross {
    std::vector<GraphLine> lines;
    /// "X=%.2lf" and "Y=%.2lf" with their upper left corners.
    std::string xText;
    std::string yText;
    Point xAt;
    Point yAt;
};
/// Without lines in the other modes.
GraphCross GraphCrossHair(const GraphView& view);

}  // namespace quorix
