#include "tools/round_to.h"

#include <cmath>

namespace quorix {

double RoundTo(double x, int digits) {
    const double p = std::pow(10.0, digits);
    const double y = p * x;
    if (!std::isfinite(y)) {
        return x;  // so large a number has no decimals
    }
    const double fraction = y - std::fabs(std::trunc(y));
    return (fraction > 0.5 ? std::ceil(y) : std::floor(y)) / p;
}

}  // namespace quorix
