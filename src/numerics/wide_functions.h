#pragma once

// The elementary functions on 384 bits, from which the functions of stored and of complex numbers are made.
// Errors lie below 2^-360 of the result unless a line says otherwise. Internal to the number functions.

#include "numerics/wide.h"

namespace quorix {

/// e^x. Beyond the exponent range by far (|x| >= 32768) a huge number or zero.
Wide Exp(const Wide& x);
/// ln x for x > 0.
Wide Log(const Wide& x);
/// ln(1 + x) for 1 + x between sqrt(1/2) and sqrt 2; the error is relative to the logarithm, however small.
Wide LogOnePlus(const Wide& x);

struct SinCos {
    Wide sin, cos;
};
/// Any argument of the stored range, reduced by pi to full precision.
SinCos SineAndCosine(const Wide& x);
/// The same for an argument that is a stored number: what 336 bits cannot tell from a multiple of pi/2 counts
/// as one, so that one of the two is 0 there. Arguments beyond 2^64 are taken as they stand.
SinCos SineAndCosineOfStored(const Wide& x);

Wide Sinh(const Wide& x);
Wide Cosh(const Wide& x);
Wide Tanh(const Wide& x);

/// Within 2^-344 for arguments near 0.41, closer elsewhere.
Wide Arctangent(const Wide& x);
/// The angle of (x, y): pi for a negative x and y = 0, half pi with the sign of y for x = 0, 0 for both zero.
Wide Angle(const Wide& y, const Wide& x);

}  // namespace quorix
