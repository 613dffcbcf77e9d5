#pragma once

// The pen on the graph. Positions are pixels of the surface; they may lie outside while the pen is down.

#include "equations/graph_view.h"

namespace quorix {

/// What the window does after a step.
struct GraphEffect {
    bool repaints = false;
    /// The rest of the window is to show the centre of the view anew (message 4668).
    bool tellsParent = false;

    friend bool operator==(const GraphEffect&, const GraphEffect&) = default;
};

/// The tap box in the upper right corner that steps through the modes.
Rect GraphModeBox(const GraphView& view);

GraphEffect GraphPenDown(GraphView& view, Point pen);
GraphEffect GraphPenMove(GraphView& view, Point pen);
GraphEffect GraphPenUp(GraphView& view, Point pen);

}  // namespace quorix
