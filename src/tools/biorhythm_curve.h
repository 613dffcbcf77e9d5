#pragma once

// A cycle's curve: not a sine but a chain of parabolas between crossings of the middle, with their vertices
// on the top and the bottom edge.

#include <cstdint>
#include <vector>

#include "platform/geometry.h"

namespace quorix {

/// Days that the width shows, and where among them the day in view lies.
inline constexpr int kCurveDays = 29;
inline constexpr int kCurveToday = 14;
/// Widths and heights above this count as this.
inline constexpr int kLargestCurve = 16384;

struct BiorhythmCurve {
    /// From left to right, each to be joined to the one before; relative to the rectangle's corner.
    std::vector<Point> points;
    /// Read off at the middle column: 100 on the top edge, 0 on the bottom edge.
    float percentage = 0.0F;
};

/// days: since birth, not below 0. period: days. width, height: pixels; without a pixel there are no points.
BiorhythmCurve DrawCurve(std::int64_t days, std::int32_t period, int width, int height);

}  // namespace quorix
