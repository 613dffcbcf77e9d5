#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/range.h"
#include "numerics/wide_functions.h"

namespace quorix {
namespace {

constexpr std::int32_t kSaturatedInteger = 0x7FFFFFFF;
// Whole exponents of this size and beyond go by the logarithm.
constexpr std::int32_t kPowerByLogarithm = 415032;

// Repeated squaring from the lowest bit of n.
Wide PowerByWhole(const Wide& x, std::uint32_t n) {
    Wide power = kWideOne;
    for (Wide square = x; n != 0; square = square * square) {
        if ((n & 1) != 0) power = power * square;
        n >>= 1;
        if (n == 0) break;
    }
    return power;
}

bool IsWhole(const QReal& y) {
    QReal floor;
    qfloor(y, floor);
    return qcmp(floor, y) == 0;
}

bool IsOdd(const QReal& whole) {
    QReal half;
    qldexp(whole, -1, half);
    return !IsWhole(half);
}

}  // namespace

void qpowi(const QReal& x, const QReal& y, QReal& result) {
    std::int32_t n;
    QReal fraction;
    qifrac(y, n, fraction);
    const bool isNegative = y.IsNegative();
    if (x == constants::kTwo) {
        const QReal one = constants::kOne;
        if (n > QReal::kLargestExponent) return Overflow("qpowi", 0, result);
        return qldexp(one, n, result);
    }
    if (n == kSaturatedInteger || n == -kSaturatedInteger) return qpow(x, y, result);
    if (n == 0) return qmov(constants::kOne, result);
    if (x.IsZero()) {
        if (!isNegative) return qclear(result);
        return Overflow("qpowi", 0, result);
    }
    const auto magnitude = static_cast<std::uint32_t>(isNegative ? -n : n);
    const Wide power = PowerByWhole(Widen(x), magnitude);
    Narrow(isNegative ? kWideOne / power : power, "qpowi", result);
}

void qpow(const QReal& x, const QReal& y, QReal& result) {
    if (y.IsZero()) return qmov(constants::kOne, result);
    const bool isWhole = IsWhole(y);
    std::int32_t n;
    QReal fraction;
    qifrac(y, n, fraction);
    if ((isWhole && n > -kPowerByLogarithm && n < kPowerByLogarithm) || x.IsZero()) {
        if (x.IsZero() && !y.IsNegative()) return qclear(result);
        if (x.IsZero()) return Overflow("qpowi", 0, result);
        return qpowi(x, y, result);
    }
    if (x.IsNegative() && !isWhole) {
        mtherr("qlog", NUMERIC_DOMAIN);
        return qclear(result);
    }
    Wide power = Exp(Widen(y) * Log(Magnitude(Widen(x))));
    if (x.IsNegative() && IsOdd(y)) power = -power;
    Narrow(power, "qexp", result);
}

}  // namespace quorix
