#include <algorithm>
#include <cmath>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/series.h"
#include "numerics/sine_series.h"
#include "numerics/two_over_pi.h"
#include "numerics/wide_functions.h"

namespace quorix {
namespace {

using limbs::kLimbBits;
using limbs::kLimbs;
using limbs::Limb;
using limbs::Mantissa;

// Limbs of 2/pi that take part: a product has 384 bits of quarter turns behind up to 380 that may vanish near
// a multiple of pi/2.
constexpr std::size_t kWindow = 19;

// An angle in quarter turns: a quadrant and the rest, in [0, 1], as angles up to pi/2 from both of its ends.
struct Reduced {
    unsigned quadrant = 0;
    Wide rest, complement;
};

// One limb more lets the quadrant be read above the product of an argument near one.
using WindowProduct = std::array<Limb, kWindow + kLimbs + 1>;

// The integer of `bits` bits behind the point of the product as a number in [0, 1).
Wide FractionBelow(const WindowProduct& product, int bits) {
    int top = bits - 1;
    const auto at = [&](int bit) {
        return product[static_cast<std::size_t>(bit / kLimbBits)] >> bit % kLimbBits & 1;
    };
    while (top >= 0 && at(top) == 0) --top;
    if (top < 0) return {};
    Wide result{0, top + 1 - bits, {}};
    for (std::size_t i = 0; i < kLimbs; ++i) {
        const int low = top + 1 - kLimbBits * static_cast<int>(i + 1);
        const auto limb = [&](int index) {
            return index >= 0 ? product[static_cast<std::size_t>(index)] : Limb{0};
        };
        const int index = low >= 0 ? low / kLimbBits : (low - kLimbBits + 1) / kLimbBits;
        const int shift = low - index * kLimbBits;
        const limbs::DoubleLimb pair = limbs::DoubleLimb{limb(index + 1)} << kLimbBits | limb(index);
        result.mantissa[kLimbs - 1 - i] = limbs::Low(pair >> shift);
    }
    return result;
}

// M. Payne, R. Hanek, "Radian reduction for trigonometric functions", SIGNUM Newsletter 18 (1983): of 2/pi
// only the bits are multiplied that do not stand for whole turns.
Reduced Reduce(const Wide& x) {
    const Wide halfPi = Scaled(kWidePi, -1);
    if (x.exponent <= 0) return {0, x, halfPi - x};
    constexpr int kMantissaBits = static_cast<int>(kLimbs) * kLimbBits;
    const int firstLimb = std::max(0, x.exponent - kMantissaBits - 3) / kLimbBits;
    WindowProduct product{};
    for (std::size_t i = 0; i < kWindow; ++i) {
        const Limb factor = kTwoOverPi[static_cast<std::size_t>(firstLimb) + kWindow - 1 - i];
        Limb carry = 0;
        for (std::size_t j = 0; j < kLimbs; ++j) {
            const limbs::DoubleLimb sum = limbs::Product(factor, x.mantissa[j]) + product[i + j] + carry;
            product[i + j] = limbs::Low(sum);
            carry = limbs::High(sum);
        }
        product[i + kLimbs] = carry;
    }
    const int point = kLimbBits * (firstLimb + static_cast<int>(kWindow)) + kMantissaBits - x.exponent;
    const auto bit = [&](int place) {
        return static_cast<unsigned>(
            product[static_cast<std::size_t>(place / kLimbBits)] >> place % kLimbBits & 1);
    };
    Reduced reduced;
    reduced.quadrant = bit(point) + 2 * bit(point + 1);
    reduced.rest = FractionBelow(product, point) * halfPi;
    for (Limb& limb : product) limb = ~limb;
    reduced.complement = FractionBelow(product, point) * halfPi;
    return reduced;
}

// r (1 - r^2/3! + r^4/5! - ...) for r in [0, pi/2].
Wide SineOfRest(const Wide& r) {
    if (r.IsZero()) return {};
    return r - r * SineSeries(r * r, SeriesSigns::kAlternating);
}

// Up to here an argument may come from a number of degrees, so that multiples of a quarter turn are meant.
constexpr int kSnapExponent = 64;
// The argument and pi are known to 336 bits, and conversions from degrees round twice.
constexpr int kSnapBits = 333;

// Whether a sine or cosine of a stored x is as near to 0 as roundings of x alone can bring it.
bool Vanishes(const Wide& value, const Wide& x) {
    return x.exponent > 0 && x.exponent <= kSnapExponent && value.exponent < x.exponent - kSnapBits;
}

void NarrowCircular(const Wide& value, const Wide& x, QReal& result) {
    if (Vanishes(value, x)) return qclear(result);
    Narrow(value, "qsin", result);
}

}  // namespace

SinCos SineAndCosine(const Wide& x) {
    if (x.IsZero()) return {kWideZero, kWideOne};
    const Reduced reduced = Reduce(Magnitude(x));
    const Wide near = SineOfRest(reduced.rest), far = SineOfRest(reduced.complement);
    SinCos result;
    switch (reduced.quadrant) {
        case 0: result = {near, far}; break;
        case 1: result = {far, -near}; break;
        case 2: result = {-near, -far}; break;
        default: result = {-far, near};
    }
    if (x.IsNegative()) result.sin = -result.sin;
    return result;
}

SinCos SineAndCosineOfStored(const Wide& x) {
    SinCos result = SineAndCosine(x);
    if (Vanishes(result.sin, x)) result = {kWideZero, WithSignOf(kWideOne, result.cos)};
    if (Vanishes(result.cos, x)) result = {WithSignOf(kWideOne, result.sin), kWideZero};
    return result;
}

void qsin(const QReal& x, QReal& result) {
    const Wide wide = Widen(x);
    if (wide.IsZero()) return qclear(result);
    const Reduced reduced = Reduce(Magnitude(wide));
    Wide sine = SineOfRest((reduced.quadrant & 1) != 0 ? reduced.complement : reduced.rest);
    if (((reduced.quadrant & 2) != 0) != wide.IsNegative()) sine = -sine;
    NarrowCircular(sine, wide, result);
}

void qcos(const QReal& x, QReal& result) {
    const Wide wide = Widen(x);
    if (wide.IsZero()) return qmov(constants::kOne, result);
    const Reduced reduced = Reduce(Magnitude(wide));
    Wide cosine = SineOfRest((reduced.quadrant & 1) != 0 ? reduced.rest : reduced.complement);
    if (((reduced.quadrant + 1) & 2) != 0) cosine = -cosine;
    NarrowCircular(cosine, wide, result);
}

}  // namespace quorix
