#pragma once

// Powers, roots, factorial and percent of the double operator table.

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

/// Power. -7 when exponent times ln of the base's magnitude reaches 305; exponent 0 gives 1 for every base,
/// and 0 to a positive power is 0. A negative base with a fractional exponent gives a not-a-number as value.
void DoublePower(OperandStack<DComplex>& stack, std::int32_t base);
/// 'a root b' is b to the power 1/a, 'a iroot b' a to the power 1/b.
void DoubleRoot(OperandStack<DComplex>& stack, std::int32_t base);
void DoubleInverseRoot(OperandStack<DComplex>& stack, std::int32_t base);
/// 'a iexp b' is a times 10 to the power b.
void DoubleScale(OperandStack<DComplex>& stack, std::int32_t base);
/// Of an integer from 0 to 170; -54 for an imaginary part, -53 for a fraction, -7 for other integers.
void DoubleFactorial(OperandStack<DComplex>& stack, std::int32_t base);
/// x/100; -54 for an imaginary part.
void DoublePercent(OperandStack<DComplex>& stack, std::int32_t base);

/// The same where no imaginary part is involved.
double RealPower(double base, double exponent);
double RealRoot(double degree, double radicand);
double RealInverseRoot(double radicand, double degree);
double RealScale(double factor, double exponent);
double RealFactorial(double operand);
double RealPercent(double operand);
/// RealPower(base, 2).
double RealSquare(double base);

}  // namespace quorix
