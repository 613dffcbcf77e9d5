#pragma once

// The expression that solvers, integrals and derivatives evaluate at many points of its bound variable.

#include <string>
#include <string_view>
#include <utility>

#include "numerics/qreal.h"

namespace quorix {

struct BoundExpression {
    std::u16string text;
    /// Name of the bound variable, empty for none.
    std::u16string name;
};

/// The one of the process; callers set it before they evaluate.
BoundExpression& boundExpression();

/// Sets the bound expression for the life of a scope; the one before comes back, as calls nest.
class BoundExpressionScope {
  public:
    explicit BoundExpressionScope(BoundExpression expression)
        : saved_(std::exchange(boundExpression(), std::move(expression))) {}
    ~BoundExpressionScope() { boundExpression() = std::move(saved_); }
    BoundExpressionScope(const BoundExpressionScope&) = delete;
    BoundExpressionScope& operator=(const BoundExpressionScope&) = delete;

  private:
    BoundExpression saved_;
};

/// The bound expression at a point, radix 10. An imaginary part above 1e-64 leaves -54 and gives zero; so
/// does any other failure with its own code.
QComplex EvalBoundComplex(const QReal& point);
/// The complex value at a point with each part below 1e-64 set to zero; zero after a failure.
QComplex EvalBoundComplexClean(const QReal& point);
/// Real value of `text` at x in doubles, bound name from the bound expression. An imaginary part above 1e-8
/// leaves -54 and gives 0.
double EvalBoundDouble(double x, std::u16string_view text);
/// The bound expression itself in doubles, with the tolerance 1e-16.
double EvalBoundDoubleCached(double x);

}  // namespace quorix
