#include "engine/complex_function_operators.h"

#include "engine/arithmetic_operators.h"
#include "engine/complex_angle.h"
#include "engine/complex_operands.h"
#include "numerics/constants.h"
#include "numerics/qfunctions.h"

namespace quorix {

namespace {

using Function = void (*)(const QComplex& z, QComplex& result);

constexpr std::int32_t kLargestFactorial = 1500;

QComplex RealNumber(std::int32_t n) {
    QComplex number;
    ltoq(n, number.re);
    return number;
}

QComplex Reciprocal(const QComplex& z) {
    QComplex result;
    qcdiv(z, constants::kComplexOne, result);
    return result;
}

using AngleRule = QComplex (*)(const QComplex& angle);

template <Function function, AngleRule angleIn = CircularAngleIn>
void ApplyDirect(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const QComplex argument = angleIn(stack.Top());
    function(argument, stack.Top());
    FoldNumericError();
}

template <Function function, AngleRule angleIn = CircularAngleIn>
void ApplyReciprocal(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const QComplex argument = angleIn(stack.Top());
    QComplex value;
    function(argument, value);
    stack.Top() = Reciprocal(value);
    FoldNumericError();
}

template <Function function>
void ApplyInverse(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    QComplex value;
    function(stack.Top(), value);
    stack.Top() = AngleOut(value);
    FoldNumericError();
}

template <Function function>
void ApplyInverseOfReciprocal(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    QComplex value;
    function(Reciprocal(stack.Top()), value);
    stack.Top() = AngleOut(value);
    FoldNumericError();
}

/// Whether a real argument lies on the first pole of the tangent on either side.
bool IsAtPole(const QComplex& radians) {
    if (!radians.im.IsZero()) {
        return false;
    }
    QReal distance = radians.re;
    qabs(distance);
    QReal quarterTurn;
    qldexp(constants::kPi, -1, quarterTurn);
    qsub(distance, quarterTurn, distance);
    return IsBelowTiny(distance);
}

/// The right operand of a binary row, kept for the repeat of "="; null with -1 when there are fewer than two.
const QComplex* RightOperand(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 2)) {
        return nullptr;
    }
    KeepRightOperand(stack.Top());
    return &stack.Top();
}

void FinishBinary(ComplexStack& stack) {
    --stack.depth;
    FoldNumericError();
}

void ScaleByTen(ComplexStack& stack) {
    static const QComplex ten = RealNumber(10);
    QComplex power;
    qcpow(ten, stack.Top(), power);
    QComplex& left = stack.Top(1);
    qcmul(left, power, left);
    FinishBinary(stack);
}

/// cosh of `argument`; an overflow of its own is told and not recorded.
bool CoshOverflows(const QComplex& argument, QComplex& result) {
    const int standing = NumericErrorFlag();
    qccosh(argument, result);
    const bool overflows = standing == NUMERIC_OK && NumericErrorFlag() == NUMERIC_OVERFLOW;
    if (overflows) {
        ClearNumericError();
    }
    return overflows;
}

/// number / cosh z = 2·number·e^-z where z is far to the right, and cosh is even. By halves of z, so that a
/// large number meets no power that has vanished before the quotient does.
void DivideByFarCosh(QComplex& number, QComplex z) {
    if (!z.re.IsNegative()) {
        qcneg(z);
    }
    qldexp(z.re, -1, z.re);
    qldexp(z.im, -1, z.im);
    QComplex half;
    qcexp(z, half);
    qcmul(number, half, number);
    qcmul(number, half, number);
    qcadd(number, number, number);
    // What is below the smallest number is 0 without report.
    ClearNumericError();
}

/// A real operand on top, or -54.
bool HasRealOperand(const ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return false;
    }
    if (!IsBelowTiny(stack.Top().im)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
        return false;
    }
    return true;
}

}  // namespace

void ComplexSin(ComplexStack& stack, std::int32_t base) {
    ApplyDirect<qcsin>(stack, base);
}
void ComplexCos(ComplexStack& stack, std::int32_t base) {
    ApplyDirect<qccos>(stack, base);
}
void ComplexSec(ComplexStack& stack, std::int32_t base) {
    ApplyReciprocal<qccos>(stack, base);
}
void ComplexCsc(ComplexStack& stack, std::int32_t base) {
    ApplyReciprocal<qcsin>(stack, base);
}
void ComplexAsin(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcasin>(stack, base);
}
void ComplexAcos(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcacos>(stack, base);
}
void ComplexAtan(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcatan>(stack, base);
}
void ComplexAsec(ComplexStack& stack, std::int32_t base) {
    ApplyInverseOfReciprocal<qcacos>(stack, base);
}
void ComplexAcsc(ComplexStack& stack, std::int32_t base) {
    ApplyInverseOfReciprocal<qcasin>(stack, base);
}
void ComplexSinh(ComplexStack& stack, std::int32_t base) {
    ApplyDirect<qcsinh, AngleIn>(stack, base);
}
void ComplexCosh(ComplexStack& stack, std::int32_t base) {
    ApplyDirect<qccosh, AngleIn>(stack, base);
}
void ComplexTanh(ComplexStack& stack, std::int32_t base) {
    ApplyDirect<qctanh, AngleIn>(stack, base);
}
void ComplexCsch(ComplexStack& stack, std::int32_t base) {
    ApplyReciprocal<qcsinh, AngleIn>(stack, base);
}
void ComplexAsinh(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcasinh>(stack, base);
}
void ComplexAcosh(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcacosh>(stack, base);
}
void ComplexAtanh(ComplexStack& stack, std::int32_t base) {
    ApplyInverse<qcatanh>(stack, base);
}
void ComplexAsech(ComplexStack& stack, std::int32_t base) {
    ApplyInverseOfReciprocal<qcacosh>(stack, base);
}
void ComplexAcsch(ComplexStack& stack, std::int32_t base) {
    ApplyInverseOfReciprocal<qcasinh>(stack, base);
}

void ComplexTan(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const QComplex argument = CircularAngleIn(stack.Top());
    if (IsAtPole(argument)) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
        return;
    }
    qctan(argument, stack.Top());
    FoldNumericError();
}

void ComplexSech(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const QComplex argument = AngleIn(stack.Top());
    stack.Top() = CoshOverflows(argument, stack.Top()) ? QComplex{} : Reciprocal(stack.Top());
    FoldNumericError();
}

void ComplexCoshArgument(ComplexStack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1)) {
        stack.Top() = AngleIn(stack.Top());
    }
}

void ComplexDivideByCosh(ComplexStack& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) {
        return;
    }
    const QComplex argument = stack.Top();
    if (!CoshOverflows(argument, stack.Top())) {
        FoldNumericError();
        if (calcContext().calcError == 0) {
            ComplexDivide(stack, base);
        }
        return;
    }
    if (stack.depth - base < 2) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
        return;
    }
    KeepRightOperand(stack.Top());
    --stack.depth;
    DivideByFarCosh(stack.Top(), argument);
}

void ComplexLn(ComplexStack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1)) {
        qclog(stack.Top(), stack.Top());
        FoldNumericError();
    }
}

void ComplexLog(ComplexStack& stack, std::int32_t base) {
    static const QComplex lnTen = [] {
        QComplex logarithm;
        qclog(RealNumber(10), logarithm);
        return logarithm;
    }();
    if (HasOperands(stack, base, 1)) {
        QComplex& top = stack.Top();
        qclog(top, top);
        qcdiv(lnTen, top, top);
        FoldNumericError();
    }
}

void ComplexPower(ComplexStack& stack, std::int32_t base) {
    if (const QComplex* right = RightOperand(stack, base)) {
        qcpow(stack.Top(1), *right, stack.Top(1));
        FinishBinary(stack);
    }
}

void ComplexRoot(ComplexStack& stack, std::int32_t base) {
    if (const QComplex* right = RightOperand(stack, base)) {
        const QComplex exponent = Reciprocal(stack.Top(1));
        qcpow(*right, exponent, stack.Top(1));
        FinishBinary(stack);
    }
}

void ComplexInverseRoot(ComplexStack& stack, std::int32_t base) {
    if (const QComplex* right = RightOperand(stack, base)) {
        qcpow(stack.Top(1), Reciprocal(*right), stack.Top(1));
        FinishBinary(stack);
    }
}

void ComplexScale(ComplexStack& stack, std::int32_t base) {
    // The right operand is not kept for the repeat of "="; this is intended.
    if (HasOperands(stack, base, 2)) {
        ScaleByTen(stack);
    }
}

void ComplexKeyScale(ComplexStack& stack, std::int32_t base) {
    if (RightOperand(stack, base) != nullptr) {
        ScaleByTen(stack);
    }
}

void ComplexExponential(ComplexStack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1)) {
        qcexp(stack.Top(), stack.Top());
        FoldNumericError();
    }
}

void ComplexSquareRoot(ComplexStack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1)) {
        // A power by logarithms would lose the last bit of whole roots, and with it sqrt(9)!.
        qcsqrt(stack.Top(), stack.Top());
        FoldNumericError();
    }
}

void ComplexFactorial(ComplexStack& stack, std::int32_t base) {
    if (!HasRealOperand(stack, base)) {
        return;
    }
    QComplex& top = stack.Top();
    std::int32_t last = 0;
    QReal fraction;
    qifrac(top.re, last, fraction);
    const bool aboveLargest = last == kLargestFactorial && !fraction.IsZero();
    if (qcmp(top.re, constants::kZero) < 0 || last > kLargestFactorial || aboveLargest) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
        return;
    }
    // A fractional part is cut off: 2.5! is 2. This is intended.
    top = {};
    qfactorial(static_cast<std::uint16_t>(last), top.re);
    FoldNumericError();
}

void ComplexPercent(ComplexStack& stack, std::int32_t base) {
    static const QReal hundred = RealNumber(100).re;
    if (HasRealOperand(stack, base)) {
        QComplex& top = stack.Top();
        qdiv(hundred, top.re, top.re);
        qclear(top.im);
        FoldNumericError();
    }
}

void ComplexAbs(ComplexStack& stack, std::int32_t base) {
    if (HasOperands(stack, base, 1)) {
        QComplex& top = stack.Top();
        QReal magnitude;
        qcabs(top, magnitude);
        top = {magnitude, {}};
        FoldNumericError();
    }
}

}  // namespace quorix
