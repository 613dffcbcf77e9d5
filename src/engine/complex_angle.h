#pragma once

// How the angle unit enters the rows of the complex operator table.

#include "numerics/qreal.h"

namespace quorix {

/// The argument of a direct function in radians: a real number is taken in the angle unit and its imaginary
/// part cleared; a number with an imaginary part above 1e-64 switches the angle unit to radians for good.
QComplex AngleIn(const QComplex& angle);

/// The same for circular functions, whose far angles lose their whole turns first: the sine of 10^40 degrees
/// has all its digits.
QComplex CircularAngleIn(const QComplex& angle);

/// The result of an inverse function, from radians to the angle unit by the same test. Parts below 1e-64 are
/// cleared.
QComplex AngleOut(const QComplex& radians);

}  // namespace quorix
