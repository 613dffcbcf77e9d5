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

// x * x, or false where pow might give its neighbour. The C library's pow is off by at most 0.55 units of the
// last place; so it is the nearest double unless the square lies within 0.05 units of the middle of two
// doubles. The square's bits behind the last place tell.
bool TrySquare(double x, double& square) {
    constexpr std::uint64_t kFraction = (std::uint64_t{1} << 52U) - 1;
    constexpr std::uint64_t kNearMiddle = std::uint64_t{1} << 48U;  // 1/16 of 2^52
    // Far from underflow, and far below the powers that are refused.
    constexpr double kSmallest = 0x1p-200;
    constexpr double kLargest = 0x1p200;
    if (!(std::fabs(x) > kSmallest && std::fabs(x) < kLargest)) return false;
    const std::uint64_t mantissa = (std::bit_cast<std::uint64_t>(x) & kFraction) | (kFraction + 1);
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide{mantissa} * mantissa;
    // 105 or 106 bits, of which 53 stay: the rest is brought to 53 bits.
    const bool is106 = product >> 105U != 0;
    const auto rest = static_cast<std::uint64_t>(product << (is106 ? 0U : 1U)) & (2 * kFraction + 1);
    const std::uint64_t middle = kFraction + 1;
    const std::uint64_t distance = rest < middle ? middle - rest : rest - middle;
    if (distance < 2 * kNearMiddle) return false;
    square = x * x;
    return true;
}

// The C library's power, squares on a shorter way.
double PowerOfReals(double base, double exponent) {
    double square;
    if (exponent == 2.0 && TrySquare(base, square)) return square;
    return std::pow(base, exponent);
}

DComplex PowerByLogarithm(DComplex base, DComplex exponent) {
    if (IsReal(base) && IsReal(exponent)) return {PowerOfReals(base.re, exponent.re), 0.0};
    DComplex result = dcomplex::pow(base, exponent);
    if (std::fabs(result.im) < kImaginaryNoise) result.im = 0.0;
    return result;
}

// The sign of the exponent counts: 0^2 is 0 and 0^-1 is out of range.
bool IsTooLarge(DComplex base, double exponent) {
    return exponent * std::log(dcomplex::magnitude(base)) >= kLargestLogarithm;
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
    if (exponent == 0.0) return 1.0;
    const double result = PowerOfReals(base, exponent);
    if (!(std::fabs(result) < kSurelyAllowed) && IsTooLarge({base, 0.0}, exponent)) return kNoRealResult;
    return result;
}

double RealRoot(double degree, double radicand) {
    return PowerOfReals(radicand, 1.0 / degree);
}

double RealInverseRoot(double radicand, double degree) {
    return PowerOfReals(radicand, 1.0 / degree);
}

double RealScale(double factor, double exponent) {
    return factor * PowerOfReals(10.0, exponent);
}

double RealFactorial(double operand) {
    return IsFactorialArgument(operand) ? kFactorials[static_cast<std::size_t>(operand)] : kNoRealResult;
}

double RealPercent(double operand) {
    return operand / 100.0;
}

double RealSquare(double base) {
    double square;
    return TrySquare(base, square) ? square : RealPower(base, 2.0);
}

}  // namespace quorix
