#include "engine/double_function_operators.h"

#include "engine/decimal_rounding.h"

namespace quorix {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kRadiansPerGrad = 0.015707963267948967;
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kGradsPerRadian = 63.66197723675814;
constexpr double kRightAnglesPerRadian = 0.6366197723675814;
constexpr double kHalfTurnsPerRadian = 0.3183098861837907;

}  // namespace

double ToRadians() {
    switch (calcContext().angleUnit) {
        case UNIT_DEGREES: return kRadiansPerDegree;
        case UNIT_GRADS: return kRadiansPerGrad;
        default: return 1.0;
    }
}

double FromRadians() {
    switch (calcContext().angleUnit) {
        case UNIT_DEGREES: return kDegreesPerRadian;
        case UNIT_GRADS: return kGradsPerRadian;
        default: return 1.0;
    }
}

bool IsOddRightAngle(double radians) {
    const double count = WholeAt13Decimals(std::fabs(radians) * kRightAnglesPerRadian);
    return count > 0.0 && std::fmod(count, 2.0) == 1.0;
}

bool IsStraightAngle(double radians) {
    return WholeAt13Decimals(std::fabs(radians) * kHalfTurnsPerRadian) >= 0.0;
}

DComplex RoundedTo12Decimals(DComplex value) {
    return {RoundTo12Decimals(value.re), value.im};
}

}  // namespace quorix
