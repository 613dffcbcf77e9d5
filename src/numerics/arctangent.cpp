#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/wide_functions.h"

namespace quorix {
namespace {

using limbs::kLimbs;

constexpr int kLevels = 74;

// a times a whole number of at most 16 bits.
Wide Times(Wide a, unsigned factor) {
    if (a.IsZero()) return a;
    const limbs::Limb carry = limbs::MultiplyShort(a.mantissa, factor);
    if (carry == 0) return a;
    const auto bits = static_cast<unsigned>(std::bit_width(carry));
    limbs::ShiftRight(a.mantissa, bits);
    a.mantissa[kLimbs - 1] |= carry << (limbs::kLimbBits - static_cast<int>(bits));
    a.exponent += static_cast<int>(bits);
    return a;
}

// a/(1 + a^2/(3 + 4a^2/(5 + 9a^2/(7 + ...)))) for a up to sqrt 2 - 1, from the last level to the first.
Wide ContinuedFraction(const Wide& a) {
    const Wide z = a * a;
    if (z.IsZero() || z.exponent < -400) return a;
    Wide value = WideInteger(2 * kLevels + 1);
    for (unsigned k = kLevels; k > 0; --k) value = WideInteger(2 * k - 1) + Times(z, k * k) / value;
    return a / value;
}

}  // namespace

// Arguments above sqrt 2 + 1 are inverted, those above sqrt 2 - 1 turned back by an eighth of a turn.
Wide Arctangent(const Wide& x) {
    if (x.IsZero()) return {};
    static const Wide upper = Widen(constants::kSqrt2Plus1), lower = Widen(constants::kSqrt2Minus1);
    const Wide a = Magnitude(x);
    Wide angle;
    if (Compare(a, upper) > 0) {
        angle = Scaled(kWidePi, -1) - ContinuedFraction(kWideOne / a);
    } else if (Compare(a, lower) > 0) {
        const Wide turned = (a - kWideOne) / (a + kWideOne);
        angle = Scaled(kWidePi, -2) +
                (turned.IsZero() ? turned : WithSignOf(ContinuedFraction(Magnitude(turned)), turned));
    } else {
        angle = ContinuedFraction(a);
    }
    return WithSignOf(angle, x);
}

Wide Angle(const Wide& y, const Wide& x) {
    if (y.IsZero()) return x.IsNegative() ? kWidePi : kWideZero;
    if (x.IsZero()) return WithSignOf(Scaled(kWidePi, -1), y);
    const Wide angle = Arctangent(y / x);
    return x.IsNegative() ? angle + WithSignOf(kWidePi, y) : angle;
}

void qatn(const QReal& x, QReal& result) {
    Narrow(Arctangent(Widen(x)), "qatn", result);
}

void qatn2(const QReal& y, const QReal& x, QReal& result) {
    Narrow(Angle(Widen(y), Widen(x)), "qatn2", result);
}

}  // namespace quorix
