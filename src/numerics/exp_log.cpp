#include <algorithm>
#include <cmath>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "numerics/range.h"
#include "numerics/series.h"
#include "numerics/tangent_fraction.h"
#include "numerics/wide_functions.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Mantissa;

// Arguments of this binary exponent and beyond have a power out of range.
constexpr int kLargestExpExponent = 15;
// |f/2| <= ln 2 / 4: 30 levels leave less than 2^-390.
constexpr int kExpLevels = 30;
constexpr double kLn2 = 0.69314718055994530942;

}  // namespace

// x = n ln 2 + f with |f| <= ln 2 / 2, and e^f = (1 + t)/(1 - t) with t = tanh(f/2) = y D / N.
Wide Exp(const Wide& x) {
    if (x.IsZero()) return kWideOne;
    if (x.exponent > kLargestExpExponent) {
        return x.IsNegative() ? kWideZero : Scaled(kWideOne, kHugeExponent);
    }
    const double whole = std::floor(ToDouble(x) / kLn2 + 0.5);
    const int n = static_cast<int>(whole);
    const Wide f = n == 0 ? x : x - WideInteger(n) * kWideLn2;
    if (f.IsZero()) return Scaled(kWideOne, n);
    const Mantissa y = ToFraction(Scaled(Magnitude(f), -1));
    TangentFraction fraction = HyperbolicTangentFraction(limbs::UpperProduct(y, y), kExpLevels);
    const Mantissa part = limbs::UpperProduct(y, fraction.denominator);
    Mantissa more = fraction.numerator, less = fraction.numerator;
    limbs::Add(more, part);
    limbs::Subtract(less, part);
    if (f.IsNegative()) std::swap(more, less);
    return Scaled(FromFraction(more) / FromFraction(less), n);
}

// ln(1 + x) = 2 (z + z^3/3 + z^5/5 + ...) with z = x/(2 + x). |z| <= 0.172, so that a term gains 5 bits.
Wide LogOnePlus(const Wide& x) {
    if (x.IsZero()) return {};
    const Wide z = x / (x + Scaled(kWideOne, 1));
    const Wide square = z * z;
    const Mantissa w = ToFraction(square);
    // w < 2^exponent: the terms that reach 2^-388.
    const int bits = -square.exponent;
    const auto terms =
        std::min<std::size_t>(kOddReciprocals - 1, bits > 0 ? static_cast<std::size_t>(388 / bits) + 1 : 400);
    const auto& reciprocals = OddReciprocals();
    Mantissa sum = reciprocals[terms];
    for (std::size_t k = terms; k-- > 1;) {
        limbs::AddProduct(sum, w, reciprocals[k]);
    }
    return Scaled(z + z * FromFraction(limbs::UpperProduct(sum, w)), 1);
}

// x = m 2^e with m between sqrt(1/2) and sqrt 2; ln x = ln m + e ln 2.
Wide Log(const Wide& x) {
    Wide m = x;
    m.exponent = 0;
    int e = x.exponent;
    constexpr limbs::Limb kSqrtHalf = 0xB504F333F9DE6484;
    if (m.mantissa[kLimbs - 1] < kSqrtHalf) {
        m.exponent = 1;
        --e;
    }
    const Wide logarithm = LogOnePlus(m - kWideOne);
    return e == 0 ? logarithm : logarithm + WideInteger(e) * kWideLn2;
}

void qexp(const QReal& x, QReal& result) {
    if (x.words[1] >= QReal::kExponentOfOne - 1 + kLargestExpExponent + 1) {
        if (x.IsNegative()) return qclear(result);
        return Overflow("qexp", 0, result);
    }
    Narrow(Exp(Widen(x)), "qexp", result);
}

void qlog(const QReal& x, QReal& result) {
    if (x.IsZero()) {
        mtherr("qlog", NUMERIC_SINGULARITY);
        result.words[0] = QReal::kNegative;
        return qinfin(result);
    }
    if (x.IsNegative()) {
        mtherr("qlog", NUMERIC_DOMAIN);
        return qclear(result);
    }
    Narrow(Log(Widen(x)), "qlog", result);
}

}  // namespace quorix
