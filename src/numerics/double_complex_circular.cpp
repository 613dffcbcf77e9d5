// Circular functions and their inverses on pairs of doubles.

#include <cmath>
#include <numbers>

#include "numerics/double_complex.h"

namespace quorix::dcomplex {

namespace {

constexpr DComplex kI{0.0, 1.0};
constexpr DComplex kOne{1.0, 0.0};

bool IsReal(DComplex z) {
    return z.im == 0.0;
}

}  // namespace

DComplex complex_part::sin(DComplex z) {
    return {std::sin(z.re) * std::cosh(z.im), std::cos(z.re) * std::sinh(z.im)};
}

DComplex complex_part::cos(DComplex z) {
    return {std::cos(z.re) * std::cosh(z.im), -std::sin(z.re) * std::sinh(z.im)};
}

DComplex tan(DComplex z) {
    if (IsReal(z)) {
        return {std::tan(z.re), 0.0};
    }
    const double y = z.im;
    if (std::fabs(y) < 1.0) {
        const double sinhY = std::sinh(y);
        const double cosX = std::cos(z.re);
        const double d = 1.0 / (sinhY * sinhY + cosX * cosX);
        return {std::sin(2.0 * z.re) * d / 2.0, std::sinh(2.0 * y) * d / 2.0};
    }
    // With u = e^-|y|: sinh² y = (1 - u²)²/(4u²), so numerator and denominator are taken times 4u², which
    // nothing overflows.
    const double u = std::exp(-std::fabs(y));
    const double u2 = u * u;
    const double cosX = std::cos(z.re);
    const double d = 1.0 / ((1.0 - u2) * (1.0 - u2) + 4.0 * u2 * cosX * cosX);
    return {2.0 * std::sin(2.0 * z.re) * u2 * d, std::copysign((1.0 - u2 * u2) * d, y)};
}

DComplex cot(DComplex z) {
    return reciprocal(tan(z));
}
DComplex sec(DComplex z) {
    return reciprocal(cos(z));
}
DComplex csc(DComplex z) {
    return reciprocal(sin(z));
}

DComplex asin(DComplex z) {
    if (IsReal(z) && std::fabs(z.re) <= 1.0) {
        return {std::asin(z.re), 0.0};
    }
    // -i ln(iz + sqrt(1 - z²))
    const DComplex root = sqrt(subtract(kOne, multiply(z, z)));
    const DComplex logarithm = ln(add(multiply(kI, z), root));
    return {logarithm.im, -logarithm.re};
}

DComplex acos(DComplex z) {
    if (IsReal(z) && std::fabs(z.re) <= 1.0) {
        return {std::acos(z.re), 0.0};
    }
    return subtract({std::numbers::pi / 2.0, 0.0}, asin(z));
}

DComplex atan(DComplex z) {
    if (IsReal(z)) {
        return {std::atan(z.re), 0.0};
    }
    // (i/2) ln((i + z)/(i - z))
    const DComplex logarithm = ln(divide(add(kI, z), subtract(kI, z)));
    return {-logarithm.im / 2.0, logarithm.re / 2.0};
}

DComplex acot(DComplex z) {
    return atan(reciprocal(z));
}
DComplex asec(DComplex z) {
    return acos(reciprocal(z));
}
DComplex acsc(DComplex z) {
    return asin(reciprocal(z));
}

}  // namespace quorix::dcomplex
