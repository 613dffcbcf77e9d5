#pragma once

// Functions, powers and factorials of the complex operator table. Each folds a numeric failure into -56.

#include "engine/operator_table.h"
#include "numerics/qreal.h"

namespace quorix {

using ComplexStack = OperandStack<QComplex>;

// Circular and hyperbolic functions take their argument in the angle unit, inverses give their result in it;
// the hyperbolic ones too, which is intended.
void ComplexSin(ComplexStack& stack, std::int32_t base);
void ComplexCos(ComplexStack& stack, std::int32_t base);
/// -56 at the first pole on each side.
void ComplexTan(ComplexStack& stack, std::int32_t base);
void ComplexSec(ComplexStack& stack, std::int32_t base);
void ComplexCsc(ComplexStack& stack, std::int32_t base);
void ComplexAsin(ComplexStack& stack, std::int32_t base);
void ComplexAcos(ComplexStack& stack, std::int32_t base);
void ComplexAtan(ComplexStack& stack, std::int32_t base);
void ComplexAsec(ComplexStack& stack, std::int32_t base);
void ComplexAcsc(ComplexStack& stack, std::int32_t base);
void ComplexSinh(ComplexStack& stack, std::int32_t base);
void ComplexCosh(ComplexStack& stack, std::int32_t base);
/// The two rows of "a/cosh(x)": x in radians, and the quotient by its hyperbolic cosine, which is right where
/// that overflows: 3/cosh(20000) is 0 as sech(20000) is.
void ComplexCoshArgument(ComplexStack& stack, std::int32_t base);
void ComplexDivideByCosh(ComplexStack& stack, std::int32_t base);
void ComplexTanh(ComplexStack& stack, std::int32_t base);
/// 0 where the hyperbolic cosine overflows.
void ComplexSech(ComplexStack& stack, std::int32_t base);
void ComplexCsch(ComplexStack& stack, std::int32_t base);
void ComplexAsinh(ComplexStack& stack, std::int32_t base);
void ComplexAcosh(ComplexStack& stack, std::int32_t base);
void ComplexAtanh(ComplexStack& stack, std::int32_t base);
void ComplexAsech(ComplexStack& stack, std::int32_t base);
void ComplexAcsch(ComplexStack& stack, std::int32_t base);

void ComplexLn(ComplexStack& stack, std::int32_t base);
void ComplexLog(ComplexStack& stack, std::int32_t base);
void ComplexPower(ComplexStack& stack, std::int32_t base);
/// 'a root b' is b to the 1/a.
void ComplexRoot(ComplexStack& stack, std::int32_t base);
/// 'a iroot b' is a to the 1/b.
void ComplexInverseRoot(ComplexStack& stack, std::int32_t base);
/// 'a exp b' is a times 10 to the b.
void ComplexScale(ComplexStack& stack, std::int32_t base);
/// The same for the key engines, which may repeat it.
void ComplexKeyScale(ComplexStack& stack, std::int32_t base);
/// e to the top: the key engines' "exp".
void ComplexExponential(ComplexStack& stack, std::int32_t base);
void ComplexSquareRoot(ComplexStack& stack, std::int32_t base);
/// Product 2·3·... up to the largest integer not above the operand; -54 for an imaginary part, -56 below 0
/// and above 1500.
void ComplexFactorial(ComplexStack& stack, std::int32_t base);
/// A hundredth; -54 for an imaginary part.
void ComplexPercent(ComplexStack& stack, std::int32_t base);
void ComplexAbs(ComplexStack& stack, std::int32_t base);

}  // namespace quorix
