#pragma once

#include <functional>

#include "engine/named_arguments.h"
#include "numerics/qreal.h"

namespace quorix {

/// Integral of f from a to b (a below b) by Romberg's method: trapezoid refinements up to 2^11 intervals,
/// extrapolated through the last five by Neville's scheme until the error estimate is at most 1e-6 of the
/// value, or below 1e-14 of span times mean magnitude of the samples, where the value counts as 0 if it lies
/// below that floor too. Stores -10 when the estimate stays above. Evaluation stops at the first code in
/// calcError; the result is then 0.
double Romberg(const std::function<double(double)>& f, double a, double b);

/// fnInt(expression, variable, lower, upper). Leaves the angle unit at radians. The order of the limits is
/// ignored.
QReal CallIntegral(NamedArguments& arguments);

}  // namespace quorix
