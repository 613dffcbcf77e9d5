#include "equations/rational.h"

#include <cmath>
#include <limits>
#include <numeric>

#include "engine/format_fraction.h"
#include "engine/text_fold.h"

namespace quorix {
namespace {

/// Digits as a number; NaN beyond 32 bits.
double ParseInteger(std::u16string_view digits) {
    double value = 0.0;
    for (const char16_t c : digits) {
        if (!IsDigit(c)) break;
        value = value * 10.0 + (c - u'0');
    }
    return value;
}

bool FitsIn32Bits(double value) {
    return std::fabs(value) <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

std::u16string DoubleToMixedFraction(double x, double maxDenominator) {
    return FormatFraction(x, maxDenominator);
}

bool ParseMixedFraction(std::u16string_view text, Rational& rational) {
    const bool negative = text.starts_with(u'-');
    if (negative) text.remove_prefix(1);
    const std::size_t blank = text.find(u' ');
    const double whole = blank == text.npos ? 0.0 : ParseInteger(text.substr(0, blank));
    if (blank != text.npos) text.remove_prefix(blank + 1);
    const std::size_t slash = text.find(u'/');
    const double denominator = slash == text.npos ? 1.0 : ParseInteger(text.substr(slash + 1));
    const double numerator = whole * denominator + ParseInteger(text.substr(0, slash));
    if (!FitsIn32Bits(numerator) || !FitsIn32Bits(denominator) || denominator == 0.0) return false;
    rational.numerator = static_cast<std::int32_t>(negative ? -numerator : numerator);
    rational.denominator = static_cast<std::int32_t>(denominator);
    return true;
}

bool DoubleToRational(double x, Rational& rational) {
    if (FitsIn32Bits(x) && x == std::trunc(x)) {
        // What the text would say.
        rational = {static_cast<std::int32_t>(x), 1};
        return true;
    }
    return std::isfinite(x) && ParseMixedFraction(DoubleToMixedFraction(x, kLargestDenominator), rational);
}

std::int64_t GreatestCommonDivisor(std::int64_t a, std::int64_t b) {
    return std::gcd(a, b);
}

std::vector<PrimePower> FactorInteger(std::int64_t& value) {
    constexpr std::int64_t kLargest = 10000000000;
    std::vector<PrimePower> factors;
    if (value < 1 || value > kLargest) return factors;
    // The bound is one above the root, so that the root of a square is reached in spite of rounding.
    for (std::int64_t p = 2; static_cast<double>(p) <= std::sqrt(static_cast<double>(value)) + 1.0; ++p) {
        int exponent = 0;
        for (; value % p == 0; value /= p) ++exponent;
        if (exponent > 0) factors.push_back({p, exponent});
    }
    return factors;
}

}  // namespace quorix
