#include "engine/range_operators.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "engine/double_function_operators.h"

namespace quorix {
namespace {

using MaybeRange = std::optional<ValueRange>;
using Elementary = double (*)(double);

constexpr double kPi = std::numbers::pi;
// What rounding may add: circular functions and logarithms are rounded to 12 decimals, the others to the
// nearest doubles or nearly, which keeps their signs.
constexpr double kDecimalSlack = 1e-12;
constexpr double kRelativeSlack = 1e-15;

ValueRange Widened(double least, double greatest, double slack = 0.0) {
    const auto width = [slack](double value) {
        return std::isfinite(value) ? std::fabs(value) * kRelativeSlack + slack : 0.0;
    };
    return {least - width(least), greatest + width(greatest)};
}

MaybeRange Sum(const ValueRange& a, const ValueRange& b) {
    return ValueRange{a.least + b.least, a.greatest + b.greatest};
}

MaybeRange Negative(const ValueRange& a) {
    return ValueRange{-a.greatest, -a.least};
}

MaybeRange Difference(const ValueRange& a, const ValueRange& b) {
    return ValueRange{a.least - b.greatest, a.greatest - b.least};
}

MaybeRange Product(const ValueRange& a, const ValueRange& b) {
    const auto corners = {a.least * b.least, a.least * b.greatest, a.greatest * b.least,
                          a.greatest * b.greatest};
    // Zero times infinity.
    if (std::ranges::any_of(corners, [](double corner) { return std::isnan(corner); })) return ValueRange{};
    return ValueRange{std::min(corners), std::max(corners)};
}

// Unbounded where 0 is among the operands.
ValueRange Reciprocal(const ValueRange& a) {
    return a.Contains(0.0) ? ValueRange{} : ValueRange{1.0 / a.greatest, 1.0 / a.least};
}

MaybeRange Quotient(const ValueRange& a, const ValueRange& b) {
    if (b.Contains(0.0)) return ValueRange{};
    const auto corners = {a.least / b.least, a.least / b.greatest, a.greatest / b.least,
                          a.greatest / b.greatest};
    if (std::ranges::any_of(corners, [](double corner) { return std::isnan(corner); })) return ValueRange{};
    return ValueRange{std::min(corners), std::max(corners)};
}

MaybeRange Hundredth(const ValueRange& a) {
    return ValueRange{a.least / 100.0, a.greatest / 100.0};
}

MaybeRange Magnitude(const ValueRange& a) {
    const double greatest = std::max(-a.least, a.greatest);
    if (a.Contains(0.0)) return ValueRange{0.0, greatest};
    return ValueRange{std::min(std::fabs(a.least), std::fabs(a.greatest)), greatest};
}

template <Elementary function>
MaybeRange Rising(const ValueRange& a) {
    return Widened(function(a.least), function(a.greatest));
}

template <Elementary logarithm>
MaybeRange Logarithm(const ValueRange& a) {
    if (a.least < 0.0) return std::nullopt;
    return Widened(logarithm(a.least), logarithm(a.greatest), kDecimalSlack);
}

MaybeRange SquareRoot(const ValueRange& a) {
    if (a.least < 0.0) return std::nullopt;
    return Rising<std::sqrt>(a);
}

MaybeRange HyperbolicArcCosine(const ValueRange& a) {
    if (a.least < 1.0) return std::nullopt;
    return Rising<std::acosh>(a);
}

bool IsWithinOne(const ValueRange& a) {
    return a.least >= -1.0 && a.greatest <= 1.0;
}

MaybeRange HyperbolicArcTangent(const ValueRange& a) {
    if (!IsWithinOne(a)) return std::nullopt;
    return Rising<std::atanh>(a);
}

template <RangeFunction function>
MaybeRange Inverted(const ValueRange& a) {
    const MaybeRange range = function(a);
    if (!range) return std::nullopt;
    return Reciprocal(*range);
}

MaybeRange HyperbolicCosine(const ValueRange& a) {
    const MaybeRange magnitude = Magnitude(a);
    return Widened(std::cosh(magnitude->least), std::cosh(magnitude->greatest));
}

// Of an angle in radians. Whole turns after the maxima tell whether one lies within.
ValueRange CosineOf(const ValueRange& a) {
    constexpr double kTurn = 2.0 * kPi;
    if (!(a.greatest - a.least < kTurn)) return {-1.0, 1.0};
    const auto passes = [&a](double extremum) {
        return std::floor((a.greatest - extremum) / kTurn) != std::floor((a.least - extremum) / kTurn);
    };
    const double first = std::cos(a.least);
    const double last = std::cos(a.greatest);
    return Widened(passes(kPi) ? -1.0 : std::min(first, last), passes(0.0) ? 1.0 : std::max(first, last),
                   kDecimalSlack);
}

ValueRange InRadians(const ValueRange& a) {
    const double factor = ToRadians();
    return {a.least * factor, a.greatest * factor};
}

MaybeRange Cosine(const ValueRange& a) {
    return CosineOf(InRadians(a));
}

MaybeRange Sine(const ValueRange& a) {
    const ValueRange radians = InRadians(a);
    return CosineOf({radians.least - kPi / 2.0, radians.greatest - kPi / 2.0});
}

MaybeRange Tangent(const ValueRange& a) {
    if (Cosine(a)->Contains(0.0)) return ValueRange{};
    const ValueRange radians = InRadians(a);
    return Widened(std::tan(radians.least), std::tan(radians.greatest), kDecimalSlack);
}

MaybeRange Cotangent(const ValueRange& a) {
    if (Sine(a)->Contains(0.0)) return ValueRange{};
    const ValueRange radians = InRadians(a);
    return Widened(1.0 / std::tan(radians.greatest), 1.0 / std::tan(radians.least), kDecimalSlack);
}

ValueRange InAngleUnit(const MaybeRange& radians) {
    const double factor = FromRadians();
    return {radians->least * factor, radians->greatest * factor};
}

MaybeRange ArcTangent(const ValueRange& a) {
    return InAngleUnit(Rising<std::atan>(a));
}

MaybeRange ArcSine(const ValueRange& a) {
    if (!IsWithinOne(a)) return std::nullopt;
    return InAngleUnit(Rising<std::asin>(a));
}

MaybeRange ArcCosine(const ValueRange& a) {
    if (!IsWithinOne(a)) return std::nullopt;
    return InAngleUnit(Widened(std::acos(a.greatest), std::acos(a.least)));
}

bool IsWhole(double value) {
    return value == std::trunc(value);
}

MaybeRange WholePower(const ValueRange& base, double exponent) {
    if (exponent < 0.0) {
        const MaybeRange power = WholePower(base, -exponent);
        return Reciprocal(*power);
    }
    const bool isEven = IsWhole(exponent / 2.0);
    const ValueRange operand = isEven ? *Magnitude(base) : base;
    return Widened(std::pow(operand.least, exponent), std::pow(operand.greatest, exponent));
}

// Monotone in each operand where the base is positive, so that the corners hold the extremes.
MaybeRange Power(const ValueRange& base, const ValueRange& exponent) {
    if (exponent.least == exponent.greatest && IsWhole(exponent.least)) {
        return WholePower(base, exponent.least);
    }
    if (base.least < 0.0) return std::nullopt;
    const auto corners = {std::pow(base.least, exponent.least), std::pow(base.least, exponent.greatest),
                          std::pow(base.greatest, exponent.least),
                          std::pow(base.greatest, exponent.greatest)};
    return Widened(std::min(corners), std::max(corners));
}

MaybeRange InverseRoot(const ValueRange& radicand, const ValueRange& degree) {
    return Power(radicand, Reciprocal(degree));
}

MaybeRange Root(const ValueRange& degree, const ValueRange& radicand) {
    return InverseRoot(radicand, degree);
}

MaybeRange Scaled(const ValueRange& factor, const ValueRange& exponent) {
    return Product(factor, *Power({10.0, 10.0}, exponent));
}

struct FunctionRow {
    std::u16string_view name;
    RangeFunction function;
};
struct OperationRow {
    std::u16string_view name;
    RangeOperation operation;
};

constexpr auto kFunctions = std::to_array<FunctionRow>({
    {u"%", Hundredth},
    {u"-", Negative},
    {u"abs", Magnitude},
    {u"sqrt", SquareRoot},
    {u"exp", Rising<std::exp>},
    {u"ln", Logarithm<std::log>},
    {u"log", Logarithm<std::log10>},
    {u"sin", Sine},
    {u"cos", Cosine},
    {u"tan", Tangent},
    {u"ctan", Cotangent},
    {u"sec", Inverted<Cosine>},
    {u"csc", Inverted<Sine>},
    {u"asin", ArcSine},
    {u"acos", ArcCosine},
    {u"atan", ArcTangent},
    {u"sinh", Rising<std::sinh>},
    {u"cosh", HyperbolicCosine},
    {u"tanh", Rising<std::tanh>},
    {u"ctanh", Inverted<Rising<std::tanh>>},
    {u"sech", Inverted<HyperbolicCosine>},
    {u"csch", Inverted<Rising<std::sinh>>},
    {u"asinh", Rising<std::asinh>},
    {u"acosh", HyperbolicArcCosine},
    {u"atanh", HyperbolicArcTangent},
});

constexpr auto kOperations = std::to_array<OperationRow>({
    {u"+", Sum},
    {u"-", Difference},
    {u"*", Product},
    {u"/", Quotient},
    {u"^", Power},
    {u"root", Root},
    {u"iroot", InverseRoot},
    {u"iexp", Scaled},
});

}  // namespace

bool ValueRange::IsBounded() const {
    return std::isfinite(least) && std::isfinite(greatest);
}

RangeFunction FindRangeFunction(std::u16string_view name) {
    const auto* row = std::ranges::find(kFunctions, name, &FunctionRow::name);
    return row == kFunctions.end() ? nullptr : row->function;
}

RangeOperation FindRangeOperation(std::u16string_view name) {
    const auto* row = std::ranges::find(kOperations, name, &OperationRow::name);
    return row == kOperations.end() ? nullptr : row->operation;
}

}  // namespace quorix
