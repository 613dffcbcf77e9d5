#include "equations/graph_view.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "equations/curve_poles.h"
#include "equations/graph_drawing.h"
#include "equations/graph_gestures.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr int kWidth = 200;
constexpr int kHeight = 100;

class GraphViewTest : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        SetAngleUnit(UNIT_RADIANS);
        GraphSetSurface(view_, kWidth, kHeight, 1);
    }
    void Add(std::u16string_view text) { GraphAddCurve(view_, text, u"x", 0x112233); }
    [[nodiscard]] std::uint64_t Evaluations() const { return view_.curves[0].function->Evaluations(); }
    GraphEffect Drag(Point from, Point to) {
        GraphPenDown(view_, from);
        return GraphPenMove(view_, to);
    }

    GraphView view_;
};

TEST_F(GraphViewTest, CurvesAreAddedColouredAndCleared) {
    Add(u"");
    EXPECT_THAT(view_.curves, IsEmpty());
    Add(u"x");
    EXPECT_EQ(view_.xMin, -5);
    EXPECT_EQ(view_.xMax, 5);
    EXPECT_EQ(view_.curves[0].xValues[0], -5);
    GraphSetCurveColour(view_, 0, 7);
    GraphSetCurveColour(view_, 1, 9);
    EXPECT_EQ(view_.curves[0].colour, 7U);
    GraphClear(view_);
    EXPECT_THAT(view_.curves, IsEmpty());
}

TEST_F(GraphViewTest, TheResetIsSkippedOnlyAtScalesOfTwenty) {
    Add(u"x");
    const auto once = Evaluations();
    GraphResetView(view_);
    EXPECT_EQ(Evaluations(), 2 * once) << "at the initial scales the reset always runs";
    GraphMoveTo(view_, {0, 0}, {20, 20});
    GraphResetView(view_);
    EXPECT_EQ(view_.pixelsPerUnitY, 20);
    EXPECT_EQ(Evaluations(), 2 * once);
    GraphMoveTo(view_, {3, 4}, {30, 20});
    GraphResetView(view_);
    EXPECT_EQ(view_.AxisX(), kWidth / 2);
    EXPECT_EQ(view_.pixelsPerUnitX, 20);
    EXPECT_EQ(view_.pixelsPerUnitY, 10);
}

TEST_F(GraphViewTest, TheCentreIsSetInWholeUnitsAndReadBack) {
    Add(u"x");
    GraphSetCentre(view_, 3.9, -2.9);
    EXPECT_EQ(view_.panX, -60);
    EXPECT_EQ(view_.panY, -20);
    EXPECT_EQ(GraphCentreOfView(view_).x, 3);
    EXPECT_EQ(GraphCentreOfView(view_).y, -2);
    for (const double far : {1e300, -1e300, double{INFINITY}, double{NAN}}) {
        GraphSetCentre(view_, far, far);
        EXPECT_LE(std::fabs(GraphCentreOfView(view_).x), 1e7);
    }
    EXPECT_EQ(GraphFieldText(-0.001), "0.00");
    EXPECT_EQ(GraphFieldText(2.5), "2.50");
    EXPECT_EQ(GraphFieldValue(" -1.5x"), -1.5);
    EXPECT_EQ(GraphFieldValue("+2"), 2);
    EXPECT_EQ(GraphFieldValue("abc"), 0);
    EXPECT_EQ(GraphFieldValue(""), 0);
    EXPECT_EQ(GraphFieldValue("1234567"), std::nullopt);
}

TEST_F(GraphViewTest, PanningEvaluatesOnlyTheStripThatIsUncovered) {
    Add(u"x^2");
    const auto before = Evaluations();
    EXPECT_EQ(Drag({50, 50}, {70, 65}), (GraphEffect{.repaints = true}));
    EXPECT_EQ(view_.panX, 20);
    EXPECT_EQ(view_.panY, 15);
    EXPECT_EQ(view_.xMin, -6);
    EXPECT_LE(Evaluations() - before, 21U);
    EXPECT_NEAR(view_.curves[0].xValues[0], -6, kSampleStep);
    const auto moved = Evaluations();
    GraphPenMove(view_, {70, 40});
    EXPECT_EQ(Evaluations(), moved) << "up and down nothing is uncovered";
    for (int x = 69; x >= 50; --x) GraphPenMove(view_, {x, 40});
    EXPECT_LE(Evaluations() - moved, 21U);
    EXPECT_EQ(GraphPenUp(view_, {50, 40}), (GraphEffect{.repaints = true, .tellsParent = true}));
    const auto done = Evaluations();
    GraphPenMove(view_, {10, 10});
    GraphRuns(view_, view_.curves[0]);
    EXPECT_EQ(Evaluations(), done);
    EXPECT_EQ(view_.panX, 0);
}

TEST_F(GraphViewTest, TheModeBoxStepsThroughTheModes) {
    const Point box{kWidth - 1, 0};
    EXPECT_EQ(GraphModeBox(view_), (Rect{kWidth - 24, 0, kWidth, 18}));
    view_.crossX = 33;
    for (const int mode : {1, 2, 3, 0}) {
        EXPECT_EQ(GraphPenDown(view_, box), GraphEffect{});
        EXPECT_FALSE(view_.penDown);
        EXPECT_EQ(GraphPenUp(view_, box), (GraphEffect{.repaints = true}));
        EXPECT_EQ(GraphMode(view_), mode);
    }
    EXPECT_EQ(view_.crossX, 33);
    GraphPenDown(view_, {10, 10});
    EXPECT_EQ(GraphPenMove(view_, box), GraphEffect{});
    EXPECT_EQ(view_.panX, 0);
}

TEST_F(GraphViewTest, ScalesHoldAtTheirLimits) {
    Add(u"x");
    view_.mode = GRAPH_LIVE_SCALE;
    Drag({50, 50}, {60, 45});
    EXPECT_EQ(view_.pixelsPerUnitX, 30);
    EXPECT_EQ(view_.pixelsPerUnitY, 15);
    EXPECT_NEAR(view_.curves[0].xValues[0], -100.0 / 30, kSampleStep);
    GraphPenMove(view_, {5000, 5000});
    EXPECT_EQ(view_.pixelsPerUnitX, 96);
    EXPECT_EQ(view_.pixelsPerUnitY, 8);
    GraphPenMove(view_, {-5000, -5000});
    EXPECT_EQ(view_.pixelsPerUnitX, 8);
    EXPECT_EQ(view_.pixelsPerUnitY, 96);
    EXPECT_NEAR(view_.curves[0].xValues[0], -12.5, kSampleStep);
}

TEST_F(GraphViewTest, ADeferredScaleMovesTheTicksFirst) {
    Add(u"x");
    view_.mode = GRAPH_DEFERRED_SCALE;
    const auto before = Evaluations();
    Drag({50, 50}, {60, 45});
    GraphPenMove(view_, {70, 40});
    EXPECT_EQ(view_.pixelsPerUnitX, 20);
    EXPECT_EQ(view_.pendingUnitX, 40);
    EXPECT_EQ(view_.pendingUnitY, 20);
    EXPECT_EQ(Evaluations(), before);
    EXPECT_THAT(GraphTicks(view_), Contains(GraphLine{{140, 97}, {140, 99}}));
    EXPECT_THAT(GraphTicks(view_), Not(Contains(GraphLine{{120, 97}, {120, 99}})));
    EXPECT_EQ(GraphPenUp(view_, {70, 40}), (GraphEffect{.repaints = true, .tellsParent = true}));
    EXPECT_EQ(view_.pixelsPerUnitX, 40);
    EXPECT_EQ(view_.xMin, -2.5);
    EXPECT_EQ(Evaluations(), before) << "a narrower range only drops samples";
    GraphPenDown(view_, {50, 50});
    EXPECT_EQ(GraphPenUp(view_, {50, 50}), (GraphEffect{.repaints = true}));
}

TEST_F(GraphViewTest, AxesTicksAndCrossHair) {
    EXPECT_THAT(GraphAxes(view_), ElementsAre(GraphLine{{0, 50}, {199, 50}}, GraphLine{{100, 0}, {100, 99}}));
    EXPECT_EQ(GraphTicks(view_).size(), 9U + 9U);
    GraphMoveTo(view_, {-1'000'000'000, 70}, {30, 10});
    EXPECT_EQ(GraphAxes(view_).size(), 0U);
    for (const GraphLine& tick : GraphTicks(view_)) {
        EXPECT_TRUE(tick.from.y == tick.to.y || (tick.from.x - view_.AxisX()) % 30 == 0);
    }
    EXPECT_THAT(GraphCrossHair(view_).lines, IsEmpty());
    GraphMoveTo(view_, {0, 0}, {20, 10});
    view_.mode = GRAPH_CROSS_HAIR;
    Drag({10, 10}, {90, 75});
    const GraphCross cross = GraphCrossHair(view_);
    EXPECT_THAT(cross.lines, ElementsAre(GraphLine{{90, 0}, {90, 99}}, GraphLine{{0, 75}, {199, 75}}));
    EXPECT_EQ(cross.xText, "X=-0.50");
    EXPECT_EQ(cross.yText, "Y=-2.50");
    EXPECT_EQ(cross.yAt, (Point{10, 20}));
}

TEST_F(GraphViewTest, LinesRunThroughTheSamplesAndLeaveOutWhatIsNotJoined) {
    const struct {
        double slope;
        double before;
        double after;
        GraphTurn turn;
    } turns[] = {{1, 2, 3, GraphTurn::none},         {0, 2, -3, GraphTurn::none},
                 {1, 2, -1, GraphTurn::suppressed},  {1, 33, 1, GraphTurn::extremum},
                 {1, 34, 1, GraphTurn::suppressed},  {-1, -2, -1, GraphTurn::extremum},
                 {-1, -1, 1, GraphTurn::suppressed}, {NAN, 1, 2, GraphTurn::none}};
    for (const auto& row : turns) EXPECT_EQ(TurnOf(row.slope, row.before, row.after), row.turn);

    Add(u"x");
    GraphCurve& curve = view_.curves[0];
    const auto runs = [&](std::vector<GraphPoint> samples) {
        for (std::size_t i = 0; i < samples.size(); ++i) {
            curve.xValues[i] = samples[i].x;
            curve.yValues[i] = samples[i].y;
        }
        curve.pointCount = static_cast<std::int32_t>(samples.size());
        std::vector<std::size_t> lengths;
        for (const GraphRun& run : GraphRuns(view_, curve)) lengths.push_back(run.size());
        return lengths;
    };
    EXPECT_THAT(runs({{0, 0}, {0.05, 1}, {0.1, 2}}), ElementsAre(3));
    EXPECT_EQ(GraphRuns(view_, curve)[0].back(), (GraphPoint{102, 30}));
    EXPECT_THAT(runs({{0, 0}, {0.05, 1}, {0.6, 2}, {0.65, 3}}), ElementsAre(2, 2)) << "a hole";
    EXPECT_THAT(runs({{0, 0}, {0.05, 1}, {0.5, 2}, {0.55, 3}}), ElementsAre(4)) << "a narrow hole";
    EXPECT_THAT(runs({{0, 0}, {0.05, 6553}, {0.1, 6554}, {0.15, 7000}}), ElementsAre(2)) << "too far";
    EXPECT_THAT(runs({{0, 0}, {0.05, NAN}, {0.1, 1}, {0.15, INFINITY}, {0.2, 1}}), IsEmpty());
    EXPECT_THAT(runs({{0, 40}, {0.05, 5}, {0.1, 1}}), ElementsAre(2)) << "the slope is 1 at the start";
    EXPECT_THAT(runs({{0, 0}, {0.05, 1}, {0.6, 40}, {0.65, 5}, {0.7, 1}}), ElementsAre(2, 2))
        << "and behind a hole";
    EXPECT_THAT(runs({{0, 1}}), IsEmpty());
    EXPECT_THAT(runs({}), IsEmpty());
}

}  // namespace
}  // namespace quorix
