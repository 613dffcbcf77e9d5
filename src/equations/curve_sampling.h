#pragma once

// Samples of a curve on a fixed step: taken once, then trimmed and extended as the view moves. A domain edge
// behind a good sample is bisected, the hole is skipped, and the curve goes on from its other edge.

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "equations/curve_function.h"
#include "platform/color.h"

namespace quorix {

/// Samples that a curve holds at most; no more are taken.
inline constexpr std::int32_t kMostSamples = 1024;
/// Distance in x between samples, whatever the scale.
inline constexpr double kSampleStep = 0.04953;
/// A distance between samples above this is a hole, which is not drawn across.
inline constexpr double kHoleWidth = kSampleStep * 10;

/// Where sampling goes on at one end of a curve.
struct CurveEnd {
    double next = 0.0;    ///< the abscissa that is evaluated next
    bool isHole = false;  ///< the function fails at the abscissa one step nearer to the samples
};

struct GraphCurve {
    GraphCurve(std::u16string_view text, std::u16string_view variable, ColorRef penColour)
        : variableName(variable),
          colour(penColour),
          function(std::make_unique<CurveFunction>(text, variable)),
          expression(function->Text()) {}

    std::u16string variableName;
    /// Of the first pointCount samples; xValues ascends.
    std::array<double, kMostSamples> yValues{};
    std::array<double, kMostSamples> xValues{};
    std::int32_t pointCount = 0;
    ColorRef colour;
    /// Whether a pole lies between a sample and the one before it, where the shape of the samples alone
    /// does not tell so.
    std::array<bool, kMostSamples> isBehindPole{};
    CurveEnd left;
    CurveEnd right;
    std::unique_ptr<CurveFunction> function;
    /// The function's text, normalised.
    std::u16string expression;
};

/// Samples [from, to] afresh, from the left; nothing when `from` is above `to`. Errors ahead of the first
/// good sample are skipped step by step, without a search for the edge.
void SampleCurve(GraphCurve& curve, double from, double to);

/// Drops the samples outside [from, to].
void TrimCurve(GraphCurve& curve, double from, double to);

/// Evaluates what of [from, to] has not been evaluated yet, going on from both ends. Samples beyond
/// kMostSamples are dropped at the right. A curve that lies wholly outside is sampled afresh.
void ExtendCurve(GraphCurve& curve, double from, double to);

}  // namespace quorix
