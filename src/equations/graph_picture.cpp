#include "equations/graph_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "equations/graph_labels.h"

namespace quorix {
namespace {

constexpr double kHalfPixel = 0.5;
// Logical units.
constexpr double kLabelMargin = 1.5;

/// A picture that lines are laid on with smooth edges.
class Canvas {
  public:
    Canvas(std::int32_t width, std::int32_t height, ColorRef background) {
        picture_.width = std::max(width, 0);
        picture_.height = std::max(height, 0);
        const std::size_t count =
            static_cast<std::size_t>(picture_.width) * static_cast<std::size_t>(picture_.height);
        picture_.pixels.resize(count * 4, 255);
        coverage_.resize(count, 0.0F);
        for (std::size_t i = 0; i < count; ++i) Blend(i, background, 1.0);
    }

    /// The pixels of an upright or level line.
    void Line(const GraphLine& line, ColorRef colour) {
        for (int y = std::max(line.from.y, 0); y <= std::min(line.to.y, picture_.height - 1); ++y) {
            for (int x = std::max(line.from.x, 0); x <= std::min(line.to.x, picture_.width - 1); ++x) {
                Blend(IndexOf(x, y), colour, 1.0);
            }
        }
    }

    /// Joined lines with round ends, as one stroke: where they overlap, the colour does not add up.
    void Stroke(std::span<const GraphPoint> points, double width) {
        for (std::size_t i = 1; i < points.size(); ++i) Cover(points[i - 1], points[i], width * 0.5);
    }

    /// Lays `colour` on what has been stroked.
    void Paint(ColorRef colour) {
        for (std::size_t i = 0; i < coverage_.size(); ++i) {
            if (coverage_[i] == 0.0F) continue;
            Blend(i, colour, static_cast<double>(coverage_[i]));
            coverage_[i] = 0.0F;
        }
    }

    [[nodiscard]] DecodedPicture Take() { return std::move(picture_); }

  private:
    [[nodiscard]] std::size_t IndexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width) +
               static_cast<std::size_t>(x);
    }

    void Blend(std::size_t index, ColorRef colour, double part) {
        std::uint8_t* pixel = picture_.pixels.data() + index * 4;
        const std::array<std::uint8_t, 3> channels{RedOf(colour), GreenOf(colour), BlueOf(colour)};
        for (std::size_t i = 0; i < channels.size(); ++i) {
            pixel[i] = static_cast<std::uint8_t>(std::lround(pixel[i] + (channels[i] - pixel[i]) * part));
        }
    }

    static int Clamped(double value, int size) {
        return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(size)));
    }

    // Part of each pixel that lies within `radius` of the line, by the distance of its centre.
    void Cover(const GraphPoint& from, const GraphPoint& to, double radius) {
        const double reach = radius + 1.0;
        const int top = Clamped(std::min(from.y, to.y) - reach, picture_.height);
        const int bottom = Clamped(std::max(from.y, to.y) + reach + 1.0, picture_.height);
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double square = dx * dx + dy * dy;
        for (int y = top; y < bottom; ++y) {
            const auto [first, last] = Columns(from, to, y, reach);
            for (int x = first; x < last; ++x) {
                const double along =
                    square == 0 ? 0.0
                                : std::clamp(((x - from.x) * dx + (y - from.y) * dy) / square, 0.0, 1.0);
                const double distance = std::hypot(x - from.x - along * dx, y - from.y - along * dy);
                const auto part = static_cast<float>(std::clamp(radius + kHalfPixel - distance, 0.0, 1.0));
                float& covered = coverage_[IndexOf(x, y)];
                covered = std::max(covered, part);
            }
        }
    }

    // Columns that the line may touch in a row.
    [[nodiscard]] std::pair<int, int> Columns(const GraphPoint& from, const GraphPoint& to, int row,
                                              double reach) const {
        double left = std::min(from.x, to.x);
        double right = std::max(from.x, to.x);
        const double dy = to.y - from.y;
        if (std::fabs(dy) > reach) {
            // The part of the line within reach of the row.
            const auto xAt = [&](double y) {
                return from.x + (to.x - from.x) * std::clamp((y - from.y) / dy, 0.0, 1.0);
            };
            const double above = xAt(row - reach);
            const double below = xAt(row + reach);
            left = std::min(above, below);
            right = std::max(above, below);
        }
        return {Clamped(left - reach, picture_.width), Clamped(right + reach + 1.0, picture_.width)};
    }

    DecodedPicture picture_;
    std::vector<float> coverage_;
};

}  // namespace

DecodedPicture DrawGraphPicture(const GraphView& view, ColorRef background, ColorRef ink) {
    Canvas canvas(view.surfaceWidth, view.surfaceHeight, background);
    for (const GraphLine& line : GraphAxes(view)) canvas.Line(line, kGridColour);
    for (const GraphLine& line : GraphTicks(view)) canvas.Line(line, kGridColour);
    for (const GraphCurve& curve : view.curves) {
        for (const GraphRun& run : GraphRuns(view, curve)) canvas.Stroke(run, kCurveWidth * view.screenScale);
        canvas.Paint(curve.colour);
    }
    // Labels keep a margin of background about them, so that curves do not run through their digits.
    const std::vector<GraphRun> labels = GraphLabels(view);
    const auto label = [&](double width, ColorRef colour) {
        for (const GraphRun& stroke : labels) canvas.Stroke(stroke, width * view.screenScale);
        canvas.Paint(colour);
    };
    label(kLabelWidth + 2 * kLabelMargin, background);
    label(kLabelWidth, ink);
    return canvas.Take();
}

}  // namespace quorix
