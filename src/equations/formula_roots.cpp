#include "equations/formula_roots.h"

#include <span>
#include <utility>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "equations/closed_form_texts.h"
#include "equations/coefficient_line.h"
#include "equations/root_product.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {
namespace {

using std::u16string;
using std::u16string_view;

constexpr double kNegligible = 1e-16;
/// A residual that leaves nothing to be improved.
constexpr double kExact = 1e-56;
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

/// A value as text for the next formula.
u16string ValueText(const QComplex& value) {
    return u"((" + NormText(value.re) + u")+(" + NormText(value.im) + u")*i)";
}

QComplex Evaluate(u16string_view formula) {
    ClearCalcError();
    const BoundExpressionScope bound({u16string(formula), {}});
    return EvalBoundComplexClean(QReal{});
}

/// The coefficients of one equation and the formulas filled with them.
class ClosedForm {
  public:
    ClosedForm(const std::vector<u16string>& coefficients, const ExtendedPolynomial& polynomial)
        : coefficients_(coefficients), polynomial_(polynomial) {}

    [[nodiscard]] bool IsZero(std::size_t coefficient) const {
        return CoefficientValue(coefficients_[coefficient]) == 0.0;
    }

    /// The formula with each letter replaced by its coefficient, in alphabetical order. A text that would
    /// grow past what the engine takes is filled with the values of the coefficients instead.
    [[nodiscard]] u16string Filled(u16string_view formula) const {
        u16string text =
            FilledWith(formula, [this](std::size_t i) { return u"(" + coefficients_[i] + u")"; });
        if (text.size() <= kLongestFormula) return text;
        return FilledWith(formula, [this](std::size_t i) { return u"(" + NormText(polynomial_[i]) + u")"; });
    }

    [[nodiscard]] QComplex Value(u16string_view formula) const { return Evaluate(Filled(formula)); }

    void Judge(const QComplex& value, RootSet& roots) const {
        const int bit = 1 << roots.values.size();
        roots.values.push_back(value);
        if (!IsNegligible(value.im)) return;
        roots.realMask |= bit;
        if (IsRootOf(polynomial_, value.re)) roots.goodMask |= bit;
    }

    [[nodiscard]] double Residual(const RootSet& roots) const {
        return RootResidual(polynomial_, roots.values);
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

    const std::vector<u16string>& coefficients_;
    const ExtendedPolynomial& polynomial_;
};

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

/// The other two points of the equilateral triangle about the centre.
std::vector<QComplex> OtherCubeRoots(const QComplex& centre, const QComplex& root) {
    QComplex turn;  // (-1 + i sqrt(3)) / 2
    qldexp(constants::kOne, -1, turn.re);
    qneg(turn.re);
    ltoq(3, turn.im);
    qsqrt(turn.im, turn.im);
    qldexp(turn.im, -1, turn.im);
    std::vector<QComplex> others;
    QComplex arm;
    qcsub(centre, root, arm);
    for (int i = 0; i < 2; ++i) {
        qcmul(arm, turn, arm);
        qcadd(centre, arm, others.emplace_back());
    }
    return others;
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
        RootSet roots = equation.Roots(std::array{equation.Filled(form)});
        if (roots.goodMask != 0) {
            roots.companions = OtherCubeRoots(values[0], roots.values[0]);
            return roots;
        }
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
            const double residual = equation_.Residual(roots);
            if (roots.AllRealsAreRoots() && residual <= kExact) return roots;
            RootSet general = equation_.Roots(names_.FilledAll(closed_form::kQuarticRoots));
            return equation_.Residual(general) < residual ? general : roots;
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
            roots.companions.assign(3, roots.values[0]);
        } else if (Vanishes(b_[2]) && Vanishes(b_[3]) && Vanishes(b_[4])) {
            for (const u16string_view form : closed_form::kQuarticPureRoots) {
                const QComplex root = equation_.Value(form);
                equation_.Judge(root, roots);
                qcmul(root, QComplex{{}, constants::kOne}, roots.companions.emplace_back());
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

u16string NormText(const QReal& value) {
    return FormatValuePlain(
        value, {.radixId = RADIX_DEC, .formatId = FORMAT_NORM, .digits = kRootDigits, .fixedDecimals = 0});
}

RootSet FormulaRoots(const std::vector<u16string>& coefficients, const ExtendedPolynomial& polynomial) {
    constexpr std::size_t kCubicCount = 4;
    const ClosedForm equation(coefficients, polynomial);
    RootSet roots = coefficients.size() == kCubicCount ? SolveCubic(equation) : QuarticSolver(equation).Run();
    ClearCalcError();
    return roots;
}

}  // namespace quorix
