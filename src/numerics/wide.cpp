#include "numerics/wide.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "numerics/quotient.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbBits;
using limbs::kLimbs;
using limbs::Limb;
using limbs::Mantissa;

constexpr int kBias = QReal::kExponentOfOne - 1;
constexpr int kWideBits = static_cast<int>(kLimbs) * kLimbBits;

// Neither is zero, and a has the larger exponent.
Wide AddAligned(const Wide& a, const Wide& b) {
    const int alignment = a.exponent - b.exponent;
    if (alignment >= kWideBits) return a;
    const Mantissa aligned = limbs::ShiftedRight(b.mantissa, static_cast<unsigned>(alignment));
    Wide sum = a;
    if (a.sign == b.sign) {
        if (limbs::Add(sum.mantissa, aligned) != 0) {
            limbs::ShiftRight(sum.mantissa, 1);
            sum.mantissa[kLimbs - 1] |= limbs::kTopBit;
            ++sum.exponent;
        }
        return sum;
    }
    if (limbs::Subtract(sum.mantissa, aligned) != 0) {
        limbs::Negate(sum.mantissa);
        sum.sign = b.sign;
    }
    if (limbs::IsZero(sum.mantissa)) return {};
    sum.exponent -= limbs::Normalise(sum.mantissa);
    return sum;
}

}  // namespace

const Wide kWideZero{};
const Wide kWideOne{0, 1, {0, 0, 0, 0, 0, limbs::kTopBit}};
const Wide kWidePi = {0,
                      2,
                      {0xEF9519B3CD3A431B, 0x514A08798E3404DD, 0x020BBEA63B139B22, 0x29024E088A67CC74,
                       0xC4C6628B80DC1CD1, 0xC90FDAA22168C234}};
const Wide kWideLn2 = {0,
                       0,
                       {0x559552FB4AFA1B11, 0xE7B876206DEBAC98, 0x8A0D175B8BAAFA2B, 0x40F343267298B62D,
                        0xC9E3B39803F2F6AF, 0xB17217F7D1CF79AB}};

Wide Widen(const QReal& a) {
    if (a.IsZero()) return {};
    return {a.words[0], a.words[1] - kBias, limbs::Load(a)};
}

Wide WideInteger(std::int64_t n) {
    if (n == 0) return {};
    const Limb magnitude = n < 0 ? 0 - static_cast<Limb>(n) : static_cast<Limb>(n);
    return {n < 0 ? QReal::kNegative : std::uint16_t{0},
            kLimbBits - std::countl_zero(magnitude),
            {0, 0, 0, 0, 0, magnitude << std::countl_zero(magnitude)}};
}

void Narrow(const Wide& a, const char* name, QReal& result) {
    if (a.IsZero()) return qclear(result);
    Unpacked rounded{a.sign, a.exponent + kBias, a.mantissa};
    rounded.exponent += limbs::RoundHalfUp(rounded.mantissa);
    Pack(rounded, name, result);
}

Wide operator+(const Wide& a, const Wide& b) {
    if (a.IsZero()) return b;
    if (b.IsZero()) return a;
    return a.exponent >= b.exponent ? AddAligned(a, b) : AddAligned(b, a);
}

Wide operator-(const Wide& a, const Wide& b) {
    return a + -b;
}

Wide operator*(const Wide& a, const Wide& b) {
    if (a.IsZero() || b.IsZero()) return {};
    Wide product{static_cast<std::uint16_t>(a.sign ^ b.sign), a.exponent + b.exponent,
                 limbs::UpperProduct(a.mantissa, b.mantissa)};
    if ((product.mantissa[kLimbs - 1] & limbs::kTopBit) == 0) {
        limbs::ShiftLeft(product.mantissa, 1);
        --product.exponent;
    }
    product.exponent = std::clamp(product.exponent, -kHugeExponent, kHugeExponent);
    return product;
}

Wide operator/(const Wide& dividend, const Wide& divisor) {
    if (dividend.IsZero()) return {};
    Wide quotient{static_cast<std::uint16_t>(dividend.sign ^ divisor.sign),
                  dividend.exponent - divisor.exponent + 1,
                  MantissaQuotient(dividend.mantissa, divisor.mantissa)};
    if ((quotient.mantissa[kLimbs - 1] & limbs::kTopBit) == 0) {
        limbs::ShiftLeft(quotient.mantissa, 1);
        --quotient.exponent;
    }
    quotient.exponent = std::clamp(quotient.exponent, -kHugeExponent, kHugeExponent);
    return quotient;
}

Wide operator-(const Wide& a) {
    Wide negative = a;
    if (!a.IsZero()) negative.sign = static_cast<std::uint16_t>(~a.sign);
    return negative;
}

Wide Magnitude(Wide a) {
    a.sign = 0;
    return a;
}

Wide Scaled(Wide a, int n) {
    if (!a.IsZero()) a.exponent += n;
    return a;
}

Wide WithSignOf(Wide a, const Wide& b) {
    if (!a.IsZero()) a.sign = b.sign;
    return a;
}

int Compare(const Wide& a, const Wide& b) {
    const Wide difference = a - b;
    return difference.IsZero() ? 0 : difference.IsNegative() ? -1 : 1;
}

double ToDouble(const Wide& a) {
    const double magnitude = std::ldexp(static_cast<double>(a.mantissa[kLimbs - 1]), a.exponent - kLimbBits);
    return a.IsNegative() ? -magnitude : magnitude;
}

// Three steps double 52 good bits to more than 384.
Wide SquareRoot(const Wide& a) {
    if (a.IsZero()) return {};
    const int half = (a.exponent - (a.exponent & 1)) / 2;
    const Wide scaled = Scaled(a, -2 * half);
    const double start = std::sqrt(ToDouble(scaled));
    // Times 2^62, so that the double is a whole number.
    Wide root = Scaled(WideInteger(static_cast<std::int64_t>(std::ldexp(start, 62))), -62);
    for (int step = 0; step < 3; ++step) root = Scaled(root + scaled / root, -1);
    return Scaled(root, half);
}

Mantissa ToFraction(const Wide& a) {
    if (a.exponent <= -kWideBits) return {};
    return limbs::ShiftedRight(a.mantissa, static_cast<unsigned>(-a.exponent));
}

Wide FromFraction(const Mantissa& fraction, int exponent) {
    Wide a{0, exponent, fraction};
    if (limbs::IsZero(fraction)) return {};
    a.exponent -= limbs::Normalise(a.mantissa);
    return a;
}

}  // namespace quorix
