#include "engine/double_power_operators.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/double_operands.h"
#include "numerics/double_complex.h"

namespace quorix {
namespace {

// e^305 is the first power that is refused.
constexpr double kLargestLogarithm = 305.0;
// Results of a smaller magnitude lie below that for certain: e^305 is 2.9 times this.
constexpr double kSurelyAllowed = 1e132;
constexpr double kImaginaryNoise = 1e-12;
constexpr int kLargestFactorial = 170;

constexpr auto kFactorials = [] {
    std::array<double, kLargestFactorial + 1> factorials{};
    double product = 1.0;
    for (std::size_t n = 0; n < factorials.size(); ++n) {
        if (n > 1) product *= static_cast<double>(n);
        factorials[n] = product;
    }
    return factorials;
}();

DComplex PowerByLogarithm(DComplex base, DComplex exponent) {
    if (IsReal(base) && IsReal(exponent)) return {std::pow(base.re, exponent.re), 0.0};
    DComplex result = dcomplex::pow(base, exponent);
    if (std::fabs(result.im) < kImaginaryNoise) result.im = 0.0;
    return result;
}

// The sign of the exponent counts: 0^2 is 0 and 0^-1 is out of range.
bool IsTooLarge(DComplex base, double exponent) {
    return exponent * std::log(dcomplex::magnitude(base)) >= kLargestLogarithm;
}

// The library makes 1 of some powers whose operands are not numbers.
double RealPowerOf(double base, double exponent) {
    return std::isnan(base) || std::isnan(exponent) ? kNoRealResult : std::pow(base, exponent);
}

bool IsFactorialArgument(double x) {
    return x >= 0.0 && x <= kLargestFactorial && x == std::trunc(x);
}

}  // namespace

void DoublePower(OperandStack<DComplex>& stack, std::int32_t base) {
    const DComplex* right = PopRight(stack, base);
    if (right == nullptr) return;
    DComplex& left = stack.Top();
    if (right->re == 0.0 && right->im == 0.0) {
        left = {1.0, 0.0};
    } else if (IsTooLarge(left, right->re)) {
        calcContext().calcError = ERROR_OUT_OF_RANGE;
    } else {
        left = PowerByLogarithm(left, *right);
    }
}

void DoubleRoot(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        left = PowerByLogarithm(*right, dcomplex::reciprocal(left));
    }
}

void DoubleInverseRoot(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        left = PowerByLogarithm(left, dcomplex::reciprocal(*right));
    }
}

void DoubleScale(OperandStack<DComplex>& stack, std::int32_t base) {
    if (const DComplex* right = PopRight(stack, base)) {
        DComplex& left = stack.Top();
        left = dcomplex::multiply(left, PowerByLogarithm({10.0, 0.0}, *right));
    }
}

void DoubleFactorial(OperandStack<DComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) return;
    DComplex& top = stack.Top();
    if (!IsReal(top)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
    } else if (top.re != std::trunc(top.re)) {
        calcContext().calcError = ERROR_INTEGER_TYPE;
    } else if (!IsFactorialArgument(top.re)) {
        calcContext().calcError = ERROR_OUT_OF_RANGE;
    } else {
        top = {kFactorials[static_cast<std::size_t>(top.re)], 0.0};
    }
}

void DoublePercent(OperandStack<DComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) return;
    DComplex& top = stack.Top();
    if (!IsReal(top)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
    } else {
        top = {top.re / 100.0, 0.0};
    }
}

double RealPower(double base, double exponent) {
    if (exponent == 0.0) return std::isnan(base) ? kNoRealResult : 1.0;
    const double result = RealPowerOf(base, exponent);
    if (!(std::fabs(result) < kSurelyAllowed) && IsTooLarge({base, 0.0}, exponent)) return kNoRealResult;
    return result;
}

double RealRoot(double degree, double radicand) {
    return RealPowerOf(radicand, 1.0 / degree);
}

double RealInverseRoot(double radicand, double degree) {
    return RealPowerOf(radicand, 1.0 / degree);
}

double RealScale(double factor, double exponent) {
    return factor * RealPowerOf(10.0, exponent);
}

double RealFactorial(double operand) {
    return IsFactorialArgument(operand) ? kFactorials[static_cast<std::size_t>(operand)] : kNoRealResult;
}

double RealPercent(double operand) {
    return operand / 100.0;
}

}  // namespace quorix
