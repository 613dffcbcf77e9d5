#include "equations/closed_form.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "equations/closed_form_texts.h"
#include "equations/coefficient_line.h"
#include "equations/extended_polynomial.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {
namespace {

using std::u16string;
using std::u16string_view;

constexpr int kDigits = 64;
constexpr int kShownDecimals = 10;
constexpr double kNegligible = 1e-16;
constexpr std::size_t kLongestFormula = 4095;

void ReplaceAll(u16string& text, u16string_view from, u16string_view to) {
    u16string out;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(from, start)) != text.npos; start = at + from.size()) {
        out.append(text, start, at - start).append(to);
    }
    if (start == 0) return;
    text = out.append(text, start);
}

bool IsNegligible(const QReal& part) {
    static const QReal kBound = [] {
        QReal bound;
        etoq(kNegligible, bound);
        return bound;
    }();
    QReal magnitude = part;
    qabs(magnitude);
    return qcmp(magnitude, kBound) < 0;
}

bool Vanishes(const QComplex& value) {
    return IsNegligible(value.re) && IsNegligible(value.im);
}

u16string PlainText(const QReal& value, std::int32_t formatId) {
    return FormatValuePlain(
        value,
        {.radixId = RADIX_DEC, .formatId = formatId, .digits = kDigits, .fixedDecimals = kShownDecimals});
}

/// A value as text for the next formula.
u16string ValueText(const QComplex& value) {
    return u"((" + PlainText(value.re, FORMAT_NORM) + u")+(" + PlainText(value.im, FORMAT_NORM) + u")*i)";
}

QComplex Evaluate(u16string_view formula) {
    ClearCalcError();
    const BoundExpressionScope bound({u16string(formula), {}});
    return EvalBoundComplexClean(QReal{});
}

/// Real roots among the values of formulas.
struct RootSet {
    std::vector<QReal> values;
    int realMask = 0;
    int goodMask = 0;  ///< real and a root

    [[nodiscard]] bool AllRealsAreRoots() const { return realMask == goodMask; }
};

/// The coefficients of one equation and the formulas filled with them.
class ClosedForm {
  public:
    explicit ClosedForm(std::vector<u16string> coefficients) : coefficients_(std::move(coefficients)) {
        const std::optional<ExtendedPolynomial> polynomial = MakePolynomial(coefficients_);
        if (!polynomial) return;
        polynomial_ = *polynomial;
        isSound_ = CoefficientValue(coefficients_[0]) != 0.0;
    }

    [[nodiscard]] bool IsSound() const { return isSound_; }
    [[nodiscard]] bool IsZero(std::size_t coefficient) const {
        return CoefficientValue(coefficients_[coefficient]) == 0.0;
    }

    /// The formula with each letter replaced by its coefficient, in alphabetical order. A text that would
    /// grow past what the engine takes is filled with the values of the coefficients instead.
    [[nodiscard]] u16string Filled(u16string_view formula) const {
        u16string text =
            FilledWith(formula, [this](std::size_t i) { return u"(" + coefficients_[i] + u")"; });
        if (text.size() <= kLongestFormula) return text;
        return FilledWith(
            formula, [this](std::size_t i) { return u"(" + PlainText(polynomial_[i], FORMAT_NORM) + u")"; });
    }

    [[nodiscard]] QComplex Value(u16string_view formula) const { return Evaluate(Filled(formula)); }

    void Judge(const QComplex& value, RootSet& roots) const {
        const int bit = 1 << roots.values.size();
        QReal root;
        qldexp(value.re, scaleExponent_, root);
        roots.values.push_back(root);
        if (!IsNegligible(value.im)) return;
        roots.realMask |= bit;
        if (IsRootOf(polynomial_, root)) roots.goodMask |= bit;
    }

    /// The same roots from an equation for X / 2^n with the leading coefficient 1 and the others not above 1:
    /// huge and tiny coefficients keep their digits in it.
    [[nodiscard]] ClosedForm Normalised() const {
        ClosedForm normalised = *this;
        std::vector<QReal> quotients(polynomial_.size());
        std::int32_t& exponent = normalised.scaleExponent_;
        bool isFirst = true;
        for (std::size_t k = 1; k < polynomial_.size(); ++k) {
            qdiv(polynomial_[0], polynomial_[k], quotients[k]);
            if (quotients[k].IsZero()) continue;
            std::int32_t bits = 0;
            QReal mantissa;
            qfrexp(quotients[k], bits, mantissa);
            const double perPower = std::ceil(static_cast<double>(bits) / static_cast<double>(k));
            exponent = isFirst ? static_cast<std::int32_t>(perPower)
                               : std::max(exponent, static_cast<std::int32_t>(perPower));
            isFirst = false;
        }
        normalised.coefficients_[0] = u"(1)";
        for (std::size_t k = 1; k < polynomial_.size(); ++k) {
            qldexp(quotients[k], -exponent * static_cast<std::int32_t>(k), quotients[k]);
            normalised.coefficients_[k] = u"(" + PlainText(quotients[k], FORMAT_NORM) + u")";
        }
        return normalised;
    }

    [[nodiscard]] RootSet Roots(std::span<const u16string> formulas) const {
        RootSet roots;
        for (const u16string& formula : formulas) Judge(Evaluate(formula), roots);
        return roots;
    }

  private:
    template <typename TextOf>
    [[nodiscard]] u16string FilledWith(u16string_view formula, const TextOf& textOf) const {
        u16string text(formula);
        for (std::size_t i = 0; i < coefficients_.size(); ++i) {
            const auto letter = static_cast<char16_t>(u'a' + i);
            ReplaceAll(text, u16string_view(&letter, 1), textOf(i));
        }
        return text;
    }

    std::vector<u16string> coefficients_;
    /// Roots are those of the formulas times 2^scaleExponent_; they are judged by this polynomial.
    ExtendedPolynomial polynomial_;
    std::int32_t scaleExponent_ = 0;
    bool isSound_ = false;
};

template <std::size_t Count>
int WriteRoots(const RootSet& roots, std::array<u16string, Count>& texts, std::size_t first = 0) {
    for (std::size_t i = 0; i < roots.values.size() && first + i < Count; ++i) {
        texts[first + i] = PlainText(roots.values[i], FORMAT_FIX);
    }
    return roots.goodMask << first;
}

/// Values under names such as "B1", and formulas with the names replaced.
class NamedValues {
  public:
    void Set(u16string name, const QComplex& value) {
        values_.push_back({std::move(name), value.re, value.im, ValueText(value)});
    }
    [[nodiscard]] u16string Filled(u16string_view formula) const {
        u16string text(formula);
        for (const Entry& entry : values_) ReplaceAll(text, entry.name, entry.text);
        return text;
    }
    template <std::size_t Count>
    [[nodiscard]] std::array<u16string, Count> FilledAll(
        const std::array<u16string_view, Count>& formulas) const {
        std::array<u16string, Count> texts;
        for (std::size_t i = 0; i < Count; ++i) texts[i] = Filled(formulas[i]);
        return texts;
    }

  private:
    struct Entry {
        u16string name;
        QReal re;
        QReal im;
        u16string text;
    };
    std::vector<Entry> values_;
};

u16string Name(char16_t letter, std::size_t index) {
    return {letter, static_cast<char16_t>(u'1' + index)};
}

RootSet SolveCubic(const ClosedForm& equation) {
    std::array<QComplex, closed_form::kCubicValues.size()> values;
    NamedValues names;
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = equation.Value(closed_form::kCubicValues[i]);
        names.Set(Name(u'A', i), values[i]);
    }
    if (Vanishes(values[1])) {
        const u16string_view form =
            Vanishes(values[3]) ? closed_form::kCubicShiftedRoot : closed_form::kCubicTripleRoot;
        const RootSet roots = equation.Roots(std::array{equation.Filled(form)});
        if (roots.goodMask != 0) return roots;
    }
    return equation.Roots(names.FilledAll(closed_form::kCubicRoots));
}

class QuarticSolver {
  public:
    explicit QuarticSolver(const ClosedForm& equation) : equation_(equation) {}

    RootSet Run() {
        if (equation_.IsZero(3) && equation_.IsZero(1)) {
            RootSet roots = BiquadraticRoots();
            if (roots.AllRealsAreRoots()) return roots;
        }
        ComputeValues();
        if (Vanishes(c1_)) {
            RootSet roots = SpecialRoots();
            if (roots.goodMask != 0 && roots.AllRealsAreRoots()) return roots;
        }
        if (Vanishes(b_[4])) {
            RootSet roots = CentredRoots();
            if (roots.AllRealsAreRoots()) return roots;
        }
        return equation_.Roots(names_.FilledAll(closed_form::kQuarticRoots));
    }

  private:
    [[nodiscard]] RootSet BiquadraticRoots() const {
        RootSet roots;
        for (const u16string_view form : closed_form::kBiquadraticRoots) {
            equation_.Judge(equation_.Value(form), roots);
        }
        return roots;
    }

    void ComputeValues() {
        for (std::size_t i = 0; i < b_.size(); ++i) b_[i] = equation_.Value(closed_form::kQuarticValues[i]);
        if (Vanishes(b_[0]) && Vanishes(b_[1]) && Vanishes(b_[7])) {
            b_[0] = equation_.Value(closed_form::kQuarticOtherB1);
        }
        for (std::size_t i = 0; i < b_.size(); ++i) names_.Set(Name(u'B', i), b_[i]);
        c1_ = Evaluate(names_.Filled(closed_form::kQuarticC1));
        names_.Set(u"C1", c1_);
    }

    /// Where C1 vanishes: a quadruple root, or the fourth roots of a number.
    [[nodiscard]] RootSet SpecialRoots() const {
        RootSet roots;
        if (Vanishes(b_[0])) {
            const double ratio = CoefficientValue(equation_.Filled(closed_form::kQuadrupleRootTest));
            equation_.Judge(equation_.Value(ratio > 0.0 ? closed_form::kQuadrupleRootNegative
                                                        : closed_form::kQuadrupleRootPositive),
                            roots);
        } else if (Vanishes(b_[2]) && Vanishes(b_[3]) && Vanishes(b_[4])) {
            for (const u16string_view form : closed_form::kQuarticPureRoots) {
                equation_.Judge(equation_.Value(form), roots);
            }
        }
        return roots;
    }

    /// Where B5 vanishes the quartic is biquadratic about -b/(4a).
    [[nodiscard]] RootSet CentredRoots() const {
        NamedValues centred;
        centred.Set(u"a", equation_.Value(u"a"));
        centred.Set(u"c", equation_.Value(closed_form::kCentredC));
        centred.Set(u"e", equation_.Value(closed_form::kCentredE));
        const u16string centre = ValueText(b_[3]) + u"+";
        RootSet roots;
        for (const u16string_view form : closed_form::kBiquadraticRoots) {
            u16string shifted = u"(" + centred.Filled(form) + u")";
            if (form.starts_with(u'-')) shifted = u"(0" + centred.Filled(form) + u")";
            equation_.Judge(Evaluate(centre + shifted), roots);
        }
        return roots;
    }

    const ClosedForm& equation_;
    std::array<QComplex, closed_form::kQuarticValues.size()> b_;
    QComplex c1_;
    NamedValues names_;
};

}  // namespace

int QuadraticRootsNumeric(u16string_view line, double& root1, double& root2) {
    const std::vector<u16string> coefficients = CoefficientTexts(line);
    if (coefficients.size() != 3) return 0;
    for (const u16string& text : coefficients) {
        CoefficientValue(text);
        if (calcContext().calcError != 0) return 0;
    }
    const std::optional<ExtendedPolynomial> polynomial = MakePolynomial(coefficients);
    if (!polynomial || (*polynomial)[0].IsZero()) return 0;
    const QReal& a = (*polynomial)[0];
    const QReal& b = (*polynomial)[1];
    QReal square;
    QReal product;
    QReal discriminant;
    qmul(b, b, square);
    qmul((*polynomial)[2], a, product);
    qldexp(product, 2, product);
    qsub(product, square, discriminant);
    // What is left of a sum that cancels is rounding: a double root.
    constexpr std::int32_t kCancelledBits = 300;
    QReal floor = square;
    qldexp(floor, -kCancelledBits, floor);
    QReal magnitude = discriminant;
    qabs(magnitude);
    if (qcmp(magnitude, floor) < 0) qclear(discriminant);
    if (!discriminant.IsZero() && discriminant.IsNegative()) return 0;
    QReal half;
    QReal root;
    qldexp(constants::kOne, -1, half);
    qpow(discriminant, half, root);
    // q = -(b + sign(b) S) / 2 does not cancel; the roots are q/a and c/q.
    const bool negativeB = !b.IsZero() && b.IsNegative();
    QReal q;
    if (negativeB) {
        qsub(b, root, q);
    } else {
        qadd(b, root, q);
        qneg(q);
    }
    qldexp(q, -1, q);
    QReal far;
    QReal near;
    qdiv(a, q, far);
    if (!q.IsZero()) qdiv(q, (*polynomial)[2], near);
    root1 = qtoe(negativeB ? far : near);
    root2 = qtoe(negativeB ? near : far);
    ClearNumericError();
    return 1;
}

int CubicRoots(u16string_view line, std::array<u16string, 3>& texts) {
    constexpr std::size_t kCount = 4;
    std::vector<u16string> coefficients = CoefficientTexts(line, kCount);
    if (coefficients.size() < kCount) return 0;
    const ClosedForm equation(std::move(coefficients));
    int mask = 0;
    if (equation.IsSound()) {
        mask = WriteRoots(SolveCubic(equation), texts);
        if (mask == 0) mask = WriteRoots(SolveCubic(equation.Normalised()), texts);
    }
    ClearCalcError();
    return mask;
}

int QuarticRoots(u16string_view line, std::array<u16string, 4>& texts) {
    constexpr std::size_t kCount = 5;
    std::vector<u16string> coefficients = CoefficientTexts(line, kCount);
    if (coefficients.size() < kCount) return 0;
    const ClosedForm equation(coefficients);
    int mask = 0;
    if (equation.IsSound() && equation.IsZero(kCount - 1)) {
        texts[0] = PlainText(QReal{}, FORMAT_FIX);
        std::array<u16string, 3> others;
        mask = 1 | CubicRoots(line, others) << 1;
        std::ranges::move(others, texts.begin() + 1);
    } else if (equation.IsSound()) {
        mask = WriteRoots(QuarticSolver(equation).Run(), texts);
        if (mask == 0) mask = WriteRoots(QuarticSolver(equation.Normalised()).Run(), texts);
    }
    ClearCalcError();
    return mask;
}

}  // namespace quorix
