// Arithmetic, powers and logarithms on pairs of doubles.

#include "numerics/double_complex.h"

#include <cmath>

namespace quorix::dcomplex {

// The square root of a square is the number itself, but for squares out of range.
double magnitude(DComplex z) {
    if (z.im == 0.0) {
        return std::fabs(z.re);
    }
    return std::sqrt(z.re * z.re + z.im * z.im);
}

double argument(DComplex z) {
    return std::atan2(z.im, z.re);
}

DComplex add(DComplex a, DComplex b) {
    return {a.re + b.re, a.im + b.im};
}

DComplex subtract(DComplex a, DComplex b) {
    return {a.re - b.re, a.im - b.im};
}

DComplex multiply(DComplex a, DComplex b) {
    if (a.im == 0.0 && b.im == 0.0) {
        return {a.re * b.re, 0.0};
    }
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

DComplex divide(DComplex a, DComplex b) {
    if (b.im == 0.0) {
        return {a.re / b.re, a.im == 0.0 ? 0.0 : a.im / b.re};
    }
    return multiply(a, reciprocal(b));
}

DComplex reciprocal(DComplex z) {
    if (z.im == 0.0) {
        return {1.0 / z.re, 0.0};
    }
    const double d = 1.0 / (z.re * z.re + z.im * z.im);
    return {z.re * d, -z.im * d};
}

DComplex pow(DComplex a, DComplex b) {
    if (a.re == 0.0 && a.im == 0.0) {
        return {};
    }
    const double logarithm = std::log(magnitude(a));
    const double theta = argument(a);
    const double size = std::exp(b.re * logarithm - b.im * theta);
    const double angle = b.re * theta + b.im * logarithm;
    return {std::cos(angle) * size, std::sin(angle) * size};
}

DComplex ln(DComplex z) {
    return {std::log(magnitude(z)), argument(z)};
}

DComplex log10(DComplex z) {
    const DComplex natural = ln(z);
    constexpr double kLn10 = 2.302585092994045684;
    return {natural.re / kLn10, natural.im / kLn10};
}

DComplex sqrt(DComplex z) {
    const double a = std::fabs(z.re);
    const double b = std::fabs(z.im);
    if (a == 0.0 && b == 0.0) {
        return {};
    }
    double w;
    if (a >= b) {
        const double ratio = b / a;
        w = std::sqrt(a) * std::sqrt((1.0 + std::sqrt(1.0 + ratio * ratio)) / 2.0);
    } else {
        const double ratio = a / b;
        w = std::sqrt(b) * std::sqrt((ratio + std::sqrt(1.0 + ratio * ratio)) / 2.0);
    }
    if (z.re >= 0.0) {
        return {w, z.im / (2.0 * w)};
    }
    const double signedW = z.im >= 0.0 ? w : -w;
    return {z.im / (2.0 * signedW), signedW};
}

DComplex complex_part::exp(DComplex z) {
    const double size = std::exp(z.re);
    return {size * std::cos(z.im), size * std::sin(z.im)};
}

}  // namespace quorix::dcomplex
