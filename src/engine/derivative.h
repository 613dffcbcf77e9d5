#pragma once

#include <string_view>

#include "engine/named_arguments.h"
#include "numerics/qreal.h"

namespace quorix {

/// fnDeriv(expression, variable, point): by structure over +, -, *, /, root and ^ as far as it goes,
/// numerically for what is left. Leaves the angle unit at radians.
QReal CallDerivative(NamedArguments& arguments);

/// fnEval(expression, variable, point).
QReal CallEvaluation(NamedArguments& arguments);

/// Derivative of `text` at the point of the bound variable; zero with the first failure's code in calcError.
QReal Derive(std::u16string_view text, const QReal& point);

/// Symmetric difference quotient of `text` with h = 1e-6; at an edge of the domain one side shrinks to the
/// edge by halving down to 1e-10. -55 when no width is left.
QReal NumericalDerivative(std::u16string_view text, const QReal& point);

}  // namespace quorix
