#pragma once

// Rows of the double operator table that apply a function of one argument: what is common to them is told
// once, and each row is a description.

#include <cstdint>

#include "engine/decimal_rounding.h"
#include "engine/double_operands.h"
#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// Where the angle unit enters.
enum class AngleUse : std::uint8_t { none, argument, result };

/// Whether a real argument in radians counts as a pole.
using PoleTest = bool (*)(double radians);

using DoubleFunction = DComplex (*)(DComplex);

/// What a row does around its function.
struct FunctionForm {
    /// Code for a pole and for a result that is not a number; with 0 such a result passes.
    std::int32_t error = 0;
    AngleUse angle = AngleUse::none;
    /// Whether the real part of the result is rounded to 12 decimals, so that sin(180 degrees) is 0.
    bool isRounded = false;
};

/// Factor from the angle unit to radians.
inline double ToRadians() {
    constexpr double kRadiansPerDegree = 0.017453292519943295;
    constexpr double kRadiansPerGrad = 0.015707963267948967;
    const std::int32_t unit = calcContext().angleUnit;
    return unit == UNIT_DEGREES ? kRadiansPerDegree : unit == UNIT_GRADS ? kRadiansPerGrad : 1.0;
}

/// Factor from radians to the angle unit.
inline double FromRadians() {
    constexpr double kDegreesPerRadian = 57.29577951308232;
    constexpr double kGradsPerRadian = 63.66197723675814;
    const std::int32_t unit = calcContext().angleUnit;
    return unit == UNIT_DEGREES ? kDegreesPerRadian : unit == UNIT_GRADS ? kGradsPerRadian : 1.0;
}

/// For functions without poles on the real line.
constexpr bool HasNoPole(double /*radians*/) {
    return false;
}
/// Poles of tan and sec: odd multiples of a right angle, told by the number of right angles at 13 decimals.
bool IsOddRightAngle(double radians);
/// Poles of csc: multiples of two right angles, 0 included.
bool IsStraightAngle(double radians);

/// The function behind a row.
template <DoubleFunction compute, FunctionForm form, PoleTest isPole>
void ApplyFunction(OperandStack<DComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) return;
    DComplex& top = stack.Top();
    DComplex value = top;
    if constexpr (form.angle == AngleUse::argument) {
        if (IsReal(value)) {
            value.re *= ToRadians();
        } else {
            calcContext().angleUnit = UNIT_RADIANS;  // For good; this is intended.
        }
    }
    if (IsReal(value) && isPole(value.re)) {
        calcContext().calcError = form.error;
        return;
    }
    value = compute(value);
    if (form.error != 0 && IsNotANumber(value)) {
        calcContext().calcError = form.error;
        return;
    }
    if constexpr (form.isRounded) value.re = RoundTo12Decimals(value.re);
    if constexpr (form.angle == AngleUse::result) {
        if (IsReal(value)) {
            value.re *= FromRadians();
        } else {
            calcContext().angleUnit = UNIT_RADIANS;
        }
    }
    top = value;
}

/// Its real form.
template <DoubleFunction compute, FunctionForm form, PoleTest isPole>
double ApplyRealFunction(double operand) {
    if constexpr (form.angle == AngleUse::argument) operand *= ToRadians();
    if (isPole(operand)) return kNoRealResult;
    const DComplex value = compute({operand, 0.0});
    if (!IsReal(value)) return kNoRealResult;
    if constexpr (form.isRounded) return RoundTo12Decimals(value.re);
    if constexpr (form.angle == AngleUse::result) return value.re * FromRadians();
    return value.re;
}

template <DoubleFunction compute, FunctionForm form, PoleTest isPole = HasNoPole>
constexpr OperatorRow<DComplex> FunctionRow(std::u16string_view name) {
    return {name, 1, ApplyFunction<compute, form, isPole>, ApplyRealFunction<compute, form, isPole>};
}

}  // namespace quorix
