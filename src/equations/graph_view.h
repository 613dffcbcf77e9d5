#pragma once

// The graph on show: its curves, scales and origin. Nothing here paints; sampling happens when curves are
// added and when the view moves, never on a repaint.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "equations/curve_sampling.h"
#include "platform/color.h"
#include "platform/geometry.h"

namespace quorix {

enum GraphModeId : std::int32_t {
    GRAPH_MOVE = 0,
    GRAPH_LIVE_SCALE = 1,
    GRAPH_DEFERRED_SCALE = 2,
    GRAPH_CROSS_HAIR = 3,
    GRAPH_MODE_COUNT = 4,
};

inline constexpr std::int32_t kInitialUnitX = 20;
inline constexpr std::int32_t kInitialUnitY = 10;
/// Bounds that gestures keep the scales in.
inline constexpr std::int32_t kSmallestUnit = 8;
inline constexpr std::int32_t kLargestUnit = 96;

/// Coordinates are pixels of the drawing surface from its upper left corner.
struct GraphView {
    std::int32_t pixelsPerUnitX = kInitialUnitX;
    std::int32_t pixelsPerUnitY = kInitialUnitY;
    /// By how much the origin has been moved.
    std::int32_t panX = 0;
    std::int32_t panY = 0;
    /// The origin before it is moved.
    std::int32_t originX = 0;
    std::int32_t originY = 0;
    std::int32_t surfaceWidth = 0;
    std::int32_t surfaceHeight = 0;
    /// 1, or 2 on a VGA screen.
    std::int32_t screenScale = 1;
    std::int32_t modeBoxWidth = 0;
    std::int32_t modeBoxHeight = 0;
    std::int32_t mode = GRAPH_MOVE;
    std::int32_t crossX = 0;
    std::int32_t crossY = 0;
    /// The range of x on the surface; samples outside are not kept.
    double xMin = 0.0;
    double xMax = 0.0;
    std::vector<GraphCurve> curves;
    /// Pen position at the last step of a gesture.
    std::int32_t lastPenX = 0;
    std::int32_t lastPenY = 0;
    /// Scale that the ticks show in GRAPH_DEFERRED_SCALE.
    std::int32_t pendingUnitX = kInitialUnitX;
    std::int32_t pendingUnitY = kInitialUnitY;
    bool penDown = false;

    /// Pixel of the origin.
    [[nodiscard]] std::int32_t AxisX() const { return panX + originX; }
    [[nodiscard]] std::int32_t AxisY() const { return panY + originY; }
    [[nodiscard]] double XOf(double pixel) const { return (pixel - AxisX()) / pixelsPerUnitX; }
    [[nodiscard]] double YOf(double pixel) const { return (AxisY() - pixel) / pixelsPerUnitY; }
};

/// Sets the drawing size in pixels and the screen scale, puts the unmoved origin and the cross-hair in the
/// middle, and samples all curves anew.
void GraphSetSurface(GraphView& view, std::int32_t width, std::int32_t height, std::int32_t screenScale);

/// Appends a curve and samples it over the surface. text: engine notation; an empty one is no curve.
void GraphAddCurve(GraphView& view, std::u16string_view text, std::u16string_view variableName,
                   ColorRef colour);
void GraphClear(GraphView& view);
/// The initial scales and origin, and all curves sampled again. Skipped when nothing is moved and both scales
/// are 20.
void GraphResetView(GraphView& view);
/// Puts the point (x, y), each truncated to an integer, in the middle, and samples all curves anew. Points
/// beyond ten million are taken as ten million, what is not a number as 0.
void GraphSetCentre(GraphView& view, double x, double y);
/// Ignored when `index` is out of range.
void GraphSetCurveColour(GraphView& view, std::size_t index, ColorRef colour);
std::int32_t GraphMode(const GraphView& view);

struct GraphCentre {
    double x;
    double y;
};
/// Middles of the visible ranges.
GraphCentre GraphCentreOfView(const GraphView& view);

/// What a centre field shows: "%.2lf".
std::string GraphFieldText(double value);
/// What a centre field holds; nothing from 7 characters on, 0 for what is no number.
std::optional<double> GraphFieldValue(std::string_view text);

/// Sets the scales and the moved origin to what a gesture asks for, within bounds, then trims the curves to
/// the range of x that is visible now and samples the strips uncovered.
void GraphMoveTo(GraphView& view, Point pan, Point pixelsPerUnit);

}  // namespace quorix
