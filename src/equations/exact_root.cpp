#include "equations/exact_root.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "equations/coefficient_line.h"
#include "equations/extended_polynomial.h"
#include "equations/rational.h"
#include "equations/surd.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

using Texts = std::vector<std::u16string>;

constexpr double kLargestDistance = 1e-6;
constexpr double kNearInteger = 1e-8;
constexpr double kLargestDiscriminant = 1e10;
constexpr double kRootDistance = 1e-12;

std::u16string Widen(std::string_view text) {
    return {text.begin(), text.end()};
}

std::u16string FractionText(const Rational& rational) {
    return Widen(std::to_string(rational.numerator) + "/" + std::to_string(rational.denominator));
}

/// "%.*f"; a zero has no sign.
std::u16string Decimal(double value, int decimals) {
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value + 0.0);
    return Widen(buffer[0] == '-' &&
                         std::string_view(buffer).find_first_of("123456789") == std::string_view::npos
                     ? buffer + 1
                     : buffer);
}

std::optional<double> CheckedValue(std::u16string_view text) {
    const double value = CoefficientValue(text);
    if (calcContext().calcError != 0 || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::optional<std::u16string> LinearRootText(const Texts& texts) {
    const std::optional<double> a = CheckedValue(texts[0]);
    const std::optional<double> b = a ? CheckedValue(texts[1]) : std::nullopt;
    if (!b || *a == 0.0) return std::nullopt;
    const double x = -*b / *a;
    if (!std::isfinite(x)) return std::nullopt;
    Rational rational;
    if (DoubleToRational(x, rational) &&
        std::fabs(x - rational.Value()) <= kRootDistance * std::fmax(1.0, std::fabs(x))) {
        return rational.denominator == 1 ? Widen(std::to_string(rational.numerator)) : FractionText(rational);
    }
    return Decimal(x, 16);
}

/// The root (P -/+ Q S) / R in lowest terms.
struct RootForm {
    std::int64_t p;
    std::int64_t q;
    std::int64_t r;
    std::u16string surd;
    bool isRational;  ///< S is an integer

    [[nodiscard]] std::u16string Text(int rootIndex) const;
};

/// Texts as a reader writes them: no factor 1, no denominator 1, the sign of a denominator -1 taken in. With
/// P zero and a positive term a negative R stays in the denominator; this is intended.
std::u16string RootForm::Text(int rootIndex) const {
    const bool minus = (rootIndex == 0) == (q >= 0);
    const std::string whole = std::to_string(std::llabs(q));
    const std::u16string term = (std::llabs(q) == 1 ? u"" : Widen(whole) + u"*") + surd;
    const auto number = [](std::int64_t value) { return Widen(std::to_string(value)); };
    if (p != 0) {
        if (r == -1) {
            const std::u16string head = p < 0 ? number(-p) : u"-" + number(p);
            return head + (minus ? u"+" : u"-") + term;
        }
        const std::u16string sum = u"(" + number(p) + (minus ? u"-" : u"+") + term + u")";
        return r == 1 ? sum : sum + u"/(" + number(r) + u")";
    }
    if (r == 1 || r == -1) return (minus == (r == 1) ? u"(-" : u"(") + term + u")";
    if (std::llabs(q) == 1 && minus && r < 0) return u"(" + term + u")/(" + number(-r) + u")";
    return (minus ? u"(-" : u"(") + term + u")/(" + number(r) + u")";
}

/// Products of three 32-bit integers that are themselves of 32 bits.
std::optional<std::int64_t> SmallProduct(std::int32_t a, std::int32_t b, std::int32_t c) {
    const double product = static_cast<double>(a) * b * c;
    if (std::fabs(product) > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return static_cast<std::int64_t>(product);
}

class QuadraticRecogniser {
  public:
    explicit QuadraticRecogniser(const Texts& texts) : texts_(texts) {}

    std::optional<RootForm> Run() {
        if (!ReadCoefficients() || !ScaleCoefficients()) return std::nullopt;
        const std::optional<double> discriminant = CheckedValue(DiscriminantText());
        if (!discriminant) return std::nullopt;
        const double scaled = *discriminant * l_ * l_ / (g_ * g_);
        if (!(scaled >= 0.0 && scaled <= kLargestDiscriminant) || !TakeRoot(scaled)) return std::nullopt;
        return ClearFractions();
    }

  private:
    bool ReadCoefficients() {
        for (std::size_t i = 0; i < 3; ++i) {
            const std::optional<double> value = CheckedValue(texts_[i]);
            if (!value || !DoubleToRational(*value, rationals_[i]) ||
                std::fabs(*value - rationals_[i].Value()) > kLargestDistance) {
                return false;
            }
            values_[i] = *value;
        }
        return true;
    }

    /// L is common to the denominators, G to the numerators.
    bool ScaleCoefficients() {
        std::int64_t l = 0;
        std::int64_t g = 0;
        for (const Rational& rational : rationals_) {
            if (rational.numerator != 0) l = GreatestCommonDivisor(l, rational.denominator);
            g = GreatestCommonDivisor(g, rational.numerator);
        }
        l_ = static_cast<double>(l);
        g_ = static_cast<double>(g);
        return g != 0;
    }

    [[nodiscard]] std::u16string DiscriminantText() const {
        return texts_[1] + u"*" + texts_[1] + u"-4*" + texts_[0] + u"*" + texts_[2];
    }

    /// The square root of the scaled discriminant as factor times surd.
    bool TakeRoot(double scaled) {
        const double root = std::sqrt(scaled);
        form_.isRational = root - std::floor(root) < kNearInteger;
        if (form_.isRational) {
            surd_ = {Decimal(root, 0), {1, 1}};
        } else {
            surd_ = SimplifySurd(DoubleToMixedFraction(scaled, kLargestDenominator));
            const std::optional<double> value = CheckedValue(FractionText(surd_.outer) + u"*" + surd_.text);
            if (!value || std::fabs(*value - root) > kLargestDistance) return false;
        }
        form_.surd = surd_.text;
        return true;
    }

    std::optional<RootForm> ClearFractions() {
        Rational b;
        Rational a;
        const double twiceA = values_[0] * l_ * 2.0 / g_;
        if (!DoubleToRational(-values_[1] * l_ / g_, b) || !DoubleToRational(twiceA, a)) return std::nullopt;
        if (std::fabs(a.Value() - twiceA) > kLargestDistance) return std::nullopt;
        const auto p = SmallProduct(surd_.outer.denominator, b.numerator, a.denominator);
        const auto q = SmallProduct(surd_.outer.numerator, b.denominator, a.denominator);
        const auto r = SmallProduct(surd_.outer.denominator, b.denominator, a.numerator);
        if (!p || !q || !r || *r == 0) return std::nullopt;
        const std::int64_t common = GreatestCommonDivisor(GreatestCommonDivisor(*p, *q), *r);
        form_.p = *p / common;
        form_.q = *q / common;
        form_.r = *r / common;
        return form_;
    }

    const Texts& texts_;
    std::array<Rational, 3> rationals_;
    std::array<double, 3> values_{};
    double l_ = 1.0;
    double g_ = 1.0;
    Surd surd_;
    RootForm form_{};
};

/// Whether x is on the side of the centre where the root with this index lies: 2 a x + b is -S for index 0
/// and S for 1. On the other side it is the root only where both are within the distance allowed.
bool IsOnItsSide(const ExtendedPolynomial& polynomial, const QReal& x, int rootIndex) {
    QReal twiceA;
    QReal slope;
    qldexp(polynomial[0], 1, twiceA);
    qmul(twiceA, x, slope);
    qadd(slope, polynomial[1], slope);
    if (slope.IsZero() || slope.IsNegative() == (rootIndex == 0)) return true;
    QReal distance;
    qdiv(twiceA, slope, distance);
    return std::fabs(qtoe(distance)) <= kRootDistance * std::fmax(1.0, std::fabs(qtoe(x)));
}

bool IsRootText(std::u16string_view text, const ExtendedPolynomial& polynomial, int rootIndex) {
    const std::optional<QReal> value = ExtendedValue(text);
    return value && IsRootOf(polynomial, *value) && IsOnItsSide(polynomial, *value, rootIndex);
}

std::optional<std::u16string> QuadraticRootText(const Texts& texts, int rootIndex) {
    const std::optional<RootForm> form = QuadraticRecogniser(texts).Run();
    const std::optional<ExtendedPolynomial> polynomial = form ? MakePolynomial(texts) : std::nullopt;
    if (!polynomial) return std::nullopt;
    const std::u16string full = form->Text(rootIndex);
    const std::optional<double> value = CheckedValue(full);
    if (!value) return std::nullopt;
    // Looks above whole numbers only: what rounding puts below one is shown as a fraction. Rounding of the
    // coefficients may have made a text that is near a root and none: it is not taken.
    std::u16string shorter = full;
    Rational rational;
    if (std::fabs(*value) - std::floor(std::fabs(*value)) < kNearInteger) {
        shorter = Decimal(*value, 0);
    } else if ((form->isRational || form->surd == u"sqrt(1)") && DoubleToRational(*value, rational)) {
        shorter = FractionText(rational);
    }
    if (IsRootText(shorter, *polynomial, rootIndex)) return shorter;
    if (shorter != full && IsRootText(full, *polynomial, rootIndex)) return full;
    return std::nullopt;
}

}  // namespace

std::optional<std::u16string> ExactRootText(std::u16string_view line, int rootIndex, int& tokenCount) {
    constexpr std::size_t kMostCoefficients = 3;
    Texts texts = CoefficientTexts(line);
    tokenCount = static_cast<int>(texts.size());
    if (texts.size() < 2 || texts.size() > kMostCoefficients) return std::nullopt;
    const double first = CoefficientValue(texts[0]);
    if (calcContext().calcError != 0) return std::nullopt;
    if (first == 0.0 && texts.size() == kMostCoefficients) texts.erase(texts.begin());
    tokenCount = static_cast<int>(texts.size());
    return texts.size() == 2 ? LinearRootText(texts) : QuadraticRootText(texts, rootIndex);
}

}  // namespace quorix
