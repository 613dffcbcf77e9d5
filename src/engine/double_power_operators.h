#pragma once

// Powers, roots, factorial and percent of the double operator table.

#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// Power. -7 when exponent times ln of the base's magnitude reaches 305; exponent 0 gives 1 for every base,
/// and 0 to a positive power is 0. A negative base with a fractional exponent gives a not-a-number as value.
void DoublePower(OperandStack<DComplex>& stack, std::int32_t base);
/// 'a root b' is b to the power 1/a, 'a iroot b' a to the power 1/b.
void DoubleRoot(OperandStack<DComplex>& stack, std::int32_t base);
void DoubleInverseRoot(OperandStack<DComplex>& stack, std::int32_t base);
/// 'a iexp b' is a times 10 to the power b.
void DoubleScale(OperandStack<DComplex>& stack, std::int32_t base);
/// Of an integer from 0 to 170; -54 for an imaginary part, -53 for a fraction, -7 for other integers.
void DoubleFactorial(OperandStack<DComplex>& stack, std::int32_t base);
/// x/100; -54 for an imaginary part.
void DoublePercent(OperandStack<DComplex>& stack, std::int32_t base);

/// The same where no imaginary part is involved.
double RealPower(double base, double exponent);
double RealRoot(double degree, double radicand);
double RealInverseRoot(double radicand, double degree);
double RealScale(double factor, double exponent);
double RealFactorial(double operand);
double RealPercent(double operand);
/// RealPower(base, 2).
inline double RealSquare(double base) {
    constexpr std::uint64_t kFraction = (std::uint64_t{1} << 52U) - 1;
    constexpr std::uint64_t kMiddle = std::uint64_t{1} << 52U;
    constexpr std::uint64_t kNearMiddle = kMiddle / 8;  // 1/16 of a unit of the last place.
    // Far from underflow, and far below the powers that are refused.
    constexpr double kSmallest = 0x1p-200;
    constexpr double kLargest = 0x1p200;
    __extension__ using Wide = unsigned __int128;
    // The C library's pow is off by at most 0.55 units of the last place; so it is the nearest double, which
    // the product is, unless the square lies within 0.05 units of the middle of two doubles. The bits of the
    // square that are rounded away tell: of 105 or 106 bits 53 stay, the rest is brought to 53 bits.
    const std::uint64_t mantissa = (std::bit_cast<std::uint64_t>(base) & kFraction) | (kFraction + 1);
    const Wide square = Wide{mantissa} * mantissa;
    const unsigned lift = square >> 105U != 0 ? 0U : 1U;
    const std::uint64_t rest = static_cast<std::uint64_t>(square << lift) & (2 * kFraction + 1);
    const double magnitude = std::fabs(base);
    const bool isNearest =
        rest + kNearMiddle - kMiddle > 2 * kNearMiddle && magnitude > kSmallest && magnitude < kLargest;
    return isNearest ? base * base : RealPower(base, 2.0);
}

}  // namespace quorix
