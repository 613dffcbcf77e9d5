// Functions of x as curves, moved by pen steps: samples ascend within their bound, and block, point and range
// agree about the values.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "engine/calc_context.h"
#include "engine/eval_double.h"
#include "equations/graph_drawing.h"
#include "equations/graph_gestures.h"
#include "equations/graph_view.h"

namespace {

using namespace quorix;

constexpr std::size_t kSteps = 4;
constexpr std::size_t kPoints = 40;

void Require(bool holds) {
    if (!holds) std::abort();
}

void CheckSamples(const GraphView& view) {
    for (const GraphCurve& curve : view.curves) {
        const auto end = curve.xValues.begin() + curve.pointCount;
        Require(std::adjacent_find(curve.xValues.begin(), end, std::greater_equal<>()) == end);
        GraphRuns(view, curve);
    }
}

void CheckEvaluators(const std::u16string& text) {
    ClearCalcError();
    DoubleSampler sampler(text, u"x", 10);
    ClearCalcError();
    std::array<double, kPoints> x;
    std::array<double, kPoints> y;
    for (std::size_t i = 0; i < kPoints; ++i) x[i] = (static_cast<double>(i) - 9.5) * 0.25;
    const std::size_t count = sampler.RealValues(x, y);
    const auto range = sampler.RangeOver({x.front(), x.back()});
    for (std::size_t i = 0; i < count; ++i) {
        const auto value = sampler.At(x[i]);
        Require(value && value->re == y[i] && value->im == 0.0);
        Require(!range || !std::isfinite(y[i]) || range->Contains(y[i]));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < kSteps) return 0;
    const std::u16string text(data + kSteps, data + size);
    // Named functions, which may run long, have a target of their own.
    if (text.find(u"fn") != std::u16string::npos || text.size() > 200) return 0;
    SetAngleUnit(data[0] % 3);
    CheckEvaluators(text);
    GraphView view;
    GraphSetSurface(view, 200, 100, 1);
    GraphAddCurve(view, text, u"x", 0);
    for (std::size_t i = 0; i < kSteps; ++i) {
        view.mode = data[i] % GRAPH_CROSS_HAIR;
        GraphPenDown(view, {100, 50});
        GraphPenMove(view, {data[i], 50 - data[i] % 40});
        GraphPenUp(view, {data[i], 50});
        CheckSamples(view);
    }
    GraphSetCentre(view, data[1] * 1e6, 0);
    CheckSamples(view);
    return 0;
}
