#include "engine/double_function_operators.h"

#include "engine/decimal_rounding.h"

namespace quorix {
namespace {

constexpr double kRightAnglesPerRadian = 0.6366197723675814;
constexpr double kHalfTurnsPerRadian = 0.3183098861837907;

}  // namespace

bool IsOddRightAngle(double radians) {
    const double count = WholeAt13Decimals(std::fabs(radians) * kRightAnglesPerRadian);
    return count > 0.0 && std::fmod(count, 2.0) == 1.0;
}

bool IsStraightAngle(double radians) {
    return WholeAt13Decimals(std::fabs(radians) * kHalfTurnsPerRadian) >= 0.0;
}

}  // namespace quorix
