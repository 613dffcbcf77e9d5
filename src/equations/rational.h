#pragma once

// Doubles as fractions of 32-bit integers.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Largest denominator that a double is matched with.
inline constexpr double kLargestDenominator = 1000000000.0;

struct Rational {
    std::int32_t numerator = 0;
    std::int32_t denominator = 1;
    [[nodiscard]] double Value() const { return static_cast<double>(numerator) / denominator; }
};

/// "W N/D", "N/D" or "W" by continued fraction; "0" for zero.
std::u16string DoubleToMixedFraction(double x, double maxDenominator);
/// The inverse. False when numerator or denominator is none of 32 bits.
bool ParseMixedFraction(std::u16string_view text, Rational& rational);
/// DoubleToMixedFraction with kLargestDenominator, read back. How far it is from x is for the caller to
/// judge.
bool DoubleToRational(double x, Rational& rational);

/// Of magnitudes; one that is 0 gives the other one.
std::int64_t GreatestCommonDivisor(std::int64_t a, std::int64_t b);

struct PrimePower {
    std::int64_t prime;
    int exponent;
};
/// Takes the prime factors up to the square root out of `value`; the cofactor stays in it. Values below 1 and
/// above 1e10 are left alone.
std::vector<PrimePower> FactorInteger(std::int64_t& value);

}  // namespace quorix
