#pragma once

// Numbers of 384 bits with an exponent that knows no bounds: the working format of the functions. Its 48 bits
// more than a stored number take up the errors of a chain of operations. Internal to the number functions.

#include <cstdint>

#include "numerics/limbs.h"
#include "numerics/qreal.h"

namespace quorix {

/// ±0.m * 2^exponent. Operations cut or leave out less than 2^-374 of their result.
struct Wide {
    std::uint16_t sign = 0;  ///< 0 or 65535
    int exponent = 0;
    limbs::Mantissa mantissa{};  ///< normalised; all zero for zero

    [[nodiscard]] bool IsZero() const { return mantissa[limbs::kLimbs - 1] == 0; }
    [[nodiscard]] bool IsNegative() const { return sign != 0; }
};

/// Exponents beyond this one stand for numbers far outside the range of stored ones; chains stop there.
inline constexpr int kHugeExponent = 1 << 20;

extern const Wide kWideZero, kWideOne, kWidePi, kWideLn2;

/// The number itself.
Wide Widen(const QReal& a);
Wide WideInteger(std::int64_t n);
/// Rounds to a stored number, halves upward. Too large a number is reported under `name` and becomes the
/// largest one of its sign; too small a one becomes zero.
void Narrow(const Wide& a, const char* name, QReal& result);

Wide operator+(const Wide& a, const Wide& b);
Wide operator-(const Wide& a, const Wide& b);
Wide operator*(const Wide& a, const Wide& b);
/// The divisor is not zero.
Wide operator/(const Wide& dividend, const Wide& divisor);
Wide operator-(const Wide& a);
Wide Magnitude(Wide a);
/// a * 2^n.
Wide Scaled(Wide a, int n);
/// a with the sign of b.
Wide WithSignOf(Wide a, const Wide& b);
/// -1, 0, 1 for a below, equal to, above b.
int Compare(const Wide& a, const Wide& b);
/// For a >= 0: Newton's iteration from the square root of doubles.
Wide SquareRoot(const Wide& a);
/// Within 2^-52, for exponents below 1000.
double ToDouble(const Wide& a);

/// The fraction 0.m * 2^exponent of a number in [0, 1), cut to 384 bits behind the point.
limbs::Mantissa ToFraction(const Wide& a);
/// The number of a fraction times 2^exponent.
Wide FromFraction(const limbs::Mantissa& fraction, int exponent = 0);

}  // namespace quorix
