#include "engine/complex_angle.h"

#include "engine/calc_context.h"
#include "engine/complex_operands.h"
#include "numerics/constants.h"

namespace quorix {

namespace {

/// Half turns of the angle units; 0 for radians.
QReal HalfTurn() {
    QReal halfTurn;
    switch (calcContext().angleUnit) {
        case UNIT_DEGREES: ltoq(180, halfTurn); break;
        case UNIT_GRADS: ltoq(200, halfTurn); break;
        default: break;
    }
    return halfTurn;
}

}  // namespace

QComplex AngleIn(const QComplex& angle) {
    if (!IsBelowTiny(angle.im)) {
        SetAngleUnit(UNIT_RADIANS);
        return angle;
    }
    QComplex radians{angle.re, {}};
    const QReal halfTurn = HalfTurn();
    if (!halfTurn.IsZero()) {
        qmul(constants::kPi, radians.re, radians.re);
        qdiv(halfTurn, radians.re, radians.re);
    }
    return radians;
}

QComplex AngleOut(const QComplex& radians) {
    QComplex angle = radians;
    if (IsBelowTiny(angle.re)) {
        qclear(angle.re);
    }
    if (!IsBelowTiny(angle.im)) {
        SetAngleUnit(UNIT_RADIANS);
        return angle;
    }
    qclear(angle.im);
    const QReal halfTurn = HalfTurn();
    if (!halfTurn.IsZero()) {
        qmul(halfTurn, angle.re, angle.re);
        qdiv(constants::kPi, angle.re, angle.re);
    }
    return angle;
}

}  // namespace quorix
