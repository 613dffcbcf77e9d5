#include "equations/curve_poles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "equations/curve_sampling.h"

namespace quorix {
namespace {

constexpr double kLargestJump = 32;
// Golden section: each evaluation keeps 0.618 of the interval.
constexpr double kGolden = 0.6180339887498949;
constexpr int kShortSearch = 8;
constexpr int kLongSearch = 15;
// Heights above the turn, in differences between it and the lower sample beside it: more than a smooth top
// rises between two samples, and more than can be told from a pole.
constexpr double kSteepRise = 1;
constexpr double kPoleRise = 1000;
constexpr double kNoise = 1e-9;

/// Samples either side of the turn, in the order of the search, which starts where the curve rises to it.
struct TurnPoints {
    double startX;
    double startHeight;
    double endX;
    double endHeight;
    double topHeight;
};

/// Follows the greatest height between two abscissas by golden section. At a pole it grows by no less with
/// each round, as the interval shrinks; at the top of a smooth curve or at a cusp the growth dies away.
class PoleSearch {
  public:
    PoleSearch(CurveFunction& function, double sign, const TurnPoints& points)
        : function_(function),
          sign_(sign),
          start_(points.startX),
          end_(points.endX),
          floor_(points.startHeight),
          top_(points.topHeight),
          bottom_(std::min(points.startHeight, points.endHeight)),
          best_(points.topHeight) {
        innerX_ = InnerX();
        outerX_ = OuterX();
        inner_ = HeightAt(innerX_);
        outer_ = HeightAt(outerX_);
    }

    bool FindsPole() { return Grows(kShortSearch, kSteepRise) && Grows(kLongSearch, kPoleRise); }
    /// Where the pole is, once found.
    [[nodiscard]] double Place() const { return (start_ + end_) * 0.5; }

  private:
    // Whether the second of two runs gains about as much as the first. A quarter leaves room for logarithms,
    // as golden section climbs in uneven steps; at a cusp like that of a square root it is a seventh. A point
    // that falls near a pole by chance leaves later runs little to gain; then the height itself tells.
    bool Grows(int rounds, double steepness) {
        const double before = best_;
        Run(rounds);
        const double middle = best_;
        Run(rounds);
        return (best_ > middle && best_ - middle >= (middle - before) * 0.25) ||
               best_ - top_ > steepness * (top_ - bottom_);
    }

    void Run(int rounds) {
        for (int i = 0; i < rounds; ++i) Round();
    }

    // Left of the top the height stays above the floor. Whatever is lower lies behind the top, or behind the
    // pole, from where the curve comes back from the other infinity.
    void Round() {
        if (inner_ >= floor_ && inner_ < outer_) {
            start_ = innerX_;
            floor_ = inner_;
            innerX_ = outerX_;
            inner_ = outer_;
            outerX_ = OuterX();
            outer_ = HeightAt(outerX_);
        } else {
            end_ = outerX_;
            outerX_ = innerX_;
            outer_ = inner_;
            innerX_ = InnerX();
            inner_ = HeightAt(innerX_);
        }
    }

    [[nodiscard]] double InnerX() const { return end_ - (end_ - start_) * kGolden; }
    [[nodiscard]] double OuterX() const { return start_ + (end_ - start_) * kGolden; }

    double HeightAt(double x) {
        const std::optional<double> y = function_.At(x);
        if (!y || std::isnan(*y)) return -std::numeric_limits<double>::infinity();
        const double height = *y * sign_;
        best_ = std::max(best_, height);
        return height;
    }

    CurveFunction& function_;
    double sign_;
    double start_;
    double end_;
    double floor_;
    double top_;
    double bottom_;
    double best_;
    double innerX_ = 0.0;
    double outerX_ = 0.0;
    double inner_ = 0.0;
    double outer_ = 0.0;
};

// The search starts on the flatter side: a jump from one infinity to the other is the steeper one.
void MarkPoleAbout(GraphCurve& curve, std::size_t turn) {
    const auto& x = curve.xValues;
    const auto& y = curve.yValues;
    const double before = y[turn] - y[turn - 1];
    const double after = y[turn + 1] - y[turn];
    const double sign = before > 0 ? 1.0 : -1.0;
    const bool isForward = std::fabs(after) >= std::fabs(before);
    const std::size_t start = isForward ? turn - 1 : turn + 1;
    const std::size_t end = isForward ? turn + 1 : turn - 1;
    PoleSearch search(*curve.function, sign,
                      {x[start], y[start] * sign, x[end], y[end] * sign, y[turn] * sign});
    if (!search.FindsPole()) return;
    curve.isBehindPole[search.Place() > x[turn] ? turn + 1 : turn] = true;
}

bool AreNeighbours(const GraphCurve& curve, std::size_t left) {
    return curve.xValues[left + 1] - curve.xValues[left] <= kSampleStep * 1.5;
}

bool IsTurn(std::span<const double> y, std::size_t index) {
    return (y[index] - y[index - 1]) * (y[index + 1] - y[index]) < 0;
}

// A smooth curve flattens towards its turn on both sides; towards a pole the differences grow on the side
// that does not jump across it. Where the segment behind the turn is left out anyway, only a pole in the
// segment before it matters. Turns at every sample are an oscillation finer than the samples.
bool MayHoldPole(const GraphCurve& curve, std::size_t turn, GraphTurn kind) {
    const auto& y = curve.yValues;
    if (!AreNeighbours(curve, turn - 1) || !AreNeighbours(curve, turn) || !std::isfinite(y[turn - 1]) ||
        !std::isfinite(y[turn + 1]) || curve.isBehindPole[turn] || curve.isBehindPole[turn + 1]) {
        return false;
    }
    const auto difference = [&y](std::size_t left) { return std::fabs(y[left + 1] - y[left]); };
    // The functions are rounded to 12 decimals; turns of that size are noise.
    if (difference(turn - 1) + difference(turn) < kNoise * (1.0 + std::fabs(y[turn]))) return false;
    const bool hasLeft = turn >= 2 && AreNeighbours(curve, turn - 2);
    const bool hasRight =
        turn + 2 < static_cast<std::size_t>(curve.pointCount) && AreNeighbours(curve, turn + 1);
    if (hasLeft && hasRight && IsTurn(y, turn - 1) && IsTurn(y, turn + 1)) return false;
    const bool steepensBefore = hasLeft && difference(turn - 1) >= difference(turn - 2);
    const bool steepensBehind = !hasRight || difference(turn) >= difference(turn + 1);
    return kind == GraphTurn::extremum ? !hasLeft || steepensBefore || steepensBehind
                                       : !steepensBefore && steepensBehind;
}

// Poles about the turns among the samples [first, last].
void MarkPolesAtTurns(GraphCurve& curve, std::size_t first, std::size_t last) {
    const auto& y = curve.yValues;
    const std::size_t end = std::min(last + 1, static_cast<std::size_t>(curve.pointCount) - 1);
    for (std::size_t i = std::max<std::size_t>(first, 1); i < end; ++i) {
        // Most samples are no turns.
        const double before = y[i] - y[i - 1];
        if (before * (y[i + 1] - y[i]) < 0 && MayHoldPole(curve, i, TurnOf(before, y[i], y[i + 1]))) {
            MarkPoleAbout(curve, i);
        }
    }
}

/// Finds a pole between two points: halves the interval as long as the range of the values is unbounded, and
/// lets the values about the place that remains tell a pole from a gap that can be closed, as in sin(x)/x.
class RangeSearch {
  public:
    explicit RangeSearch(CurveFunction& function) : function_(function) {}

    bool FindsPole(double from, double to) {
        if (looks_++ >= kMostLooks) {
            isTold_ = false;
            return false;
        }
        const std::optional<ValueRange> range = function_.RangeOver(from, to);
        if (!range) isTold_ = false;
        if (!range || range->IsBounded()) return false;
        const double middle = (from + to) * 0.5;
        if (to - from < kPlaceWidth || middle == from || middle == to) return GrowsTowards(middle);
        return FindsPole(from, middle) || FindsPole(middle, to);
    }
    /// Whether the ranges told all; where they do not, there are complex values on the way, or so many poles
    /// or so wide ranges that the search gave up.
    [[nodiscard]] bool IsTold() const { return isTold_; }

  private:
    static constexpr int kMostLooks = 400;
    static constexpr double kPlaceWidth = 1e-9;
    // Distances from the place, far above its width and above where rounding to 12 decimals makes noise.
    static constexpr std::array<double, 3> kDistances = {1e-3, 1e-4, 1e-5};
    // A growth that can be seen.
    static constexpr double kLeastGrowth = 0.05;
    // A logarithm grows by the same with each distance, powers by more; what is smooth by a tenth or less.
    static constexpr double kKeptGrowth = 0.25;

    using Heights = std::array<double, kDistances.size()>;

    // Sums and differences of the values on both sides, so that neither hides the other and slopes do not
    // count; those of one side alone where the function fails on the other.
    bool GrowsTowards(double place) {
        const std::optional<Heights> before = HeightsFrom(place, -1.0);
        const std::optional<Heights> behind = HeightsFrom(place, 1.0);
        if (!before && !behind) return false;
        Heights sums = behind.value_or(Heights{});
        Heights differences = sums;
        for (std::size_t i = 0; before && i < sums.size(); ++i) {
            sums[i] += (*before)[i];
            differences[i] -= (*before)[i];
        }
        const auto isInfinite = [](double height) { return !std::isfinite(height); };
        return std::ranges::any_of(sums, isInfinite) || Grows(sums) || Grows(differences);
    }

    // Nothing when the function fails at one of the distances.
    std::optional<Heights> HeightsFrom(double place, double side) {
        Heights heights{};
        for (std::size_t i = 0; i < heights.size(); ++i) {
            const std::optional<double> y = function_.At(place + side * kDistances[i]);
            if (!y) return std::nullopt;
            heights[i] = *y;
        }
        return heights;
    }

    static bool Grows(const Heights& heights) {
        const double early = std::fabs(heights[1] - heights[0]);
        const double late = std::fabs(heights[2] - heights[1]);
        return late > kLeastGrowth && late >= kKeptGrowth * early;
    }

    CurveFunction& function_;
    int looks_ = 0;
    bool isTold_ = true;
};

void MarkSegment(GraphCurve& curve, std::size_t segment) {
    const double from = curve.xValues[segment - 1];
    const double to = curve.xValues[segment];
    if (to - from > kHoleWidth) return;
    RangeSearch search(*curve.function);
    if (search.FindsPole(from, to)) {
        curve.isBehindPole[segment] = true;
    } else if (!search.IsTold()) {
        MarkPolesAtTurns(curve, segment - 1, segment);
    }
}

// Whole stretches of a curve without poles are passed with one look.
void MarkPolesByRanges(GraphCurve& curve, std::size_t first, std::size_t last) {
    if (first >= last) return;
    const std::optional<ValueRange> range =
        curve.function->RangeOver(curve.xValues[first], curve.xValues[last]);
    if (range && range->IsBounded()) return;
    if (last - first == 1) return MarkSegment(curve, last);
    const std::size_t middle = first + (last - first) / 2;
    MarkPolesByRanges(curve, first, middle);
    MarkPolesByRanges(curve, middle, last);
}

}  // namespace

GraphTurn TurnOf(double slope, double before, double after) {
    if (!((slope < 0 && before < after) || (slope > 0 && before > after))) return GraphTurn::none;
    const bool isJump = std::fabs(after - before) > kLargestJump * std::fabs(slope);
    return isJump || before * after < 0 ? GraphTurn::suppressed : GraphTurn::extremum;
}

void MarkPoles(GraphCurve& curve, std::size_t from, std::size_t to) {
    const auto count = static_cast<std::size_t>(curve.pointCount);
    if (count < 2) return;
    // The samples at the ends of the range may be turns only now that they have neighbours.
    const std::size_t first = std::max<std::size_t>(from, 1) - 1;
    const std::size_t last = std::min(to, count - 1);
    if (curve.function->HasRanges()) {
        MarkPolesByRanges(curve, first, last);
    } else {
        MarkPolesAtTurns(curve, first, last);
    }
}

}  // namespace quorix
