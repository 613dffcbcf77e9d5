#include "numerics/qfunctions.h"
#include "numerics/wide_complex.h"

namespace quorix {
namespace {

// Beyond this binary exponent of y the tangent of x + iy is i or -i in 384 bits.
constexpr int kLargeImaginaryExponent = 9;

struct Parts {
    Wide sin, cos, sinh, cosh;
};

// The functions of the real part of z and the hyperbolic ones of the imaginary part; a zero part costs
// nothing.
Parts Evaluate(const WideComplex& z) {
    const auto [sine, cosine] = SineAndCosineOfStored(z.re);
    if (z.im.IsZero()) return {sine, cosine, kWideZero, kWideOne};
    return {sine, cosine, Sinh(z.im), Cosh(z.im)};
}

WideComplex Sine(const WideComplex& z) {
    const Parts p = Evaluate(z);
    return {p.sin * p.cosh, p.cos * p.sinh};
}

WideComplex Cosine(const WideComplex& z) {
    const Parts p = Evaluate(z);
    return {p.cos * p.cosh, -(p.sin * p.sinh)};
}

// With d = cos^2 x + sinh^2 y the tangent is (sin x cos x / d, sinh y cosh y / d).
WideComplex Tangent(const WideComplex& z) {
    if (z.im.IsZero()) {
        if (SineAndCosineOfStored(z.re).sin.IsZero()) return {};
        // Not the cosine that may be 0: a pole gives a very large number.
        const auto [sine, cosine] = SineAndCosine(z.re);
        return {sine / cosine, kWideZero};
    }
    if (z.re.IsZero()) return {kWideZero, Tanh(z.im)};
    const Parts p = Evaluate(z);
    if (z.im.exponent >= kLargeImaginaryExponent) {
        // There cosh y equals |sinh y|, and cos^2 x does not reach sinh^2 y.
        return {p.sin * p.cos / (p.cosh * p.cosh), WithSignOf(kWideOne, z.im)};
    }
    const Wide d = p.cos * p.cos + p.sinh * p.sinh;
    return {p.sin * p.cos / d, p.sinh * p.cosh / d};
}

// With d = sin^2 x + sinh^2 y, which is not zero, the cotangent is (sin x cos x / d, -sinh y cosh y / d).
WideComplex Cotangent(const WideComplex& z) {
    const Parts p = Evaluate(z);
    if (z.im.exponent >= kLargeImaginaryExponent && !z.im.IsZero()) {
        return {p.sin * p.cos / (p.cosh * p.cosh), -WithSignOf(kWideOne, z.im)};
    }
    const Wide d = p.sin * p.sin + p.sinh * p.sinh;
    return {p.sin * p.cos / d, -(p.sinh * p.cosh / d)};
}

}  // namespace

// Real arguments need only one of the two series.
void qcsin(const QComplex& z, QComplex& result) {
    if (z.im.IsZero()) {
        qsin(z.re, result.re);
        return qclear(result.im);
    }
    Narrow(Sine(Widen(z)), "qexp", result);
}

void qccos(const QComplex& z, QComplex& result) {
    if (z.im.IsZero()) {
        qcos(z.re, result.re);
        return qclear(result.im);
    }
    Narrow(Cosine(Widen(z)), "qexp", result);
}

void qctan(const QComplex& z, QComplex& result) {
    Narrow(Tangent(Widen(z)), "qcdiv", result);
}

void qccot(const QComplex& z, QComplex& result) {
    const WideComplex wide = Widen(z);
    if (wide.im.IsZero() && SineAndCosineOfStored(wide.re).sin.IsZero()) {
        mtherr("qcdiv", NUMERIC_OVERFLOW);
        result = {};
        return qinfin(result.re);
    }
    Narrow(Cotangent(wide), "qcdiv", result);
}

// sinh z = -i sin iz, cosh z = cos iz, tanh z = -i tan iz.
void qcsinh(const QComplex& z, QComplex& result) {
    Narrow(TimesMinusI(Sine(TimesI(Widen(z)))), "qexp", result);
}

void qccosh(const QComplex& z, QComplex& result) {
    Narrow(Cosine(TimesI(Widen(z))), "qexp", result);
}

void qctanh(const QComplex& z, QComplex& result) {
    Narrow(TimesMinusI(Tangent(TimesI(Widen(z)))), "qcdiv", result);
}

}  // namespace quorix
