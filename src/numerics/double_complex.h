#pragma once

// Complex functions on doubles, for graphs, integrals and root searches: speed before the last digit.
//
// Angles are in radians. Nothing here fails: a not-a-number or an infinity comes out as a value. Principal
// branches; a real argument inside a function's real domain goes by the C library, so that its result has no
// imaginary noise.

#include <cmath>

#include "numerics/qreal.h"

namespace quorix::dcomplex {

/// What the functions below that are told here in full do with an imaginary part; theirs must not be zero.
namespace complex_part {
DComplex exp(DComplex z);
DComplex sin(DComplex z);
DComplex cos(DComplex z);
}  // namespace complex_part

/// Square root of re² + im², without scaling: it overflows from 1e154 on unless the number is real.
double magnitude(DComplex z);
/// Angle in (-pi, pi].
double argument(DComplex z);

DComplex add(DComplex a, DComplex b);
/// a - b.
DComplex subtract(DComplex a, DComplex b);
DComplex multiply(DComplex a, DComplex b);
/// a / b; a zero divisor gives infinities or not-a-numbers.
DComplex divide(DComplex a, DComplex b);
DComplex reciprocal(DComplex z);

/// a to the b by exp(b·ln a); a = 0 gives 0 for every b.
DComplex pow(DComplex a, DComplex b);
DComplex ln(DComplex z);
DComplex log10(DComplex z);
DComplex sqrt(DComplex z);
inline DComplex exp(DComplex z) {
    return z.im == 0.0 ? DComplex{std::exp(z.re), 0.0} : complex_part::exp(z);
}

inline DComplex sin(DComplex z) {
    return z.im == 0.0 ? DComplex{std::sin(z.re), 0.0} : complex_part::sin(z);
}
inline DComplex cos(DComplex z) {
    return z.im == 0.0 ? DComplex{std::cos(z.re), 0.0} : complex_part::cos(z);
}
DComplex tan(DComplex z);
DComplex cot(DComplex z);
DComplex sec(DComplex z);
DComplex csc(DComplex z);
DComplex asin(DComplex z);
DComplex acos(DComplex z);
DComplex atan(DComplex z);
DComplex acot(DComplex z);
DComplex asec(DComplex z);
DComplex acsc(DComplex z);

DComplex sinh(DComplex z);
DComplex cosh(DComplex z);
DComplex tanh(DComplex z);
DComplex coth(DComplex z);
DComplex sech(DComplex z);
DComplex csch(DComplex z);
DComplex asinh(DComplex z);
DComplex acosh(DComplex z);
DComplex atanh(DComplex z);
DComplex acoth(DComplex z);
DComplex asech(DComplex z);
DComplex acsch(DComplex z);

}  // namespace quorix::dcomplex
