#include "equations/root_groups.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "equations/root_product.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/qfunctions.h"

namespace quorix {
namespace {

using Values = std::vector<QComplex>;

/// Sizes that are nearer than this power of two belong to one group.
constexpr double kGroupBits = 8.0;
/// Beyond this the formulas lose the smaller roots altogether, while cutting the equation in two costs no
/// digit.
constexpr double kCutBits = 170.0;

/// Logarithm to base 2 of the magnitude of a number that is not 0.
double Bits(const QReal& x) {
    std::int32_t exponent = 0;
    QReal mantissa;
    qfrexp(x, exponent, mantissa);
    return exponent + std::log2(std::fabs(qtoe(mantissa)));
}

/// Clears what is rounding where the constant is 0: values below 2^-160 of the largest.
void ClearZeroRoots(const ExtendedPolynomial& polynomial, Values& values) {
    constexpr std::int32_t kRoundingBits = 160;
    if (!polynomial.back().IsZero()) return;
    QReal floor;
    for (const QComplex& value : values) {
        if (const QReal size = Size(value); qcmp(size, floor) > 0) floor = size;
    }
    qldexp(floor, -kRoundingBits, floor);
    for (QComplex& value : values) {
        if (qcmp(Size(value), floor) < 0) value = {};
    }
}

bool IsImaginaryPartBelow(double bound, const QComplex& value) {
    QReal limit;
    etoq(bound, limit);
    return qcmp(Magnitude(value.im), Times(limit, Size(value))) <= 0;
}

bool IsRealForItsSize(const QComplex& value) {
    constexpr double kNegligible = 1e-16;
    return IsImaginaryPartBelow(kNegligible, value);
}

/// Whether rounding may have made a real value of a complex one or the other way round.
bool IsDoubtful(const QComplex& value, bool isReal) {
    constexpr double kNearlyReal = 1e-8;
    return IsRealForItsSize(value) != isReal || (!isReal && IsImaginaryPartBelow(kNearlyReal, value));
}

/// The exponent n for which the polynomial of X / 2^n has its largest roots near 1.
std::int32_t ScaleExponent(const ExtendedPolynomial& polynomial) {
    std::optional<double> exponent;
    for (std::size_t k = 1; k < polynomial.size(); ++k) {
        if (polynomial[k].IsZero()) continue;
        const double bits = (Bits(polynomial[k]) - Bits(polynomial[0])) / static_cast<double>(k);
        exponent = std::max(exponent.value_or(bits), bits);
    }
    return static_cast<std::int32_t>(std::ceil(exponent.value_or(0.0)));
}

/// A place between two groups: `count` roots are larger than all others, by a factor of 2^bits.
struct Gap {
    std::size_t count;
    double bits;
};

/// The gaps between the sizes of roots, by the Newton polygon: the upper hull over the logarithms of the
/// coefficients. No coefficient at the ends is 0.
std::vector<Gap> FindGaps(const ExtendedPolynomial& polynomial) {
    std::vector<Gap> gaps;
    double slopeBefore = 0.0;
    for (std::size_t at = 0; at + 1 < polynomial.size();) {
        std::size_t next = at;
        double slope = 0.0;
        for (std::size_t k = at + 1; k < polynomial.size(); ++k) {
            if (polynomial[k].IsZero()) continue;
            const double toHere = (Bits(polynomial[k]) - Bits(polynomial[at])) / static_cast<double>(k - at);
            if (next != at && toHere < slope) continue;
            next = k;
            slope = toHere;
        }
        if (at != 0 && slopeBefore - slope > kGroupBits) gaps.push_back({at, slopeBefore - slope});
        slopeBefore = slope;
        at = next;
    }
    return gaps;
}

/// The formulas at the size of the largest roots.
RootSet ScaledRoots(const ExtendedPolynomial& polynomial) {
    const std::int32_t exponent = ScaleExponent(polynomial);
    ExtendedPolynomial scaled = {constants::kOne};
    std::vector<std::u16string> texts = {u"(1)"};
    for (std::size_t k = 1; k < polynomial.size(); ++k) {
        QReal coefficient = Quotient(polynomial[k], polynomial[0]);
        qldexp(coefficient, -exponent * static_cast<std::int32_t>(k), coefficient);
        scaled.push_back(coefficient);
        texts.push_back(u"(" + NormText(coefficient) + u")");
    }
    RootSet roots = FormulaRoots(texts, scaled);
    for (Values* values : {&roots.values, &roots.companions}) {
        for (QComplex& value : *values) {
            qldexp(value.re, exponent, value.re);
            qldexp(value.im, exponent, value.im);
        }
    }
    return roots;
}

/// The same by the equation of the reciprocals, at the size of the smallest roots.
RootSet ReciprocalRoots(const ExtendedPolynomial& polynomial) {
    RootSet roots = ScaledRoots({polynomial.rbegin(), polynomial.rend()});
    for (Values* values : {&roots.values, &roots.companions}) {
        for (QComplex& value : *values) qcdiv(value, {constants::kOne, {}}, value);
    }
    return roots;
}

Values AllValues(const RootSet& roots) {
    Values values = roots.values;
    values.insert(values.end(), roots.companions.begin(), roots.companions.end());
    return values;
}

void SortBySize(Values& values) {
    std::ranges::stable_sort(values,
                             [](const QComplex& a, const QComplex& b) { return qcmp(Size(a), Size(b)) > 0; });
}

/// Real polynomial with these roots, highest power first.
ExtendedPolynomial RealProduct(const Values& values) {
    ExtendedPolynomial real;
    for (const QComplex& coefficient : RootProduct(values)) real.push_back(coefficient.re);
    return real;
}

ExtendedPolynomial Monic(ExtendedPolynomial polynomial) {
    const QReal leading = polynomial[0];
    for (QReal& coefficient : polynomial) coefficient = Quotient(coefficient, leading);
    return polynomial;
}

/// Quotient by a monic polynomial of smaller roots, which is stable from the highest power down.
ExtendedPolynomial WithoutSmallRoots(ExtendedPolynomial polynomial, const ExtendedPolynomial& divisor) {
    const std::size_t count = polynomial.size() - divisor.size() + 1;
    for (std::size_t k = 0; k < count; ++k) {
        for (std::size_t i = 1; i < divisor.size(); ++i) {
            polynomial[k + i] = Difference(polynomial[k + i], Times(polynomial[k], divisor[i]));
        }
    }
    polynomial.resize(count);
    return polynomial;
}

/// Quotient by a polynomial of larger roots, which is stable from the constant up.
ExtendedPolynomial WithoutLargeRoots(ExtendedPolynomial polynomial, ExtendedPolynomial divisor) {
    std::ranges::reverse(polynomial);
    std::ranges::reverse(divisor);
    for (QReal& coefficient : polynomial) coefficient = Quotient(coefficient, divisor[0]);
    ExtendedPolynomial quotient = WithoutSmallRoots(std::move(polynomial), Monic(std::move(divisor)));
    std::ranges::reverse(quotient);
    return quotient;
}

Values RootsOf(ExtendedPolynomial polynomial);

/// The formulas about the centre of the roots, at their distance from it: for roots that are close together.
RootSet CentredRoots(const ExtendedPolynomial& polynomial) {
    const std::size_t degree = polynomial.size() - 1;
    QReal centre;
    ltoq(-static_cast<std::int32_t>(degree), centre);
    centre = Quotient(Quotient(polynomial[1], polynomial[0]), centre);
    ExtendedPolynomial shifted = polynomial;
    for (std::size_t count = shifted.size(); count > 1; --count) {
        for (std::size_t i = 1; i < count; ++i) {
            qadd(shifted[i], Times(shifted[i - 1], centre), shifted[i]);
        }
    }
    qclear(shifted[1]);
    RootSet roots = ScaledRoots(shifted);
    for (Values* values : {&roots.values, &roots.companions}) {
        for (QComplex& value : *values) qadd(value.re, centre, value.re);
    }
    return roots;
}

/// Roots of about the same size: what fits best.
Values RootsOfOneGroup(const ExtendedPolynomial& polynomial) {
    RootSet best;
    double least = std::numeric_limits<double>::infinity();
    for (const auto solve : {ScaledRoots, ReciprocalRoots, CentredRoots}) {
        RootSet roots = solve(polynomial);
        const double residual = RootResidual(polynomial, AllValues(roots));
        if (best.values.empty() || residual < least) {
            best = std::move(roots);
            least = residual;
        }
    }
    return best.values;
}

/// Roots of a cubic or quartic whose gaps are all narrow enough for the formulas.
Values RootsByGroups(const ExtendedPolynomial& polynomial, const std::vector<Gap>& gaps) {
    Values large = AllValues(ScaledRoots(polynomial));
    Values small = AllValues(ReciprocalRoots(polynomial));
    SortBySize(large);
    SortBySize(small);
    large.resize(gaps.front().count);
    small.erase(small.begin(), small.begin() + static_cast<std::ptrdiff_t>(gaps.back().count));
    for (Values* group : {&large, &small}) {
        if (group->size() == 1) qclear(group->front().im);
    }
    const ExtendedPolynomial withoutLarge = WithoutLargeRoots(polynomial, RealProduct(large));
    const ExtendedPolynomial withoutSmall = WithoutSmallRoots(polynomial, RealProduct(small));
    const ExtendedPolynomial between = WithoutSmallRoots(withoutLarge, RealProduct(small));
    const ExtendedPolynomial monicBetween = Monic(between);
    // Each group is solved anew by itself: its roots may be close together.
    Values roots;
    for (const ExtendedPolynomial& group : {WithoutSmallRoots(withoutSmall, monicBetween), between,
                                            WithoutLargeRoots(withoutLarge, monicBetween)}) {
        for (const QComplex& root : RootsOf(group)) roots.push_back(root);
    }
    return roots;
}

Values RootsOf(ExtendedPolynomial polynomial) {
    Values roots;
    for (; polynomial.size() > 1 && polynomial.back().IsZero(); polynomial.pop_back()) roots.emplace_back();
    if (polynomial.size() == 2) {
        QReal root = Quotient(polynomial[1], polynomial[0]);
        qneg(root);
        roots.push_back({root, {}});
    } else if (polynomial.size() == 3) {
        for (const QComplex& root : QuadraticRoots(polynomial)) roots.push_back(root);
    } else if (polynomial.size() > 3) {
        const std::vector<Gap> gaps = FindGaps(polynomial);
        const auto widest = std::ranges::max_element(gaps, {}, &Gap::bits);
        if (widest != gaps.end() && widest->bits > kCutBits) {
            const auto cut = polynomial.begin() + static_cast<std::ptrdiff_t>(widest->count);
            for (const QComplex& root : RootsOf({polynomial.begin(), cut + 1})) roots.push_back(root);
            for (const QComplex& root : RootsOf({cut, polynomial.end()})) roots.push_back(root);
        } else if (gaps.empty()) {
            for (const QComplex& root : RootsOfOneGroup(polynomial)) roots.push_back(root);
        } else {
            for (const QComplex& root : RootsByGroups(polynomial, gaps)) roots.push_back(root);
        }
    }
    return roots;
}

}  // namespace

std::array<QComplex, 2> QuadraticRoots(const ExtendedPolynomial& polynomial) {
    const QReal& a = polynomial[0];
    const QReal& b = polynomial[1];
    const QReal square = Times(b, b);
    QReal product = Times(polynomial[2], a);
    qldexp(product, 2, product);
    QReal discriminant = Difference(square, product);
    // What is left of a sum that cancels is rounding: a double root.
    constexpr std::int32_t kCancelledBits = 300;
    QReal floor = square;
    qldexp(floor, -kCancelledBits, floor);
    if (qcmp(Magnitude(discriminant), floor) < 0) qclear(discriminant);
    const bool isComplex = !discriminant.IsZero() && discriminant.IsNegative();
    QReal half;
    QReal root;
    qldexp(constants::kOne, -1, half);
    qpow(Magnitude(discriminant), half, root);
    if (isComplex) {
        QReal twiceA = a;
        qldexp(twiceA, 1, twiceA);
        QReal re = Quotient(b, twiceA);
        qneg(re);
        QReal im = Quotient(root, twiceA);
        QReal opposite = im;
        qneg(opposite);
        return {QComplex{re, im}, QComplex{re, opposite}};
    }
    // q = -(b + sign(b) S) / 2 does not cancel; the roots are q/a and c/q.
    const bool negativeB = !b.IsZero() && b.IsNegative();
    QReal q;
    if (negativeB) {
        q = Difference(root, b);
    } else {
        qadd(b, root, q);
        qneg(q);
    }
    qldexp(q, -1, q);
    const QComplex far = {Quotient(q, a), {}};
    const QComplex near = {q.IsZero() ? QReal{} : Quotient(polynomial[2], q), {}};
    if (negativeB) return {far, near};
    return {near, far};
}

bool IsSettled(const ExtendedPolynomial& polynomial, RootSet& roots) {
    constexpr double kLargestResidual = 1e-40;
    if (!roots.AllRealsAreRoots()) return false;
    ClearZeroRoots(polynomial, roots.values);
    for (std::size_t i = 0; i < roots.values.size(); ++i) {
        if (IsDoubtful(roots.values[i], (roots.realMask >> i & 1) != 0)) return false;
    }
    return RootResidual(polynomial, AllValues(roots)) <= kLargestResidual;
}

RootSet GroupedRoots(const ExtendedPolynomial& polynomial) {
    RootSet roots;
    roots.values = RootsOf(polynomial);
    for (std::size_t i = 0; i < roots.values.size(); ++i) {
        if (!IsRealForItsSize(roots.values[i])) continue;
        roots.realMask |= 1 << i;
        if (IsRootOf(polynomial, roots.values[i].re)) roots.goodMask |= 1 << i;
    }
    return roots;
}

}  // namespace quorix
