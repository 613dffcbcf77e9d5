#pragma once

// Elementary functions of extended reals and complex numbers. Results go through the last reference and may
// be laid over any argument. Errors are reported by mtherr and leave a defined value. Real results are right
// to one unit of the last place of 336 bits; results too small are zero without a report.

#include "numerics/qcore.h"
#include "numerics/qreal.h"

namespace quorix {

/// e^x; overflow reports "qexp".
void qexp(const QReal& x, QReal& result);
/// Natural logarithm. x < 0: domain, 0. x = 0: singularity, the negative infinity.
void qlog(const QReal& x, QReal& result);
/// x < 0: domain, 0.
void qsqrt(const QReal& x, QReal& result);

/// Radians, of any size. Arguments that 336 bits cannot tell from a multiple of pi/2 count as one (up to
/// 2^64), so that the sine of pi and the cosine of 90 degrees are 0.
void qsin(const QReal& x, QReal& result);
void qcos(const QReal& x, QReal& result);
/// In (-pi/2, pi/2).
void qatn(const QReal& x, QReal& result);
/// Angle of the point (x, y), in (-pi, pi]: the ordinate comes first. 0 for the origin; pi for a negative x
/// and y = 0.
void qatn2(const QReal& y, const QReal& x, QReal& result);

/// Overflow of the first two reports "qexp"; tanh of a large argument is 1 or -1.
void qsinh(const QReal& x, QReal& result);
void qcosh(const QReal& x, QReal& result);
void qtanh(const QReal& x, QReal& result);

/// x^y. Whole y below 415032 by qpowi, exact where 336 bits hold the power; other y by the logarithm. x < 0
/// with a y that is not whole: domain, 0. x^0 is 1, 0 to a positive power 0, to a negative one an overflow. A
/// power too small, also the inverse of an overflow, is 0 without report.
void qpow(const QReal& x, const QReal& y, QReal& result);
/// x^y for whole y: powers of 2 by the exponent alone, others by repeated squaring. Overflow reports "qpowi".
void qpowi(const QReal& x, const QReal& y, QReal& result);

void qcneg(QComplex& z);
void qcmov(const QComplex& a, QComplex& b);
/// Magnitude; no overflow on the way.
void qcabs(const QComplex& z, QReal& result);
void qcexp(const QComplex& z, QComplex& result);
/// Principal value: imaginary part in (-pi, pi]. 0 reports "qlog" singularity.
void qclog(const QComplex& z, QComplex& result);
/// Principal value: real part >= 0, imaginary part with the sign of z's.
void qcsqrt(const QComplex& z, QComplex& result);
/// a^b. Real operands: whole b by qpow; a >= 0 by qpow; a < 0 with twice b whole (and odd) is purely
/// imaginary; a < 0 with another b is -(|a|^b), by convention: (-8)^(1/3) is -2. Otherwise e^(b ln a). 0^b: 0
/// for a positive real part of b, infinity with a domain report for a negative one, 1 for none (with a domain
/// report if b has an imaginary part).
void qcpow(const QComplex& a, const QComplex& b, QComplex& result);

void qcsin(const QComplex& z, QComplex& result);
void qccos(const QComplex& z, QComplex& result);
/// Poles cannot be hit by a rounded argument: tan(pi/2) is a very large number. Never reports for large
/// imaginary parts.
void qctan(const QComplex& z, QComplex& result);
/// 1/tan; multiples of pi report "qcdiv" overflow, with the infinity.
void qccot(const QComplex& z, QComplex& result);
void qcsinh(const QComplex& z, QComplex& result);
void qccosh(const QComplex& z, QComplex& result);
void qctanh(const QComplex& z, QComplex& result);

/// Inverses: real parts of qcasin and qcatan in [-pi/2, pi/2], of qcacos in [0, pi]. On the cuts of the real
/// axis
/// (|x| > 1) the values are those of -i ln(iz + sqrt(1 - z^2)): asin(2) has a negative imaginary part.
void qcasin(const QComplex& z, QComplex& result);
void qcacos(const QComplex& z, QComplex& result);
/// i and -i report "qcatan" singularity, with the infinity in the imaginary part, negative for i. Imaginary z
/// beyond 1 have the real part pi/2 with the sign of the imaginary part.
void qcatan(const QComplex& z, QComplex& result);
void qcasinh(const QComplex& z, QComplex& result);
/// Real part not below 0.
void qcacosh(const QComplex& z, QComplex& result);
void qcatanh(const QComplex& z, QComplex& result);

}  // namespace quorix
