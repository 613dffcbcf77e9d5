#include <cmath>
#include <optional>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Mantissa;

constexpr int kBias = QReal::kExponentOfOne - 1;
constexpr int kSteps = 8;

bool IsSame(const Unpacked& a, const Unpacked& b) {
    return a.exponent == b.exponent && a.mantissa == b.mantissa;
}

// One step of Newton's iteration, (y + x/y)/2.
Unpacked Step(const Unpacked& x, const Unpacked& y) {
    Unpacked next = Add(y, Divide(x, y));
    --next.exponent;
    return next;
}

// Eight steps from y = 0.313567057 + m (0.890194099 - 0.204405847 m), m the mantissa of x in [1/2, 1), with
// half of the exponent, halved toward zero: of a negative odd one the start is twice too large, and no step
// repeats.
Unpacked EightSteps(const Unpacked& x) {
    static const auto coefficients = [] {
        std::array<QReal, 3> values;
        asctoq("0.313567057", values[0]);
        asctoq("0.890194099", values[1]);
        asctoq("-0.204405847", values[2]);
        return std::array{Unpack(values[0]), Unpack(values[1]), Unpack(values[2])};
    }();
    Unpacked m = x;
    m.exponent = kBias;
    Unpacked y = Add(coefficients[0], Multiply(m, Add(coefficients[1], Multiply(m, coefficients[2]))));
    const int exponent = x.exponent - kBias;
    y.exponent = kBias + exponent / 2;
    if (exponent % 2 != 0) y = Multiply(Unpack(constants::kSqrt2), y);
    for (int step = 0; step < kSteps; ++step) y = Step(x, y);
    return y;
}

// The next number up, or the one below.
Unpacked Neighbour(Unpacked y, bool above) {
    Mantissa unit{};
    unit[0] = limbs::kUnit;
    const bool leavesBinade =
        (above ? limbs::Add(y.mantissa, unit) : limbs::Subtract(y.mantissa, unit)) != 0 ||
        (y.mantissa[kLimbs - 1] & limbs::kTopBit) == 0;
    return leavesBinade ? Unpacked{} : y;
}

// Steps from the square root of doubles until one repeats. The step leaves a single number of 336 bits as it
// is, unless the root lies a quarter of a unit above a number: there that number and the next one may both
// stay. Gives nothing in that case.
std::optional<Unpacked> StepsFromDouble(const Unpacked& x) {
    const int exponent = x.exponent - kBias;
    const int half = (exponent - (exponent & 1)) / 2;
    Unpacked scaled = x;
    scaled.exponent -= 2 * half;
    QReal start;
    etoq(std::sqrt(
             std::ldexp(static_cast<double>(x.mantissa[kLimbs - 1]), exponent - 2 * half - limbs::kLimbBits)),
         start);
    Unpacked y = Unpack(start);
    for (int step = 0; step < kSteps; ++step) {
        const Unpacked quotient = Divide(scaled, y);
        Unpacked next = Add(y, quotient);
        --next.exponent;
        if (IsSame(next, y)) {
            const Unpacked other = Neighbour(y, IsSame(quotient, y));
            if (other.IsZero() || IsSame(Step(scaled, other), other)) return {};
            y.exponent += half;
            return y;
        }
        y = next;
    }
    return {};
}

}  // namespace

void qsqrt(const QReal& x, QReal& result) {
    if (x.IsZero()) return qclear(result);
    if (x.IsNegative()) {
        mtherr("qsqrt", NUMERIC_DOMAIN);
        return qclear(result);
    }
    const Unpacked number = Unpack(x);
    const int exponent = number.exponent - kBias;
    const bool startsTwiceTooLarge = exponent < 0 && exponent % 2 != 0;
    const std::optional<Unpacked> root = startsTwiceTooLarge ? std::nullopt : StepsFromDouble(number);
    Pack(root ? *root : EightSteps(number), "qsqrt", result);
}

}  // namespace quorix
