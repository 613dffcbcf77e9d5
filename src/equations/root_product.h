#pragma once

// Products of roots, by which the values of formulas are compared to the polynomial.

#include <vector>

#include "equations/extended_polynomial.h"
#include "numerics/qcore.h"
#include "numerics/qreal.h"

namespace quorix {

/// The coefficients of the product of all X - value, highest power first.
std::vector<QComplex> RootProduct(const std::vector<QComplex>& values);

/// How far the product of all X - value is from the polynomial (Viete): the largest distance of a
/// coefficient, relative to the sum of the magnitudes of what it is made of. Infinite unless there are as
/// many values as the degree.
double RootResidual(const ExtendedPolynomial& polynomial, const std::vector<QComplex>& values);

/// Magnitude of a complex number.
QReal Size(const QComplex& value);

inline QReal Times(const QReal& a, const QReal& b) {
    QReal product;
    qmul(a, b, product);
    return product;
}

inline QReal Quotient(const QReal& dividend, const QReal& divisor) {
    QReal quotient;
    qdiv(divisor, dividend, quotient);
    return quotient;
}

inline QReal Difference(const QReal& minuend, const QReal& subtrahend) {
    QReal difference;
    qsub(subtrahend, minuend, difference);
    return difference;
}

inline QReal Magnitude(QReal x) {
    qabs(x);
    return x;
}

}  // namespace quorix
