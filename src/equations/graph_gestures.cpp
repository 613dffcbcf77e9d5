#include "equations/graph_gestures.h"

#include <algorithm>

namespace quorix {
namespace {

Point PanOf(const GraphView& view) {
    return {view.panX, view.panY};
}

Point ScaleOf(const GraphView& view) {
    return {view.pixelsPerUnitX, view.pixelsPerUnitY};
}

void KeepPen(GraphView& view, Point pen) {
    view.lastPenX = pen.x;
    view.lastPenY = pen.y;
}

void StepMode(GraphView& view) {
    view.mode = (view.mode + 1) % GRAPH_MODE_COUNT;
    view.pendingUnitX = view.pixelsPerUnitX;
    view.pendingUnitY = view.pixelsPerUnitY;
}

GraphEffect ApplyPendingScale(GraphView& view) {
    const Point pending{view.pendingUnitX, view.pendingUnitY};
    const bool isNew = pending != ScaleOf(view);
    GraphMoveTo(view, PanOf(view), pending);
    return {.repaints = true, .tellsParent = isNew};
}

}  // namespace

Rect GraphModeBox(const GraphView& view) {
    return {view.surfaceWidth - view.modeBoxWidth, 0, view.surfaceWidth, view.modeBoxHeight};
}

GraphEffect GraphPenDown(GraphView& view, Point pen) {
    if (GraphModeBox(view).Contains(pen)) return {};
    KeepPen(view, pen);
    view.penDown = true;
    return {};
}

GraphEffect GraphPenMove(GraphView& view, Point pen) {
    if (!view.penDown || GraphModeBox(view).Contains(pen)) return {};
    const int dx = pen.x - view.lastPenX;
    const int dy = pen.y - view.lastPenY;
    const Point scale{view.pixelsPerUnitX + dx, view.pixelsPerUnitY - dy};
    switch (view.mode) {
        case GRAPH_MOVE:
            GraphMoveTo(view, {view.panX + dx, view.panY + dy}, ScaleOf(view));
            KeepPen(view, pen);
            break;
        case GRAPH_LIVE_SCALE:
            GraphMoveTo(view, PanOf(view), scale);
            KeepPen(view, pen);
            break;
        case GRAPH_DEFERRED_SCALE:
            view.pendingUnitX = std::clamp(scale.x, kSmallestUnit, kLargestUnit);
            view.pendingUnitY = std::clamp(scale.y, kSmallestUnit, kLargestUnit);
            break;
        default:
            view.crossX = pen.x;
            view.crossY = pen.y;
            break;
    }
    return {.repaints = true};
}

GraphEffect GraphPenUp(GraphView& view, Point pen) {
    view.penDown = false;
    if (GraphModeBox(view).Contains(pen)) {
        StepMode(view);
        return {.repaints = true};
    }
    if (view.mode == GRAPH_DEFERRED_SCALE) return ApplyPendingScale(view);
    return {.repaints = true, .tellsParent = true};
}

}  // namespace quorix
