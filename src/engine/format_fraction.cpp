#include "engine/format_fraction.h"

#include <cmath>
#include <cstdio>

namespace quorix {
namespace {

constexpr double kTolerance = 1e-14;

// A mixed fraction; numerator and denominator are 0 when there is no fraction part.
struct MixedFraction {
    double whole = 0.0;
    double numerator = 0.0;
    double denominator = 0.0;
};

// Best denominator to a numerator for a fraction whose reciprocal is given.
double NearestDenominator(double numerator, double reciprocal) {
    return std::floor(numerator * reciprocal + 0.5);
}

// Numerator and denominator of the last convergent of the continued fraction 1/(a1 + 1/(a2 + ...)) of f in
// (0, 1) whose denominator does not exceed `limit`. The numerators are 1, a2, a3 a2 + 1, ...; each
// denominator is the integer nearest to numerator / f. The expansion ends when the convergent is within the
// tolerance; the tolerance of an integer part grows as the error shrinks, because the remainder then consists
// of rounding errors.
void ExpandFraction(double f, double limit, MixedFraction& result) {
    constexpr int kMaxTerms = 64;  // Numerators at least double every two terms.
    const double reciprocal = 1.0 / f;
    double remainder = reciprocal;
    double tolerance = kTolerance;
    double previous = 0.0;
    double numerator = 1.0;
    for (int term = 0; term < kMaxTerms; ++term) {
        const double integerPart = std::floor(remainder + tolerance);
        const double rest = remainder - integerPart;
        const double next = term == 0 ? 1.0 : numerator * integerPart + previous;
        const double denominator = NearestDenominator(next, reciprocal);
        if (denominator > limit) {
            if (term == 0) {
                // Not even 1/limit is small enough to be a convergent: it or zero, whichever is nearer.
                const bool isNearerToZero = std::fabs(1.0 / limit - f) > f;
                result.numerator = isNearerToZero ? 0.0 : 1.0;
                result.denominator = isNearerToZero ? 1.0 : limit;
            }
            return;
        }
        previous = term == 0 ? 0.0 : numerator;
        numerator = next;
        result.numerator = numerator;
        result.denominator = denominator;
        const double error = std::fabs(numerator / denominator - f);
        if (error <= kTolerance || rest < tolerance) return;
        tolerance = kTolerance / error;
        remainder = 1.0 / rest;
    }
}

MixedFraction ToMixedFraction(double magnitude, double limit) {
    MixedFraction fraction;
    fraction.whole = std::floor(magnitude + kTolerance);
    const double f = std::fabs(magnitude - fraction.whole);
    if (f <= kTolerance) return fraction;
    ExpandFraction(f, limit, fraction);
    if (fraction.numerator == fraction.denominator) {
        fraction.whole += 1.0;
        fraction.numerator = 0.0;
        fraction.denominator = 0.0;
    }
    return fraction;
}

std::u16string IntegerText(double value) {
    char digits[320];  // The largest double has 309 digits.
    const int length = std::snprintf(digits, sizeof digits, "%.0f", value);
    return {digits, digits + length};
}

}  // namespace

double FractionDenominatorLimit(std::uint32_t fractionLimit) {
    switch (fractionLimit) {
        case 1: return 1e6;
        case 2: return 1e9;
        default: return 1e3;
    }
}

std::u16string FormatFraction(double value, double limit) {
    const MixedFraction fraction = ToMixedFraction(std::fabs(value), limit);
    std::u16string text;
    if (fraction.whole != 0.0) text = IntegerText(fraction.whole);
    if (fraction.numerator != 0.0 && fraction.denominator != 0.0) {
        if (!text.empty()) text.push_back(u' ');
        text += IntegerText(fraction.numerator) + u'/' + IntegerText(fraction.denominator);
    }
    if (text.empty()) return u"0";
    return value < 0.0 ? u'-' + text : text;
}

}  // namespace quorix
