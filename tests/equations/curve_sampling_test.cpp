#include "equations/curve_sampling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "equations/curve_poles.h"
#include "equations/graph_drawing.h"
#include "equations/graph_view.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

class CurveSamplingTest : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        SetAngleUnit(UNIT_RADIANS);
    }
};

GraphCurve Sampled(std::u16string_view text, double from, double to) {
    GraphCurve curve(text, u"x", 0);
    SampleCurve(curve, from, to);
    return curve;
}

std::span<const double> Abscissas(const GraphCurve& curve) {
    return std::span(curve.xValues).first(static_cast<std::size_t>(curve.pointCount));
}

/// Middles of the places where neighbours lie further apart than a step.
std::vector<double> Holes(const GraphCurve& curve) {
    std::vector<double> holes;
    const auto x = Abscissas(curve);
    for (std::size_t i = 1; i < x.size(); ++i) {
        if (x[i] - x[i - 1] > kSampleStep * 1.01) holes.push_back((x[i] + x[i - 1]) * 0.5);
    }
    return holes;
}

TEST_F(CurveSamplingTest, StepsOverTheRangeAndStopsAtTheBound) {
    const GraphCurve line = Sampled(u"2*x", -1, 1);
    ASSERT_EQ(line.pointCount, 41);
    EXPECT_EQ(line.xValues[0], -1);
    EXPECT_NEAR(line.xValues[40], -1 + 40 * kSampleStep, 1e-12);
    EXPECT_EQ(line.yValues[7], 2 * line.xValues[7]);
    EXPECT_EQ(line.function->Evaluations(), 41U);
    EXPECT_EQ(Sampled(u"x", 0, 100).pointCount, kMostSamples);
    EXPECT_EQ(Sampled(u"x", 0, 1e30).pointCount, 0);
    EXPECT_EQ(Sampled(u"x", 1e20, 1e20 + 1e6).pointCount, 0);
    EXPECT_EQ(Sampled(u"x", 1, 0).pointCount, 0);
    EXPECT_EQ(Sampled(u"x", NAN, NAN).pointCount, 0);
}

TEST_F(CurveSamplingTest, HolesAreDrawnUpToBothEdges) {
    const struct {
        std::u16string_view text;
        double left;
        double right;
    } rows[] = {{u"sqrt(x^2-4)", -2, 2},
                {u"ln(x^2-1)", -1, 1},
                {u"sqrt((abs(x))-0.3)", -0.3, 0.3},
                {u"sqrt((x-1)*(x-1.5))", 1, 1.5}};
    for (const auto& row : rows) {
        const GraphCurve curve = Sampled(row.text, -5, 5);
        const auto x = Abscissas(curve);
        const auto right = std::ranges::upper_bound(x, (row.left + row.right) / 2);
        ASSERT_TRUE(right != x.begin() && right != x.end());
        EXPECT_NEAR(*std::prev(right), row.left, 2e-10) << Narrow(row.text);
        EXPECT_NEAR(*right, row.right, 2e-10) << Narrow(row.text);
        EXPECT_LE(Holes(curve).size(), 1U);
    }
    // Ahead of the first good sample nothing is searched for, behind the last one the edge is.
    const GraphCurve arc = Sampled(u"sqrt(1-x^2)", -3, 3);
    EXPECT_GT(arc.xValues[0], -1 + 1e-6);
    EXPECT_LT(arc.xValues[0], -1 + kSampleStep);
    EXPECT_NEAR(Abscissas(arc).back(), 1, 2e-10);
}

TEST_F(CurveSamplingTest, FunctionsThatFailLeaveNothingAndNoError) {
    for (const std::u16string_view text :
         {u"sqrt(0-1-x^2)", u"x+", u"y", u"[VA]*x", u"", u"1/0", u"))((", u"fnInt(", u"RT(2", u"171!"}) {
        const GraphCurve curve = Sampled(text, -10, 10);
        EXPECT_EQ(curve.pointCount, 0) << Narrow(text);
        EXPECT_EQ(calcContext().calcError, 0) << Narrow(text);
    }
    EXPECT_EQ(Sampled(std::u16string(5000, u'x'), -10, 10).pointCount, 0);
    EXPECT_EQ(Sampled(u"RT(2,x)", 0, 1).pointCount, 21) << "roots are expanded";
    EXPECT_EQ(Sampled(u"gcd(4,6)*x", 0, 1).yValues[1], 2 * kSampleStep);
}

/// What an extension has to keep, whatever came before.
void ExpectWhole(const GraphCurve& curve, double from, double to, bool (*isDefined)(double)) {
    const auto x = Abscissas(curve);
    ASSERT_TRUE(std::ranges::is_sorted(x, std::ranges::less_equal{}) || x.size() < 2);
    if (!x.empty()) {
        EXPECT_TRUE(x.front() >= from && x.back() <= to);
    }
    for (double at = from; at <= to; at += kSampleStep * 0.7) {
        if (!isDefined(at - 2 * kSampleStep) || !isDefined(at) || !isDefined(at + 2 * kSampleStep)) continue;
        const auto next = std::ranges::lower_bound(x, at);
        const double left = next == x.begin() ? INFINITY : at - *std::prev(next);
        const double right = next == x.end() ? INFINITY : *next - at;
        ASSERT_LE(std::min(left, right), kSampleStep * 1.001) << at;
    }
}

TEST_F(CurveSamplingTest, MovesKeepTheCurveWholeAndEvaluateOnlyTheStrip) {
    const struct {
        std::u16string_view text;
        bool (*isDefined)(double);
        int edges;
    } rows[] = {{u"x^2/9", [](double) { return true; }, 0},
                {u"sqrt(x^2-4)", [](double x) { return std::fabs(x) >= 2; }, 2},
                {u"sqrt(x-3)", [](double x) { return x >= 3; }, 1},
                {u"sqrt(0-x-30)", [](double x) { return x <= -30; }, 1}};
    constexpr double kEdgeEvaluations = 40;
    std::mt19937 random(7);
    for (const auto& row : rows) {
        double from = -8;
        double to = 8;
        GraphCurve curve = Sampled(row.text, from, to);
        for (int i = 0; i < 400; ++i) {
            const double oldFrom = from;
            const double oldTo = to;
            const double shift = std::uniform_real_distribution<double>(-3, 3)(random);
            const double growth = i % 5 == 0 ? std::uniform_real_distribution<double>(-2, 2)(random) : 0.0;
            from = std::clamp(from + shift, -60.0, 50.0);
            to = std::clamp(to + shift + growth, from + 5.0, from + 40.0);
            const auto before = curve.function->Evaluations();
            TrimCurve(curve, from, to);
            ExtendCurve(curve, from, to);
            ExpectWhole(curve, from, to, row.isDefined);
            const bool isApart = to < oldFrom || from > oldTo;
            const double strip =
                isApart ? to - from : std::max(oldFrom - from, 0.0) + std::max(to - oldTo, 0.0);
            EXPECT_LE(static_cast<double>(curve.function->Evaluations() - before),
                      strip / kSampleStep + 2 + kEdgeEvaluations * row.edges)
                << Narrow(row.text) << " step " << i;
        }
    }
}

TEST_F(CurveSamplingTest, FullArraysDropAtTheRightAndComeBack) {
    GraphCurve curve = Sampled(u"x", 0, 100);
    const double end = Abscissas(curve).back();
    ExtendCurve(curve, -5, 95);
    EXPECT_EQ(curve.pointCount, kMostSamples);
    EXPECT_NEAR(curve.xValues[0], -5, kSampleStep);
    EXPECT_NEAR(Abscissas(curve).back(), end - 5, kSampleStep);
    TrimCurve(curve, 20, 60);
    ExtendCurve(curve, 20, 60);
    EXPECT_NEAR(Abscissas(curve).back(), 60, kSampleStep);
    EXPECT_TRUE(Holes(curve).empty());
    ExtendCurve(curve, -200, 60);
    EXPECT_EQ(curve.pointCount, kMostSamples);
    EXPECT_TRUE(Holes(curve).empty());
}

TEST_F(CurveSamplingTest, NoLineCrossesAPole) {
    const struct {
        std::u16string_view text;
        double pole;
    } rows[] = {{u"1/x", 0},
                {u"45+1/x", 0},
                {u"1/x^2", 0},
                {u"1/(x+1)^3-90", -1},
                {u"1/sqrt(abs(x))", 0},
                {u"ln(x^2)", 0},
                {u"x-0.2*log(abs(x-1))", 1},
                {u"sqrt(x^2)+1/ln(x^2+1)", 0},
                {u"csc(x)+sec(x)", 0},
                {u"30-ctanh(x)^2", 0},
                {u"exp(1/x)", 0},
                {u"5 iexp(0-1/(x+2))", -2},
                {u"(x^2-1)/(x^2-3*x+2)", 2},
                {u"7+csch(x)-atan(1/x)", 0},
                {u"4 root(abs(x))*x^(0-1)", 0},
                {u"sqrt(3-0.01/(x-1))", 1},
                {u"1/(x mod 7)+1/(x-1)", 1}};
    for (const auto& row : rows) {
        // Close to the ends, where there is no slope yet.
        for (const double steps : {0.001, 0.3, 0.99, 1.5, 2.2}) {
            for (const double span : {1.0, -1.0}) {
                GraphCurve curve(row.text, u"x", 0);
                const double near = row.pole - std::copysign(steps * kSampleStep, span);
                SampleCurve(curve, std::min(near, near + span), std::max(near, near + span));
                const auto x = Abscissas(curve);
                const auto behind =
                    static_cast<std::size_t>(std::ranges::upper_bound(x, row.pole) - x.begin());
                if (behind == 0 || behind == x.size()) continue;
                EXPECT_TRUE(curve.isBehindPole[behind] || x[behind] - x[behind - 1] < 1e-9 ||
                            TurnOf(behind > 1 ? curve.yValues[behind - 1] - curve.yValues[behind - 2] : 1.0,
                                   curve.yValues[behind - 1], curve.yValues[behind]) == GraphTurn::suppressed)
                    << Narrow(row.text) << ' ' << steps << ' ' << span;
            }
        }
        for (int k = 0; k < 40; ++k) {
            GraphView view;
            GraphSetSurface(view, 468, 508, 2);
            GraphMoveTo(view, {k * 3 - 60, 0}, {60 + k % 30, 10});
            GraphAddCurve(view, row.text, u"x", 0);
            GraphMoveTo(view, {k * 3 - 61, 0}, {60 + k % 30, 10});
            for (const GraphRun& run : GraphRuns(view, view.curves[0])) {
                EXPECT_FALSE(view.XOf(run.front().x) < row.pole - 1e-9 &&
                             view.XOf(run.back().x) > row.pole + 1e-9)
                    << Narrow(row.text) << " view " << k;
            }
        }
    }
}

TEST_F(CurveSamplingTest, SmoothTurnsCuspsAndPeaksStayJoinedAndCostNothing) {
    const struct {
        std::u16string_view text;
        std::uint64_t searches;  ///< evaluations beside the samples at most
    } rows[] = {{u"x^2+1", 0},      {u"3+sin(x)", 0},      {u"3+cos(3*x)", 0},      {u"1/(x^2+0.01)", 0},
                {u"1+abs(x-1)", 0}, {u"1/(x^2-2*x+2)", 0}, {u"sin(x-1)/(x-1)", 20}, {u"(1-cos(x))/x", 20},
                {u"x*ln(x^2)", 20}, {u"atan(1/x)", 0},     {u"2^x-tanh(9*x)", 0}};
    for (const auto& row : rows) {
        const GraphCurve curve = Sampled(row.text, -4, 4);
        EXPECT_FALSE(std::ranges::any_of(curve.isBehindPole, std::identity{})) << Narrow(row.text);
        EXPECT_LE(curve.function->Evaluations(), 162U + row.searches) << Narrow(row.text);
    }
    // An oscillation finer than the samples does not set off a search at each of its turns.
    EXPECT_LT(Sampled(u"sin(60*x)+2", -20, 20).function->Evaluations(), 3000U);
}

}  // namespace
}  // namespace quorix
