#include "engine/derivative.h"

#include <algorithm>
#include <array>
#include <optional>

#include "engine/bound_expression.h"
#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/text_fold.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {

namespace {

/// Half the width of the difference quotient, and the width at which the search for an edge ends.
constexpr double kStep = 1e-6;
constexpr double kEdgeWidth = 1e-10;
/// Deeper structures are differentiated numerically.
constexpr int kDeepestStructure = 200;

/// Operators that the rules do not know, looser than the products: a text with one of them is atomic.
constexpr std::u16string_view kUnknownOperators[] = {u"and", u"or",  u"nand", u"nor", u"xor", u"abs",
                                                     u"mod", u"shl", u"shr",  u"rtl", u"rtr"};

QReal FromDouble(double value) {
    QReal number;
    etoq(value, number);
    return number;
}

bool HasFailed() {
    return calcContext().calcError != 0;
}

/// Value of a text at the point, real parts only.
QReal ValueAt(std::u16string_view text, const QReal& point) {
    if (HasFailed()) {
        return {};
    }
    const BoundExpressionScope scope({std::u16string(text), boundExpression().name});
    return EvalBoundComplex(point).re;
}

/// Value where it exists; a failure is cleared.
std::optional<QReal> TryValueAt(std::u16string_view text, const QReal& point) {
    ClearCalcError();
    const QReal value = ValueAt(text, point);
    if (HasFailed()) {
        ClearCalcError();
        return std::nullopt;
    }
    return value;
}

/// Where the operators of a text stand at parenthesis depth 0; npos for none.
struct Structure {
    std::size_t sum = std::u16string_view::npos;       ///< first + or - behind the first character
    std::size_t product = std::u16string_view::npos;   ///< first *
    std::size_t quotient = std::u16string_view::npos;  ///< last /
    std::size_t root = std::u16string_view::npos;      ///< last word "root"
    std::size_t power = std::u16string_view::npos;     ///< first ^
    bool unknown = false;
};

void NoteWord(std::u16string_view word, std::size_t at, Structure& structure) {
    if (EqualsIgnoringCase(word, u"root")) {
        structure.root = at;
    }
    structure.unknown =
        structure.unknown ||
        std::any_of(std::begin(kUnknownOperators), std::end(kUnknownOperators),
                    [word](std::u16string_view name) { return EqualsIgnoringCase(word, name); });
}

Structure StructureOf(std::u16string_view text) {
    Structure structure;
    int depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t c = text[at];
        if (c == u'(' || c == u')') {
            depth += c == u'(' ? 1 : -1;
            continue;
        }
        if (depth != 0) {
            continue;
        }
        if (IsAsciiLetter(c)) {
            std::size_t end = at;
            while (end < text.size() && IsWordCharacter(text[end])) {
                ++end;
            }
            NoteWord(text.substr(at, end - at), at, structure);
            at = end - 1;
        } else if ((c == u'+' || c == u'-') && at > 0) {
            structure.sum = std::min(structure.sum, at);
        } else if (c == u'*') {
            structure.product = std::min(structure.product, at);
        } else if (c == u'/') {
            structure.quotient = at;
        } else if (c == u'^') {
            structure.power = std::min(structure.power, at);
        }
    }
    return structure;
}

/// Trims blanks and a pair of parentheses around the whole.
std::u16string_view Stripped(std::u16string_view text) {
    text = TrimBlanks(text);
    while (text.size() >= 2 && text.front() == u'(') {
        int depth = 0;
        std::size_t close = 0;
        for (; close < text.size(); ++close) {
            depth += text[close] == u'(' ? 1 : text[close] == u')' ? -1 : 0;
            if (depth == 0) {
                break;
            }
        }
        if (close + 1 != text.size()) {
            break;
        }
        text = TrimBlanks(text.substr(1, text.size() - 2));
    }
    return text;
}

QReal Sum(const QReal& a, const QReal& b) {
    QReal sum;
    qadd(b, a, sum);
    return sum;
}
QReal Difference(const QReal& a, const QReal& b) {
    QReal difference;
    qsub(b, a, difference);
    return difference;
}
QReal Product(const QReal& a, const QReal& b) {
    QReal product;
    qmul(a, b, product);
    return product;
}
QReal Quotient(const QReal& a, const QReal& b) {
    QReal quotient;
    qdiv(b, a, quotient);
    return quotient;
}
bool IsPositive(const QReal& a) {
    return qcmp(a, constants::kZero) > 0;
}

/// The rules of differentiation, applied to pieces of text.
class Differentiator {
  public:
    explicit Differentiator(const QReal& point) : point_(point) {}

    QReal Run(std::u16string_view raw, int depth) const {
        if (HasFailed()) {
            return {};
        }
        const std::u16string_view text = Stripped(raw);
        const Structure s = StructureOf(text);
        const auto none = std::u16string_view::npos;
        if (depth > kDeepestStructure || s.unknown) {
            return NumericalDerivative(text, point_);
        }
        if (s.sum != none) {
            return SumRule(text, s.sum, depth);
        }
        if (text.starts_with(u'-')) {
            // The sign is looser than products and powers: -x^2 is -(x^2).
            return Difference(constants::kZero, Run(text.substr(1), depth + 1));
        }
        if (s.product != none) {
            const Sides sides = SidesOf(text, s.product, 1, depth);
            return Sum(Product(sides.du, sides.v), Product(sides.u, sides.dv));
        }
        if (s.quotient != none) {
            const Sides sides = SidesOf(text, s.quotient, 1, depth);
            return Quotient(Difference(Product(sides.du, sides.v), Product(sides.u, sides.dv)),
                            Product(sides.v, sides.v));
        }
        if (s.root != none) {
            if (const auto result = RootRule(text, s.root, depth)) {
                return *result;
            }
        } else if (s.power != none) {
            if (const auto result = PowerRule(text, s.power, depth)) {
                return *result;
            }
        }
        return NumericalDerivative(text, point_);
    }

  private:
    /// Values and derivatives of both sides of an operator.
    struct Sides {
        QReal u, v, du, dv;
    };

    Sides SidesOf(std::u16string_view text, std::size_t at, std::size_t width, int depth) const {
        const std::u16string_view left = text.substr(0, at);
        const std::u16string_view right = text.substr(at + width);
        Sides sides;
        sides.u = ValueAt(left, point_);
        sides.v = ValueAt(right, point_);
        sides.du = Run(left, depth + 1);
        sides.dv = Run(right, depth + 1);
        return sides;
    }

    QReal SumRule(std::u16string_view text, std::size_t at, int depth) const {
        // A minus stays with the right side, where it negates the first term alone.
        const std::size_t right = text[at] == u'+' ? at + 1 : at;
        const QReal du = Run(text.substr(0, at), depth + 1);
        return Sum(du, Run(text.substr(right), depth + 1));
    }

    /// v^(1/u): f·(v'/(u·v) - u'·ln v/u²) for v above 0.
    std::optional<QReal> RootRule(std::u16string_view text, std::size_t at, int depth) const {
        constexpr std::size_t kWordLength = 4;
        const QReal v = ValueAt(text.substr(at + kWordLength), point_);
        if (HasFailed()) {
            return QReal{};
        }
        if (!IsPositive(v)) {
            return std::nullopt;
        }
        const Sides s = SidesOf(text, at, kWordLength, depth);
        QReal f;
        qpow(v, Quotient(constants::kOne, s.u), f);
        QReal logarithm;
        qlog(v, logarithm);
        const QReal first = Quotient(s.dv, Product(s.u, s.v));
        const QReal second = Quotient(Product(s.du, logarithm), Product(s.u, s.u));
        return Product(f, Difference(first, second));
    }

    /// u^v: u^v·(v'·ln u + v·u'/u) for u above 0.
    std::optional<QReal> PowerRule(std::u16string_view text, std::size_t at, int depth) const {
        const QReal u = ValueAt(text.substr(0, at), point_);
        if (HasFailed()) {
            return QReal{};
        }
        if (!IsPositive(u)) {
            return std::nullopt;
        }
        const Sides s = SidesOf(text, at, 1, depth);
        QReal f;
        qpow(s.u, s.v, f);
        QReal logarithm;
        qlog(s.u, logarithm);
        return Product(f, Sum(Product(s.dv, logarithm), Quotient(Product(s.v, s.du), s.u)));
    }

    QReal point_;
};

/// The point nearest to `outside` where the text still has a value, between there and the good point
/// `inside`.
QReal EdgeOfDomain(std::u16string_view text, QReal outside, QReal inside) {
    const QReal width = FromDouble(kEdgeWidth);
    while (true) {
        QReal gap = Difference(inside, outside);
        qabs(gap);
        if (qcmp(gap, width) <= 0) {
            return inside;
        }
        const QReal middle = Quotient(Sum(inside, outside), constants::kTwo);
        (TryValueAt(text, middle) ? inside : outside) = middle;
    }
}

}  // namespace

QReal NumericalDerivative(std::u16string_view text, const QReal& point) {
    if (HasFailed()) {
        return {};
    }
    ValueAt(text, point);
    if (HasFailed()) {
        return {};
    }
    const QReal h = FromDouble(kStep);
    QReal left = Difference(point, h);
    QReal right = Sum(point, h);
    std::optional<QReal> leftValue = TryValueAt(text, left);
    if (!leftValue) {
        left = EdgeOfDomain(text, left, point);
        leftValue = TryValueAt(text, left);
    }
    std::optional<QReal> rightValue = TryValueAt(text, right);
    if (!rightValue) {
        right = EdgeOfDomain(text, right, point);
        rightValue = TryValueAt(text, right);
    }
    const QReal width = Difference(right, left);
    if (width.IsZero() || !leftValue || !rightValue) {
        calcContext().calcError = ERROR_INFINITE_SLOPE;
        return {};
    }
    return Quotient(Difference(*rightValue, *leftValue), width);
}

QReal Derive(std::u16string_view text, const QReal& point) {
    const QReal result = Differentiator(point).Run(text, 0);
    if (!HasFailed() && NumericErrorFlag() != NUMERIC_OK) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
    }
    return HasFailed() ? QReal{} : result;
}

QReal CallDerivative(NamedArguments& arguments) {
    std::u16string expression = arguments.ExpandedText();
    std::u16string variable(arguments.Text());
    const QReal point = arguments.Value();
    if (HasFailed()) {
        return {};
    }
    SetAngleUnit(UNIT_RADIANS);
    const BoundExpressionScope scope({expression, std::move(variable)});
    return Derive(expression, point);
}

QReal CallEvaluation(NamedArguments& arguments) {
    std::u16string expression = arguments.ExpandedText();
    std::u16string variable(arguments.Text());
    const QReal point = arguments.Value();
    if (HasFailed()) {
        return {};
    }
    const BoundExpressionScope scope({std::move(expression), std::move(variable)});
    return EvalBoundComplex(point).re;
}

}  // namespace quorix
