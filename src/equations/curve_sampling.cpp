#include "equations/curve_sampling.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "equations/curve_poles.h"

namespace quorix {
namespace {

// Width to which a domain edge is bisected.
constexpr double kEdgeWidth = 1e-10;
// Points that are evaluated together.
constexpr std::size_t kBlock = 64;
// Neighbours that lie further apart than this have a hole between them.
constexpr double kLargestSpacing = kSampleStep * 1.5;

struct Sample {
    double x;
    double y;
};

/// Room for samples in the order in which they are taken, away from the curve's end.
struct Strip {
    std::span<double> xValues;
    std::span<double> yValues;
    std::size_t count = 0;

    [[nodiscard]] bool IsFull() const { return count >= xValues.size(); }
    void Append(Sample sample) {
        if (IsFull()) return;
        xValues[count] = sample.x;
        yValues[count] = sample.y;
        ++count;
    }
};

// The good point nearest to the edge between a good sample and a bad abscissa. An edge finer than the doubles
// at hand ends the search as well.
Sample Edge(CurveFunction& function, Sample good, double bad) {
    while (std::fabs(good.x - bad) > kEdgeWidth) {
        const double middle = (good.x + bad) * 0.5;
        if (middle == good.x || middle == bad) break;
        if (const std::optional<double> y = function.At(middle)) {
            good = {middle, *y};
        } else {
            bad = middle;
        }
    }
    return good;
}

/// Steps from one end of a curve to a limit.
class Walk {
  public:
    /// step: kSampleStep to the right, -kSampleStep to the left. last: the sample at that end, if any.
    Walk(CurveFunction& function, CurveEnd& end, double step, std::optional<Sample> last, Strip room)
        : function_(function), end_(end), step_(step), last_(last), strip_(room) {}

    /// The number of samples taken.
    std::size_t To(double limit) {
        // Far from 0 the step would be lost in the abscissa.
        if (end_.next + step_ == end_.next || limit + step_ == limit) return 0;
        while (IsOnTheWay(end_.next, limit) && !strip_.IsFull()) {
            if (!end_.isHole) {
                RunWhileGood(limit);
            } else if (const std::optional<double> y = function_.At(end_.next)) {
                LeaveHole({end_.next, *y});
            } else {
                end_.next += step_;
            }
        }
        return strip_.count;
    }

  private:
    [[nodiscard]] bool IsOnTheWay(double x, double limit) const {
        return step_ > 0 ? x <= limit : x >= limit;
    }

    void RunWhileGood(double limit) {
        std::array<double, kBlock> xValues;
        std::array<double, kBlock> yValues;
        do {
            const std::span<const double> x = NextPoints(xValues, limit);
            const std::size_t count = function_.Values(x, yValues);
            for (std::size_t i = 0; i < count; ++i) Store({x[i], yValues[i]});
            if (count == x.size()) {
                end_.next = x.back() + step_;
                continue;
            }
            end_.next = x[count];
            const std::optional<double> y = function_.At(end_.next);
            if (!y) return EnterHole();
            Store({end_.next, *y});
            end_.next += step_;
        } while (IsOnTheWay(end_.next, limit) && !strip_.IsFull());
    }

    // The first of them is on the way.
    std::span<const double> NextPoints(std::span<double, kBlock> points, double limit) const {
        const std::size_t most = std::min(kBlock, strip_.xValues.size() - strip_.count);
        std::size_t count = 0;
        for (double x = end_.next; count < most && IsOnTheWay(x, limit); x += step_) points[count++] = x;
        return points.first(count);
    }

    // Seen from the left, the first good point is where the curve starts, edge or not; to the left of a
    // known bad abscissa a good one is the end of what comes from there.
    void LeaveHole(Sample sample) {
        if (last_ || step_ < 0) sample = Edge(function_, sample, sample.x - step_);
        Store(sample);
        end_ = {sample.x + step_, false};
    }

    void EnterHole() {
        if (last_) {
            const Sample edge = Edge(function_, *last_, end_.next);
            if (std::fabs(edge.x - last_->x) > kEdgeWidth) Store(edge);
        }
        end_ = {end_.next + step_, true};
    }

    void Store(Sample sample) {
        strip_.Append(sample);
        last_ = sample;
    }

    CurveFunction& function_;
    CurveEnd& end_;
    double step_;
    std::optional<Sample> last_;
    Strip strip_;
};

std::size_t CountOf(const GraphCurve& curve) {
    return static_cast<std::size_t>(curve.pointCount);
}

std::optional<Sample> SampleAt(const GraphCurve& curve, std::size_t index) {
    if (index >= CountOf(curve)) return std::nullopt;
    return Sample{curve.xValues[index], curve.yValues[index]};
}

// Moves samples [first, first + count) to `to`.
void MoveSamples(GraphCurve& curve, std::size_t first, std::size_t count, std::size_t to) {
    const auto move = [=](auto& values) {
        const auto from = values.begin() + static_cast<std::ptrdiff_t>(first);
        const auto target = values.begin() + static_cast<std::ptrdiff_t>(to);
        if (to < first) {
            std::copy_n(from, count, target);
        } else {
            std::copy_backward(from, from + static_cast<std::ptrdiff_t>(count),
                               target + static_cast<std::ptrdiff_t>(count));
        }
    };
    move(curve.xValues);
    move(curve.yValues);
    move(curve.isBehindPole);
}

// What is known behind a cut between the samples `kept` and `dropped`: a hole between them, through which the
// cut goes, or nothing.
CurveEnd EndBehindCut(std::optional<double> kept, double dropped, double cut, double step) {
    const bool isHole = !kept || std::fabs(dropped - *kept) > kLargestSpacing;
    return isHole ? CurveEnd{cut + step, true} : CurveEnd{*kept + step, false};
}

void DropRight(GraphCurve& curve, std::size_t kept, double cut) {
    if (kept >= CountOf(curve)) return;
    const double dropped = curve.xValues[kept];
    const std::optional<double> last = kept > 0 ? std::optional(curve.xValues[kept - 1]) : std::nullopt;
    curve.right = EndBehindCut(last, dropped, cut, kSampleStep);
    curve.pointCount = static_cast<std::int32_t>(kept);
}

void DropLeft(GraphCurve& curve, std::size_t dropped, double cut) {
    if (dropped == 0) return;
    const std::size_t kept = CountOf(curve) - dropped;
    const std::optional<double> first = kept > 0 ? std::optional(curve.xValues[dropped]) : std::nullopt;
    curve.left = EndBehindCut(first, curve.xValues[dropped - 1], cut, -kSampleStep);
    MoveSamples(curve, dropped, kept, 0);
    curve.pointCount = static_cast<std::int32_t>(kept);
}

void ExtendRight(GraphCurve& curve, double to) {
    const std::size_t count = CountOf(curve);
    const std::optional<Sample> last = count > 0 ? SampleAt(curve, count - 1) : std::nullopt;
    const Strip room{std::span(curve.xValues).subspan(count), std::span(curve.yValues).subspan(count)};
    const std::size_t added = Walk(*curve.function, curve.right, kSampleStep, last, room).To(to);
    if (added == 0) return;
    std::fill_n(curve.isBehindPole.begin() + curve.pointCount, added, false);
    curve.pointCount += static_cast<std::int32_t>(added);
    MarkPoles(curve, count, count + added);
}

void ExtendLeft(GraphCurve& curve, double from) {
    std::array<double, kMostSamples> xValues;
    std::array<double, kMostSamples> yValues;
    const std::size_t added =
        Walk(*curve.function, curve.left, -kSampleStep, SampleAt(curve, 0), {xValues, yValues}).To(from);
    if (added == 0) return;
    const std::size_t kept = std::min(static_cast<std::size_t>(kMostSamples) - added, CountOf(curve));
    const bool isCut = kept < CountOf(curve);
    MoveSamples(curve, 0, kept, added);
    std::reverse_copy(xValues.begin(), xValues.begin() + static_cast<std::ptrdiff_t>(added),
                      curve.xValues.begin());
    std::reverse_copy(yValues.begin(), yValues.begin() + static_cast<std::ptrdiff_t>(added),
                      curve.yValues.begin());
    std::fill_n(curve.isBehindPole.begin(), std::min<std::size_t>(added + 1, kMostSamples), false);
    curve.pointCount = static_cast<std::int32_t>(added + kept);
    if (isCut) curve.right = {curve.xValues[CountOf(curve) - 1] + kSampleStep, false};
    MarkPoles(curve, 0, added + 1);
}

}  // namespace

void SampleCurve(GraphCurve& curve, double from, double to) {
    curve.pointCount = 0;
    curve.right = {from, false};
    curve.left = {from - kSampleStep, false};
    if (!(from <= to)) return;
    ExtendRight(curve, to);
    curve.left.isHole = curve.pointCount == 0 || curve.xValues[0] != from;
}

void TrimCurve(GraphCurve& curve, double from, double to) {
    const auto begin = curve.xValues.begin();
    const auto end = begin + curve.pointCount;
    DropRight(curve, static_cast<std::size_t>(std::upper_bound(begin, end, to) - begin), to);
    const auto keptEnd = begin + curve.pointCount;
    DropLeft(curve, static_cast<std::size_t>(std::lower_bound(begin, keptEnd, from) - begin), from);
}

void ExtendCurve(GraphCurve& curve, double from, double to) {
    if (to < curve.left.next || from > curve.right.next) {
        SampleCurve(curve, from, to);
        return;
    }
    ExtendLeft(curve, from);
    ExtendRight(curve, to);
}

}  // namespace quorix
