#include <utility>

#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Mantissa;

// Exponents further apart leave the larger operand as it is.
constexpr int kLargestAlignment = 337;

// Both operands are non-zero. Sums round halves upward; differences drop the guard word.
[[gnu::always_inline]] inline Unpacked AddNonZero(const Unpacked& a, const Unpacked& b) {
    const Unpacked* larger = &b;
    const Unpacked* smaller = &a;
    int alignment = b.exponent - a.exponent;
    if (alignment < 0) {
        std::swap(larger, smaller);
        alignment = -alignment;
    }
    if (alignment > kLargestAlignment) return *larger;
    Unpacked result = *larger;
    Mantissa aligned = smaller->mantissa;
    if (alignment != 0) {
        if (alignment < limbs::kLimbBits) {
            limbs::ShiftRight(aligned, static_cast<unsigned>(alignment));
        } else {
            aligned = limbs::ShiftedRight(aligned, static_cast<unsigned>(alignment));
        }
        aligned[0] &= limbs::kGuardMask;
    }
    if (a.sign == b.sign) {
        if (limbs::Add(result.mantissa, aligned) != 0) {
            limbs::ShiftRight(result.mantissa, 1);
            result.mantissa[kLimbs - 1] |= limbs::kTopBit;
            ++result.exponent;
        }
        result.exponent += limbs::RoundHalfUp(result.mantissa);
        return result;
    }
    if (limbs::Subtract(result.mantissa, aligned) != 0) {
        limbs::Negate(result.mantissa);
        result.sign = smaller->sign;
    }
    if ((result.mantissa[kLimbs - 1] & limbs::kTopBit) == 0) {
        if (limbs::IsZero(result.mantissa)) return {};
        result.exponent -= limbs::Normalise(result.mantissa);
    }
    result.mantissa[0] &= ~(limbs::kUnit - 1);
    return result;
}

// The sign word of a is handed in apart, so that subtraction need not copy.
inline void AddSigned(const QReal& a, std::uint16_t signOfA, const QReal& b, QReal& sum) {
    const int alignment = b.words[1] - a.words[1];
    if (a.IsZero() || alignment > kLargestAlignment) {
        sum = b;
        if (b.IsZero()) qclear(sum);
        return;
    }
    if (b.IsZero() || -alignment > kLargestAlignment) {
        sum = a;
        sum.words[0] = signOfA;
        return;
    }
    Unpacked x = Unpack(a);
    x.sign = signOfA;
    if (!StoreInRange(AddNonZero(x, Unpack(b)), sum)) Overflow("qadd", signOfA, sum);
}

}  // namespace

Unpacked Add(const Unpacked& a, const Unpacked& b) {
    if (a.IsZero()) return b;
    if (b.IsZero()) return a;
    return AddNonZero(a, b);
}

void qadd(const QReal& a, const QReal& b, QReal& sum) {
    AddSigned(a, a.words[0], b, sum);
}

void qsub(const QReal& subtrahend, const QReal& minuend, QReal& difference) {
    AddSigned(subtrahend, static_cast<std::uint16_t>(~subtrahend.words[0]), minuend, difference);
}

}  // namespace quorix
