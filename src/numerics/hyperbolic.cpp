#include "numerics/qfunctions.h"
#include "numerics/sine_series.h"
#include "numerics/tangent_fraction.h"
#include "numerics/wide_functions.h"

namespace quorix {
namespace {

// Binary exponents from which tanh is 1 in 384 bits.
constexpr int kLargeTanhExponent = 9;
// Below 1 the continued fraction takes as many odd numbers.
constexpr int kTanhLevels = 38;

}  // namespace

Wide Sinh(const Wide& x) {
    if (x.IsZero()) return {};
    // Below 1/2 the difference of the exponentials would cancel.
    if (x.exponent < 0) return x + x * SineSeries(x * x, SeriesSigns::kPositive);
    const Wide e = Exp(Magnitude(x));
    return WithSignOf(Scaled(e - kWideOne / e, -1), x);
}

Wide Cosh(const Wide& x) {
    if (x.IsZero()) return kWideOne;
    const Wide e = Exp(Magnitude(x));
    return Scaled(e + kWideOne / e, -1);
}

Wide Tanh(const Wide& x) {
    if (x.IsZero()) return {};
    if (x.exponent >= kLargeTanhExponent) return WithSignOf(kWideOne, x);
    if (x.exponent <= 0) {
        const TangentFraction fraction = HyperbolicTangentFraction(ToFraction(x * x), kTanhLevels);
        return x * FromFraction(fraction.denominator) / FromFraction(fraction.numerator);
    }
    const Wide e = Exp(Magnitude(x));
    const Wide inverse = kWideOne / e;
    return WithSignOf((e - inverse) / (e + inverse), x);
}

void qsinh(const QReal& x, QReal& result) {
    Narrow(Sinh(Widen(x)), "qexp", result);
}

void qcosh(const QReal& x, QReal& result) {
    Narrow(Cosh(Widen(x)), "qexp", result);
}

void qtanh(const QReal& x, QReal& result) {
    Narrow(Tanh(Widen(x)), "qtanh", result);
}

}  // namespace quorix
