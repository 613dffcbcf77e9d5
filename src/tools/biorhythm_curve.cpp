#include "tools/biorhythm_curve.h"

#include <algorithm>

namespace quorix {

namespace {

class CurveDrawing {
  public:
    CurveDrawing(int width, int height) : width_(width), height_(height) {}

    /// An arc with its vertex at a column and height, to `reach` and as far to the other side.
    void Arc(int vertex, double vertexHeight, int reach) {
        const auto middle = static_cast<double>(height_ / 2);
        const auto span = static_cast<double>(reach) - vertex;
        const double k = span != 0.0 ? (middle - vertexHeight) / (span * span) : 0.0;
        for (int column = std::max(2 * vertex - reach, 0); column <= std::min(reach, width_); ++column) {
            const double distance = static_cast<double>(column) - vertex;
            const double y = k * (distance * distance) + vertexHeight;
            if (column == width_ / 2) {
                const auto full = static_cast<float>(height_);
                curve.percentage = (full - static_cast<float>(y)) / full * 100.0F;
            }
            curve.points.push_back({column, std::min(static_cast<int>(y), height_ - 1)});
        }
    }

    BiorhythmCurve curve;

  private:
    int width_;
    int height_;
};

}  // namespace

BiorhythmCurve DrawCurve(std::int64_t days, std::int32_t period, int givenWidth, int givenHeight) {
    const int width = std::min(givenWidth, kLargestCurve);
    const int height = std::min(givenHeight, kLargestCurve);
    if (width <= 0 || height <= 0 || period <= 0) {
        return {};
    }
    const double quarter = period / 4.0;
    const double half = period / 2.0;
    const double scale = static_cast<double>(width) / kCurveDays;
    const auto columnOf = [scale](double position) { return static_cast<int>(scale * position); };

    CurveDrawing drawing(width, height);
    double x = kCurveToday - (static_cast<double>(days % period) - quarter);
    while (x > 0.0) {
        x -= period;
    }
    x -= half;
    do {
        const double top = x + half;
        if (top + quarter >= 0.0) {
            drawing.Arc(columnOf(top), 0.0, columnOf(top + quarter));
        }
        const double bottom = top + half;
        if (bottom + quarter >= 0.0) {
            drawing.Arc(columnOf(bottom), height, columnOf(bottom + quarter));
        }
        x = bottom;
    } while (x < kCurveDays);
    return drawing.curve;
}

}  // namespace quorix
