#pragma once

// Rows of the double operator table that apply a function of one argument: what is common to them is told
// once, and each row is a description.

#include <cstdint>

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

/// Factor from the angle unit to radians, and back.
double ToRadians();
double FromRadians();

/// Poles of tan and sec: odd multiples of a right angle, told by the number of right angles at 13 decimals.
bool IsOddRightAngle(double radians);
/// Poles of csc: multiples of two right angles, 0 included.
bool IsStraightAngle(double radians);

/// Rounds the real part.
DComplex RoundedTo12Decimals(DComplex value);

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
    if constexpr (isPole != nullptr) {
        if (IsReal(value) && isPole(value.re)) {
            calcContext().calcError = form.error;
            return;
        }
    }
    value = compute(value);
    if (form.error != 0 && IsNotANumber(value)) {
        calcContext().calcError = form.error;
        return;
    }
    if constexpr (form.isRounded) value = RoundedTo12Decimals(value);
    if constexpr (form.angle == AngleUse::result) {
        if (IsReal(value)) {
            value.re *= FromRadians();
        } else {
            calcContext().angleUnit = UNIT_RADIANS;
        }
    }
    top = value;
}

/// Its real form. A result that is not a number is left to the walk, whether it is an error or not.
template <DoubleFunction compute, FunctionForm form, PoleTest isPole>
bool ApplyRealFunction(double* top) {
    double x = *top;
    if constexpr (form.angle == AngleUse::argument) x *= ToRadians();
    if constexpr (isPole != nullptr) {
        if (isPole(x)) return false;
    }
    DComplex value = compute({x, 0.0});
    if (!IsReal(value) || std::isnan(value.re)) return false;
    if constexpr (form.isRounded) value = RoundedTo12Decimals(value);
    if constexpr (form.angle == AngleUse::result) value.re *= FromRadians();
    *top = value.re;
    return true;
}

template <DoubleFunction compute, FunctionForm form, PoleTest isPole = nullptr>
constexpr OperatorRow<DComplex> FunctionRow(std::u16string_view name) {
    return {name, 1, ApplyFunction<compute, form, isPole>, ApplyRealFunction<compute, form, isPole>};
}

}  // namespace quorix
