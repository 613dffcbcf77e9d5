#include "equations/graph_drawing.h"

#include <cmath>

#include "equations/curve_poles.h"

namespace quorix {
namespace {

// Farther from the axis than this (pixels) nothing is drawn.
constexpr double kFarthestPixel = 65535;
constexpr double kSlopeAtStart = 1.0;
// Logical units.
constexpr std::int32_t kTickLength = 3;
constexpr Point kCrossTextAt{10, 5};
constexpr std::int32_t kCrossLineHeight = 15;

/// Collects the runs of one curve.
class RunBuilder {
  public:
    RunBuilder(const GraphView& view, const GraphCurve& curve) : view_(view), curve_(curve) {}

    std::vector<GraphRun> Build() {
        const auto count = static_cast<std::size_t>(curve_.pointCount);
        if (count == 0) return {};
        double px = view_.AxisX() + curve_.xValues[0] * view_.pixelsPerUnitX;
        GraphPoint before{px, RowOf(0)};
        double slope = kSlopeAtStart;
        for (std::size_t i = 1; i < count; ++i) {
            const double distance = curve_.xValues[i] - curve_.xValues[i - 1];
            px += distance * view_.pixelsPerUnitX;
            const GraphPoint at{px, RowOf(i)};
            if (IsJoined(i, slope)) {
                Join(before, at);
            } else {
                isOpen_ = false;
            }
            slope = std::fabs(distance) > kHoleWidth ? kSlopeAtStart : Difference(i);
            before = at;
        }
        return std::move(runs_);
    }

  private:
    [[nodiscard]] double Difference(std::size_t i) const { return curve_.yValues[i] - curve_.yValues[i - 1]; }
    [[nodiscard]] double RowOf(std::size_t i) const {
        return view_.AxisY() - curve_.yValues[i] * view_.pixelsPerUnitY;
    }
    [[nodiscard]] bool IsNear(std::size_t i) const {
        return std::fabs(curve_.yValues[i] * view_.pixelsPerUnitY) <= kFarthestPixel;
    }

    [[nodiscard]] bool IsJoined(std::size_t i, double slope) const {
        const double before = curve_.yValues[i - 1];
        const double after = curve_.yValues[i];
        return std::fabs(curve_.xValues[i] - curve_.xValues[i - 1]) <= kHoleWidth && IsNear(i - 1) &&
               IsNear(i) && !curve_.isBehindPole[i] && TurnOf(slope, before, after) != GraphTurn::suppressed;
    }

    void Join(const GraphPoint& from, const GraphPoint& to) {
        if (!isOpen_) runs_.push_back({from});
        runs_.back().push_back(to);
        isOpen_ = true;
    }

    const GraphView& view_;
    const GraphCurve& curve_;
    std::vector<GraphRun> runs_;
    bool isOpen_ = false;
};

std::string CrossText(const char* name, double value) {
    return name + GraphFieldText(value);
}

// Pixels of the whole units on [0, size), without the origin itself.
template <class Add>
void ForEachTick(std::int32_t origin, std::int32_t spacing, std::int32_t size, const Add& add) {
    const std::int32_t offset = (origin % spacing + spacing) % spacing;
    for (std::int32_t at = offset; at < size; at += spacing) {
        if (at != origin) add(at);
    }
}

}  // namespace

std::vector<GraphRun> GraphRuns(const GraphView& view, const GraphCurve& curve) {
    return RunBuilder(view, curve).Build();
}

std::vector<GraphLine> GraphAxes(const GraphView& view) {
    std::vector<GraphLine> lines;
    const std::int32_t x = view.AxisX();
    const std::int32_t y = view.AxisY();
    if (y >= 0 && y < view.surfaceHeight) lines.push_back({{0, y}, {view.surfaceWidth - 1, y}});
    if (x >= 0 && x < view.surfaceWidth) lines.push_back({{x, 0}, {x, view.surfaceHeight - 1}});
    return lines;
}

std::vector<GraphLine> GraphTicks(const GraphView& view) {
    const bool isPending = view.mode == GRAPH_DEFERRED_SCALE;
    const std::int32_t spacingX = isPending ? view.pendingUnitX : view.pixelsPerUnitX;
    const std::int32_t spacingY = isPending ? view.pendingUnitY : view.pixelsPerUnitY;
    const std::int32_t length = kTickLength * view.screenScale;
    std::vector<GraphLine> lines;
    ForEachTick(view.AxisX(), spacingX, view.surfaceWidth, [&](std::int32_t x) {
        lines.push_back({{x, view.surfaceHeight - length}, {x, view.surfaceHeight - 1}});
    });
    ForEachTick(view.AxisY(), spacingY, view.surfaceHeight, [&](std::int32_t y) {
        lines.push_back({{0, y}, {length - 1, y}});
    });
    return lines;
}

GraphCross GraphCrossHair(const GraphView& view) {
    if (view.mode != GRAPH_CROSS_HAIR) return {};
    GraphCross cross;
    cross.lines = {{{view.crossX, 0}, {view.crossX, view.surfaceHeight - 1}},
                   {{0, view.crossY}, {view.surfaceWidth - 1, view.crossY}}};
    cross.xText = CrossText("X=", view.XOf(view.crossX));
    cross.yText = CrossText("Y=", view.YOf(view.crossY));
    cross.xAt = {kCrossTextAt.x * view.screenScale, kCrossTextAt.y * view.screenScale};
    cross.yAt = {cross.xAt.x, cross.xAt.y + kCrossLineHeight * view.screenScale};
    return cross;
}

}  // namespace quorix
