#include "engine/bound_expression.h"

#include <cmath>

#include "engine/calc_context.h"
#include "engine/complex_operands.h"
#include "engine/engine_errors.h"
#include "engine/eval_complex.h"
#include "engine/eval_double.h"

namespace quorix {
namespace {

constexpr double kImaginaryTolerance = 1e-8;
constexpr double kCachedImaginaryTolerance = 1e-16;

double RealValueAt(double x, std::u16string_view text, double tolerance) {
    const std::optional<DComplex> value = EvalToDouble(text, boundExpression().name, x, 10);
    if (!value) return 0.0;
    if (std::fabs(value->im) > tolerance) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
        return 0.0;
    }
    return value->re;
}

QComplex ComplexValueAt(const QReal& point) {
    const BoundExpression& expression = boundExpression();
    return EvalToComplex(expression.text, expression.name, &point, 10).value_or(QComplex{});
}

bool IsAboveTiny(const QReal& part) {
    return !IsBelowTiny(part) && part.words != kTiny.words;
}

}  // namespace

BoundExpression& boundExpression() {
    static BoundExpression expression;
    return expression;
}

QComplex EvalBoundComplex(const QReal& point) {
    const QComplex value = ComplexValueAt(point);
    if (IsAboveTiny(value.im)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
        return {};
    }
    return value;
}

QComplex EvalBoundComplexClean(const QReal& point) {
    QComplex value = ComplexValueAt(point);
    if (IsBelowTiny(value.re)) qclear(value.re);
    if (IsBelowTiny(value.im)) qclear(value.im);
    return value;
}

double EvalBoundDouble(double x, std::u16string_view text) {
    return RealValueAt(x, text, kImaginaryTolerance);
}

double EvalBoundDoubleCached(double x) {
    return RealValueAt(x, boundExpression().text, kCachedImaginaryTolerance);
}

}  // namespace quorix
