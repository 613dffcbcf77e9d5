#include "engine/root_search.h"

#include <cmath>
#include <utility>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr int kMostSteps = 99;
constexpr double kZeroAtEnd = 1e-8;
constexpr double kRelativeTolerance = 2e-6;
constexpr double kAbsoluteTolerance = 5e-13;

double NotFound() {
    if (calcContext().calcError == 0) {
        calcContext().calcError = ERROR_ROOT_NOT_FOUND;
    }
    return 0.0;
}

/// The bracket: b is the best estimate, c its counterpoint, a the estimate before.
struct Bracket {
    double a, b, c;
    double fa, fb, fc;
    double step;
    double stepBefore;

    /// c has the other sign, b the smaller value.
    void Order() {
        if ((fb > 0.0) == (fc > 0.0)) {
            c = a;
            fc = fa;
            stepBefore = step = b - a;
        }
        if (std::fabs(fc) < std::fabs(fb)) {
            a = b;
            b = c;
            c = a;
            fa = fb;
            fb = fc;
            fc = fa;
        }
    }

    /// The next step by interpolation where it converges, else by bisection.
    void ChooseStep(double tolerance, double half) {
        if (std::fabs(stepBefore) < tolerance || std::fabs(fa) <= std::fabs(fb)) {
            stepBefore = step = half;
            return;
        }
        const double s = fb / fa;
        double p;
        double q;
        if (a == c) {
            p = 2.0 * half * s;
            q = 1.0 - s;
        } else {
            const double t = fa / fc;
            const double r = fb / fc;
            p = s * (2.0 * half * t * (t - r) - (b - a) * (r - 1.0));
            q = (t - 1.0) * (r - 1.0) * (s - 1.0);
        }
        if (p > 0.0) {
            q = -q;
        }
        p = std::fabs(p);
        const double inside = 3.0 * half * q - std::fabs(tolerance * q);
        if (2.0 * p < std::fmin(inside, std::fabs(stepBefore * q))) {
            stepBefore = step;
            step = p / q;
        } else {
            stepBefore = step = half;
        }
    }
};

}  // namespace

double BrentRoot(const std::function<double(double)>& f, double a, double b) {
    const double fa = f(a);
    const double fb = f(b);
    if (calcContext().calcError != 0) {
        return 0.0;
    }
    if (std::fabs(fa) < kZeroAtEnd) {
        return a;
    }
    if (std::fabs(fb) < kZeroAtEnd) {
        return b;
    }
    if (!(fa * fb <= 0.0)) {
        return NotFound();
    }
    Bracket bracket{a, b, b, fa, fb, fb, b - a, b - a};
    for (int count = 0; count < kMostSteps; ++count) {
        bracket.Order();
        const double tolerance = kRelativeTolerance * std::fabs(bracket.b) + kAbsoluteTolerance;
        const double half = (bracket.c - bracket.b) / 2.0;
        if (std::fabs(half) <= tolerance || bracket.fb == 0.0) {
            return bracket.b;
        }
        bracket.ChooseStep(tolerance, half);
        bracket.a = bracket.b;
        bracket.fa = bracket.fb;
        bracket.b += std::fabs(bracket.step) > tolerance ? bracket.step : std::copysign(tolerance, half);
        bracket.fb = f(bracket.b);
        if (calcContext().calcError != 0) {
            return 0.0;
        }
    }
    return NotFound();
}

QReal CallRootSearch(NamedArguments& arguments) {
    std::u16string expression = arguments.ExpandedText();
    std::u16string variable(arguments.Text());
    const double lower = arguments.Double();
    const double upper = arguments.Double();
    if (calcContext().calcError != 0) {
        return {};
    }
    const BoundExpressionScope scope({std::move(expression), std::move(variable)});
    ClearCalcError();
    const double root = BrentRoot(EvalBoundDoubleCached, lower, upper);
    QReal result;
    if (std::isfinite(root)) {
        etoq(root, result);
    } else {
        NotFound();
    }
    return result;
}

}  // namespace quorix
