// Sampling the three curves of a graph's window beside muParser, which has its parsers built and evaluates at
// the same points.

#include <array>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "engine/calc_context.h"
#include "equations/graph_drawing.h"
#include "equations/graph_gestures.h"
#include "parser_peer.h"
#include "ratio_report.h"

namespace {

using namespace quorix;

constexpr int kWidth = 468;
constexpr int kHeight = 508;
constexpr std::array<const char*, 3> kFunctions = {"exp(-x/3)*sin(x)+x^2/7", "ln(x^2+1)*4-x", "cos(x)*x/2"};

GraphView SampledView() {
    GraphView view;
    GraphSetSurface(view, kWidth, kHeight, 2);
    for (const char* function : kFunctions) {
        GraphAddCurve(view, std::u16string(function, function + std::string_view(function).size()), u"x", 0);
    }
    return view;
}

}  // namespace

int main(int argc, char** argv) {
    SetAngleUnit(UNIT_RADIANS);
    GraphView view = SampledView();
    std::vector<std::unique_ptr<bench::ParserPeer>> peers;
    for (const char* function : kFunctions) peers.push_back(std::make_unique<bench::ParserPeer>(function));
    for (std::size_t i = 0; i < peers.size(); ++i) {
        const GraphCurve& curve = view.curves[i];
        for (std::size_t at = 0; at < static_cast<std::size_t>(curve.pointCount); ++at) {
            if (std::fabs(curve.yValues[at] - peers[i]->At(curve.xValues[at])) < 1e-8) continue;
            std::cerr << kFunctions[i] << " differs at " << curve.xValues[at] << '\n';
            return EXIT_FAILURE;
        }
    }
    const double from = view.xMin;
    const double to = view.xMax;
    const auto peerWindow = [&](double least, double most) {
        double sum = 0.0;
        for (const auto& peer : peers) {
            for (double x = least; x <= most; x += kSampleStep) sum += peer->At(x);
        }
        return sum;
    };
    const bench::Body peerAll = [&](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(peerWindow(from, to));
    };
    bench::RegisterPair(
        "window of three curves",
        [&](benchmark::State& state) {
            for (auto _ : state) {
                GraphResetView(view);
                benchmark::DoNotOptimize(view.curves.back().yValues.data());
            }
        },
        peerAll, 1.0);
    constexpr int kPan = 20;
    bench::RegisterPair(
        "pan by 20 pixels",
        [&](benchmark::State& state) {
            int direction = 1;
            for (auto _ : state) {
                GraphMoveTo(view, {view.panX + direction * kPan, 0}, {kInitialUnitX, kInitialUnitY});
                direction = -direction;
            }
        },
        [&](benchmark::State& state) {
            for (auto _ : state) benchmark::DoNotOptimize(peerWindow(to, to + 1.0));
        },
        0);
    bench::RegisterPair(
        "lines of three curves",
        [&](benchmark::State& state) {
            for (auto _ : state) {
                for (const GraphCurve& curve : view.curves) benchmark::DoNotOptimize(GraphRuns(view, curve));
            }
        },
        peerAll, 0);
    return bench::RunPairs(argc, argv);
}
