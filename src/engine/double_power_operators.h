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
/// RealPower(base, exponent) for an exponent that is a small whole number, mostly by multiplication. The C
/// library's pow is off by at most 0.55 units of the last place; so it is the nearest double, unless the
/// power lies within 0.05 units of the middle of two doubles, where the library is asked.
template <int exponent>
double RealWholePower(double base) {
    static_assert(exponent >= 2 && exponent <= 4);
    __extension__ using Wide = unsigned __int128;
    constexpr int kFractionBits = 52;
    constexpr int kBias = 1023;
    // Mantissas of 64 bits, cut off: each product lacks less than two units, of which the double's last place
    // has 2048.
    constexpr int kSpareBits = 11;
    constexpr std::uint64_t kSpare = (std::uint64_t{1} << kSpareBits) - 1;
    constexpr std::uint64_t kMiddle = std::uint64_t{1} << (kSpareBits - 1);
    constexpr std::uint64_t kNearMiddle = kMiddle / 8 + 2 * exponent;
    // Far from underflow, and far below the powers that are refused.
    constexpr int kLargestBinary = 400 / exponent;
    const auto bits = std::bit_cast<std::uint64_t>(base);
    const int binary = static_cast<int>(bits >> kFractionBits & 0x7FFU) - kBias;
    if (binary < -kLargestBinary || binary > kLargestBinary) return RealPower(base, exponent);
    const std::uint64_t mantissa = bits << kSpareBits | std::uint64_t{1} << 63U;
    std::uint64_t power = mantissa;
    int binaryOfPower = binary * exponent;
    for (int i = 1; i < exponent; ++i) {
        const Wide product = Wide{power} * mantissa;
        const unsigned carry = static_cast<unsigned>(product >> 127U);
        power = static_cast<std::uint64_t>(product >> (63U + carry));
        binaryOfPower += static_cast<int>(carry);
    }
    const std::uint64_t rest = power & kSpare;
    if (rest + kNearMiddle - kMiddle <= 2 * kNearMiddle) return RealPower(base, exponent);
    // Rounding up may carry into the exponent, as it should.
    const std::uint64_t rounded = (power >> kSpareBits) + (rest > kMiddle ? 1 : 0);
    const std::uint64_t sign = exponent % 2 == 0 ? 0 : bits >> 63U << 63U;
    return std::bit_cast<double>((static_cast<std::uint64_t>(binaryOfPower + kBias - 1) << kFractionBits) +
                                 rounded + sign);
}

}  // namespace quorix
