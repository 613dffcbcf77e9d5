#include "engine/complex_angle.h"

#include <algorithm>

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

/// Binary exponent word beyond which the factor pi costs an angle digits that matter.
constexpr std::uint16_t kFarAngle = QReal::kExponentOfOne + 64;

/// Takes whole turns off a far angle, without rounding, so that it lies a turn or more away from 0 as before.
void DropTurns(const QReal& halfTurn, QReal& angle) {
    QReal turn;
    qldexp(halfTurn, 1, turn);
    const bool isNegative = angle.IsNegative();
    qabs(angle);
    while (angle.words[1] > kFarAngle) {
        // Cut to 256 bits their product with a turn is exact, and the difference too.
        QReal turns;
        qdiv(turn, angle, turns);
        std::fill(turns.words.begin() + 19, turns.words.end(), std::uint16_t{0});
        qfloor(turns, turns);
        qmul(turn, turns, turns);
        qsub(turns, angle, angle);
    }
    qadd(turn, angle, angle);
    if (isNegative) {
        qneg(angle);
    }
}

}  // namespace

QComplex CircularAngleIn(const QComplex& angle) {
    const QReal halfTurn = HalfTurn();
    if (halfTurn.IsZero() || angle.re.words[1] <= kFarAngle || !IsBelowTiny(angle.im)) {
        return AngleIn(angle);
    }
    QComplex near = angle;
    DropTurns(halfTurn, near.re);
    return AngleIn(near);
}

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
