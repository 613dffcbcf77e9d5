#pragma once

#include <functional>

#include "engine/named_arguments.h"
#include "numerics/qreal.h"

namespace quorix {

/// A root of f between a and b by Brent's method, at most 99 steps. Stores -12 and gives 0 when f(a) and f(b)
/// have one sign or the steps do not suffice. An end where |f| is below 1e-8 is taken as it is. A code that f
/// stores ends the search.
double BrentRoot(const std::function<double(double)>& f, double a, double b);

/// fnRoot(expression, variable, lower, upper).
QReal CallRootSearch(NamedArguments& arguments);

}  // namespace quorix
