#pragma once

#include <cstddef>

namespace quorix {

struct GraphCurve;

/// Looks for poles about the samples [from, to) at which the curve turns round, and marks the segments that
/// hold them. A pole that the drawing rule finds on its own (GraphTurn) is not looked for.
void MarkPoles(GraphCurve& curve, std::size_t from, std::size_t to);

/// What a segment is after the segment before it.
enum class GraphTurn {
    none,        ///< the curve goes on in the direction it had
    extremum,    ///< it turns round, in a way that is drawn
    suppressed,  ///< it turns round with a jump that looks like a pole, which is not drawn
};
/// slope: the difference of ordinates before. A jump above 32 times that difference, or between ordinates of
/// opposite signs, is suppressed.
GraphTurn TurnOf(double slope, double before, double after);

}  // namespace quorix
