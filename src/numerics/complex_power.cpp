#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/range.h"
#include "numerics/wide_complex.h"

namespace quorix {
namespace {

bool IsWhole(const QReal& a) {
    QReal floor;
    qfloor(a, floor);
    return qcmp(floor, a) == 0;
}

// a^b for a negative real a and a real b that is not whole.
void PowerOfNegative(const QReal& a, const QReal& b, QComplex& result) {
    QReal magnitude = a, twice, power;
    qabs(magnitude);
    qpow(magnitude, b, power);
    qldexp(b, 1, twice);
    if (!IsWhole(twice)) {
        // A real negative root by convention: (-8)^(1/3) is -2.
        if (!power.IsZero()) qneg(power);
        result = {power, QReal{}};
        return;
    }
    // i to the odd number 2b: -i if 2b is 3 modulo 4, that is if b - 1/2 is odd.
    QReal quarter;
    qsub(constants::kHalf, b, quarter);
    qldexp(quarter, -1, quarter);
    if (!IsWhole(quarter) && !power.IsZero()) qneg(power);
    result = {QReal{}, power};
}

void PowerOfZero(const QComplex& b, QComplex& result) {
    const bool isNegative = b.re.IsNegative();
    const bool hasRealPart = !b.re.IsZero(), hasImaginaryPart = !b.im.IsZero();
    result = {};
    if (hasRealPart && !isNegative) return;
    if (hasRealPart || hasImaginaryPart) mtherr("qcpow", NUMERIC_DOMAIN);
    if (hasRealPart) {
        qinfin(result.re);
    } else {
        result.re = constants::kOne;
    }
}

}  // namespace

// The squares of numbers with an exponent difference of 337 or more do not reach each other.
Wide Magnitude(const WideComplex& z) {
    if (z.im.IsZero()) return Magnitude(z.re);
    if (z.re.IsZero()) return Magnitude(z.im);
    return SquareRoot(z.re * z.re + z.im * z.im);
}

WideComplex Exp(const WideComplex& z) {
    const Wide magnitude = Exp(z.re);
    if (z.im.IsZero()) return {magnitude, kWideZero};
    const auto [sine, cosine] = SineAndCosine(z.im);
    return {magnitude * cosine, magnitude * sine};
}

// Near the unit circle ln|z| is half of ln(1 + u) with u = (a - 1)(a + 1) + b^2, a the larger part, which
// keeps its digits.
WideComplex Log(const WideComplex& z) {
    const Wide angle = Angle(z.im, z.re);
    Wide a = Magnitude(z.re), b = Magnitude(z.im);
    if (Compare(a, b) < 0) std::swap(a, b);
    if (b.IsZero()) return {Log(a), angle};
    const Wide u = (a - kWideOne) * (a + kWideOne) + b * b;
    if (u.IsZero() || u.exponent <= -2) return {Scaled(LogOnePlus(u), -1), angle};
    return {Scaled(Log(a * a + b * b), -1), angle};
}

// With m the magnitude, the larger part is sqrt((m + |x|)/2) and the other one half of |y| over it.
WideComplex SquareRoot(const WideComplex& z) {
    if (z.IsZero()) return {};
    const Wide larger = SquareRoot(Scaled(Magnitude(z) + Magnitude(z.re), -1));
    const Wide smaller = Scaled(Magnitude(z.im), -1) / larger;
    if (!z.re.IsNegative()) return {larger, WithSignOf(smaller, z.im)};
    return {smaller, z.im.IsNegative() ? -larger : larger};
}

void qcneg(QComplex& z) {
    if (!z.re.IsZero()) qneg(z.re);
    if (!z.im.IsZero()) qneg(z.im);
}

void qcmov(const QComplex& a, QComplex& b) {
    b = a;
}

void qcabs(const QComplex& z, QReal& result) {
    Narrow(Magnitude(Widen(z)), "qsqrt", result);
}

void qcexp(const QComplex& z, QComplex& result) {
    if (z.im.IsZero()) {
        qexp(z.re, result.re);
        return qclear(result.im);
    }
    const Wide magnitude = Exp(Widen(z.re));
    const auto [sine, cosine] = SineAndCosineOfStored(Widen(z.im));
    Narrow(WideComplex{magnitude * cosine, magnitude * sine}, "qexp", result);
}

void qclog(const QComplex& z, QComplex& result) {
    if (z.re.IsZero() && z.im.IsZero()) {
        result = {};
        return qlog(z.re, result.re);
    }
    Narrow(Log(Widen(z)), "qlog", result);
}

void qcsqrt(const QComplex& z, QComplex& result) {
    Narrow(SquareRoot(Widen(z)), "qsqrt", result);
}

void qcpow(const QComplex& a, const QComplex& b, QComplex& result) {
    if (a.re.IsZero() && a.im.IsZero()) return PowerOfZero(QComplex(b), result);
    if (a.im.IsZero() && b.im.IsZero()) {
        if (a.re.IsNegative() && !IsWhole(b.re)) return PowerOfNegative(QReal(a.re), QReal(b.re), result);
        qpow(a.re, b.re, result.re);
        result.im = QReal{};
        return;
    }
    const WideComplex logarithm = Log(Widen(a)), exponent = Widen(b);
    const WideComplex product{exponent.re * logarithm.re - exponent.im * logarithm.im,
                              exponent.re * logarithm.im + exponent.im * logarithm.re};
    // i^2 is -1: an angle within the roundings of a and b of a quarter turn is that quarter turn.
    const Wide magnitude = Exp(product.re);
    const auto [sine, cosine] = SineAndCosineOfStored(product.im);
    Narrow(WideComplex{magnitude * cosine, magnitude * sine}, "qexp", result);
}

}  // namespace quorix
