#include "engine/integral.h"

#include <array>
#include <cmath>
#include <utility>

#include "engine/bound_expression.h"
#include "engine/busy_signal.h"
#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr int kMostRefinements = 12;
/// Refinements that one extrapolation uses.
constexpr int kExtrapolated = 5;
constexpr double kRelativeError = 1e-6;
/// Share of span times mean magnitude below which an integral cannot be told from 0.
constexpr double kNoiseShare = 1e-14;

struct Extrapolation {
    double value;
    double error;
};

/// Value at h = 0 of the polynomial through the points (h[i], s[i]), with the last correction as error
/// estimate (Neville's scheme; h descends).
Extrapolation ExtrapolateToZero(const double* h, const double* s) {
    std::array<double, kExtrapolated> c{};
    std::array<double, kExtrapolated> d{};
    std::copy_n(s, kExtrapolated, c.begin());
    std::copy_n(s, kExtrapolated, d.begin());
    // The point nearest to 0 is the last one.
    int nearest = kExtrapolated - 1;
    Extrapolation result{s[nearest--], 0.0};
    for (int m = 1; m < kExtrapolated; ++m) {
        for (int i = 0; i < kExtrapolated - m; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const double left = h[i];
            const double right = h[i + m];
            const double factor = (c[at + 1] - d[at]) / (left - right);
            d[at] = right * factor;
            c[at] = left * factor;
        }
        result.error = 2 * (nearest + 1) < kExtrapolated - m ? c[static_cast<std::size_t>(nearest + 1)]
                                                             : d[static_cast<std::size_t>(nearest--)];
        result.value += result.error;
    }
    return result;
}

/// Trapezoid sums with ever more points, and the mean magnitude of all samples.
class Trapezoids {
  public:
    Trapezoids(const std::function<double(double)>& f, double a, double b) : f_(f), a_(a), b_(b) {}

    /// The j-th refinement, j = 1, 2, ... in turn. Stops at the first code in calcError.
    double Refine(int j) {
        if (j == 1) {
            sum_ = (b_ - a_) * (Sample(a_) + Sample(b_)) / 2.0;
            return sum_;
        }
        const int points = 1 << (j - 2);
        const double spacing = (b_ - a_) / points;
        double x = a_ + spacing / 2.0;
        double added = 0.0;
        for (int i = 0; i < points && calcContext().calcError == 0; ++i) {
            added += Sample(x);
            x += spacing;
        }
        sum_ = (sum_ + (b_ - a_) * added / points) / 2.0;
        return sum_;
    }
    [[nodiscard]] double NoiseFloor() const { return kNoiseShare * (b_ - a_) * magnitudes_ / samples_; }

  private:
    double Sample(double x) {
        if (calcContext().calcError != 0) {
            return 0.0;
        }
        const double y = f_(x);
        magnitudes_ += std::fabs(y);
        ++samples_;
        return y;
    }

    const std::function<double(double)>& f_;
    double a_;
    double b_;
    double sum_ = 0.0;
    double magnitudes_ = 0.0;
    int samples_ = 0;
};

}  // namespace

double Romberg(const std::function<double(double)>& f, double a, double b) {
    std::array<double, kMostRefinements + 1> h{};
    std::array<double, kMostRefinements> s{};
    Trapezoids trapezoids(f, a, b);
    h[0] = 1.0;
    for (int j = 1; j <= kMostRefinements; ++j) {
        const auto at = static_cast<std::size_t>(j - 1);
        s[at] = trapezoids.Refine(j);
        if (calcContext().calcError != 0) {
            return 0.0;
        }
        if (j >= kExtrapolated) {
            const Extrapolation limit =
                ExtrapolateToZero(&h[at + 1 - kExtrapolated], &s[at + 1 - kExtrapolated]);
            const double floor = trapezoids.NoiseFloor();
            if (std::fabs(limit.error) <= kRelativeError * std::fabs(limit.value) ||
                std::fabs(limit.error) < floor) {
                return std::fabs(limit.value) < floor ? 0.0 : limit.value;
            }
        }
        h[at + 1] = h[at] / 4.0;
    }
    calcContext().calcError = ERROR_INTEGRATION;
    return 0.0;
}

QReal CallIntegral(NamedArguments& arguments) {
    std::u16string expression = arguments.ExpandedText();
    std::u16string variable(arguments.Text());
    double lower = arguments.Double();
    double upper = arguments.Double();
    if (calcContext().calcError != 0) {
        return {};
    }
    SetAngleUnit(UNIT_RADIANS);
    if (lower == upper) {
        return {};
    }
    if (lower > upper) {
        // The sign is not turned: the integral ignores the order of its limits. This is intended.
        std::swap(lower, upper);
    }
    const BoundExpressionScope scope({std::move(expression), std::move(variable)});
    const BusyScope busy;
    ClearCalcError();
    const double value =
        Romberg([](double x) { return EvalBoundDouble(x, boundExpression().text); }, lower, upper);
    QReal result;
    if (std::isfinite(value)) {
        etoq(value, result);
    } else if (calcContext().calcError == 0) {
        calcContext().calcError = ERROR_OUT_OF_RANGE;
    }
    return result;
}

}  // namespace quorix
