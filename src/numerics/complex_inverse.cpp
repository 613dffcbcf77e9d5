#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/wide_complex.h"

namespace quorix {
namespace {

// ln(x + sqrt(x^2 + 1)) for x >= 0; for small x as ln(1 + u) with u = x + x^2/(1 + sqrt(x^2 + 1)).
Wide InverseSinh(const Wide& x) {
    if (x.IsZero()) return {};
    const Wide a = Magnitude(x), square = a * a;
    const Wide root = SquareRoot(square + kWideOne);
    const Wide u = a + square / (kWideOne + root);
    return WithSignOf(u.exponent <= -2 ? LogOnePlus(u) : Log(a + root), x);
}

// W. Kahan, "Branch cuts for complex elementary functions" (1987): with p = sqrt(1 - z), q = sqrt(1 + z) the
// arc sine is (atan(x / Re(p q)), asinh(Im(conj(p) q))), which keeps the digits of both parts where the
// logarithm would cancel. On the cuts the sign of the imaginary part is turned to that of -i ln(iz + sqrt(1 -
// z^2)).
WideComplex InverseSine(const WideComplex& z) {
    const WideComplex p = SquareRoot(WideComplex{kWideOne - z.re, -z.im});
    const WideComplex q = SquareRoot(WideComplex{kWideOne + z.re, z.im});
    const Wide re = Angle(z.re, p.re * q.re - p.im * q.im);
    const Wide im = InverseSinh(p.re * q.im - p.im * q.re);
    if (z.im.IsZero() && !im.IsZero()) return {WithSignOf(Scaled(kWidePi, -1), z.re), WithSignOf(im, -z.re)};
    return {re, im};
}

// By the same source (2 atan(Re p / Re q), asinh(Im(conj(q) p))), on the cuts pi/2 minus the arc sine.
WideComplex InverseCosine(const WideComplex& z) {
    const WideComplex p = SquareRoot(WideComplex{kWideOne - z.re, -z.im});
    const WideComplex q = SquareRoot(WideComplex{kWideOne + z.re, z.im});
    const Wide re = Scaled(Angle(p.re, q.re), 1);
    const Wide im = InverseSinh(q.re * p.im - q.im * p.re);
    if (z.im.IsZero() && !im.IsZero()) return {z.re.IsNegative() ? kWidePi : kWideZero, WithSignOf(im, z.re)};
    return {re, im};
}

// z is neither i nor -i. The imaginary part is ln(1 + 4y/(x^2 + (1 - y)^2))/4, taken for |y| so that nothing
// cancels.
WideComplex InverseTangent(const WideComplex& z) {
    if (z.im.IsZero()) return {Arctangent(z.re), kWideZero};
    const Wide square = z.re * z.re;
    const Wide y = Magnitude(z.im);
    const Wide less = kWideOne - y, more = kWideOne + y;
    const Wide ratio = Scaled(y, 2) / (square + less * less);
    const Wide im = Scaled(ratio.exponent <= -2 ? LogOnePlus(ratio) : Log(kWideOne + ratio), -2);
    Wide re;
    if (z.re.IsZero()) {
        re = less.IsNegative() ? WithSignOf(Scaled(kWidePi, -1), z.im) : kWideZero;
    } else {
        re = Scaled(Angle(Scaled(z.re, 1), less * more - square), -1);
    }
    return {re, WithSignOf(im, z.im)};
}

}  // namespace

void qcasin(const QComplex& z, QComplex& result) {
    Narrow(InverseSine(Widen(z)), "qlog", result);
}

void qcacos(const QComplex& z, QComplex& result) {
    Narrow(InverseCosine(Widen(z)), "qlog", result);
}

void qcatan(const QComplex& z, QComplex& result) {
    QReal magnitude = z.im;
    qabs(magnitude);
    if (z.re.IsZero() && magnitude == constants::kOne) {
        mtherr("qcatan", NUMERIC_SINGULARITY);
        const bool isNegative = z.im.IsNegative();
        result = {};
        qinfin(result.im);
        if (!isNegative) qneg(result.im);
        return;
    }
    Narrow(InverseTangent(Widen(z)), "qlog", result);
}

// asinh z = -i asin iz, atanh z = -i atan iz.
void qcasinh(const QComplex& z, QComplex& result) {
    if (z.im.IsZero()) {
        Narrow(WideComplex{InverseSinh(Widen(z.re)), kWideZero}, "qlog", result);
        return;
    }
    Narrow(TimesMinusI(InverseSine(TimesI(Widen(z)))), "qlog", result);
}

// i acos z, or its negative where the real part would fall below 0.
void qcacosh(const QComplex& z, QComplex& result) {
    const WideComplex w = TimesI(InverseCosine(Widen(z)));
    Narrow(w.re.IsNegative() ? WideComplex{-w.re, -w.im} : w, "qlog", result);
}

void qcatanh(const QComplex& z, QComplex& result) {
    QComplex turned = z;
    if (!z.im.IsZero()) qneg(turned.im);
    turned = {turned.im, z.re};
    qcatan(turned, turned);
    result = {turned.im, turned.re};
    if (!result.im.IsZero()) qneg(result.im);
}

}  // namespace quorix
