// Hyperbolic functions and their inverses on pairs of doubles.

#include <cmath>

#include "numerics/double_complex.h"

namespace quorix::dcomplex {

namespace {

constexpr DComplex kOne{1.0, 0.0};

bool IsReal(DComplex z) {
    return z.im == 0.0;
}

}  // namespace

DComplex sinh(DComplex z) {
    if (IsReal(z)) {
        return {std::sinh(z.re), 0.0};
    }
    return {std::sinh(z.re) * std::cos(z.im), std::cosh(z.re) * std::sin(z.im)};
}

DComplex cosh(DComplex z) {
    if (IsReal(z)) {
        return {std::cosh(z.re), 0.0};
    }
    return {std::cosh(z.re) * std::cos(z.im), std::sinh(z.re) * std::sin(z.im)};
}

DComplex tanh(DComplex z) {
    if (IsReal(z)) {
        return {std::tanh(z.re), 0.0};
    }
    // tanh z = -i tan(iz), whose formulas do not overflow.
    const DComplex turned = tan({-z.im, z.re});
    return {turned.im, -turned.re};
}

DComplex coth(DComplex z) {
    return reciprocal(tanh(z));
}
DComplex sech(DComplex z) {
    return reciprocal(cosh(z));
}
DComplex csch(DComplex z) {
    return reciprocal(sinh(z));
}

DComplex asinh(DComplex z) {
    if (IsReal(z)) {
        return {std::asinh(z.re), 0.0};
    }
    return ln(add(z, sqrt(add(multiply(z, z), kOne))));
}

DComplex acosh(DComplex z) {
    if (IsReal(z) && z.re >= 1.0) {
        return {std::acosh(z.re), 0.0};
    }
    // sqrt(z - 1) sqrt(z + 1) in place of sqrt(z² - 1) keeps the real part from falling below 0.
    return ln(add(z, multiply(sqrt(subtract(z, kOne)), sqrt(add(z, kOne)))));
}

DComplex atanh(DComplex z) {
    if (IsReal(z) && std::fabs(z.re) < 1.0) {
        return {std::atanh(z.re), 0.0};
    }
    const DComplex logarithm = ln(divide(add(kOne, z), subtract(kOne, z)));
    return {logarithm.re / 2.0, logarithm.im / 2.0};
}

DComplex acoth(DComplex z) {
    return atanh(reciprocal(z));
}
DComplex asech(DComplex z) {
    return acosh(reciprocal(z));
}
DComplex acsch(DComplex z) {
    return asinh(reciprocal(z));
}

}  // namespace quorix::dcomplex
