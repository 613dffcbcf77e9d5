#include "engine/double_operator_table.h"

#include <array>

#include "engine/double_arithmetic_operators.h"
#include "engine/double_function_operators.h"
#include "engine/double_power_operators.h"
#include "engine/integer_operations.h"
#include "numerics/double_complex.h"

namespace quorix {
namespace {

using Row = OperatorRow<DComplex>;

// Circular functions: of the direct ones all but ctan are rounded.
template <DoubleFunction compute, std::int32_t error, PoleTest isPole = HasNoPole, bool isRounded = true>
constexpr Row Direct(std::u16string_view name) {
    return FunctionRow<compute, FunctionForm{error, AngleUse::argument, isRounded}, isPole>(name);
}
template <DoubleFunction compute, std::int32_t error>
constexpr Row Inverse(std::u16string_view name) {
    return FunctionRow<compute, FunctionForm{error, AngleUse::result}>(name);
}
// Unlike in the complex table the hyperbolic functions take the number as it stands.
template <DoubleFunction compute, std::int32_t error>
constexpr Row Plain(std::u16string_view name) {
    return FunctionRow<compute, FunctionForm{error}>(name);
}
// A not-a-number passes.
template <DoubleFunction compute>
constexpr Row Logarithm(std::u16string_view name) {
    return FunctionRow<compute, FunctionForm{.isRounded = true}>(name);
}

DComplex MagnitudeOf(DComplex z) {
    return {dcomplex::magnitude(z), 0.0};
}

void StoreOutcome(const IntegerOutcome& outcome, DComplex& result) {
    if (outcome.error != 0) {
        calcContext().calcError = outcome.error;
    } else {
        result = {outcome.value, 0.0};
    }
}

template <BinaryIntegerOperation operation>
void ApplyInteger(OperandStack<DComplex>& stack, std::int32_t base) {
    const DComplex* right = PopRight(stack, base);
    if (right == nullptr) return;
    DComplex& left = stack.Top();
    if (!IsReal(left) || !IsReal(*right)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
    } else {
        StoreOutcome(operation(left.re, right->re, calcContext().wordSize), left);
    }
}

template <BinaryIntegerOperation operation>
double ApplyRealInteger(double left, double right) {
    const IntegerOutcome outcome = operation(left, right, calcContext().wordSize);
    return outcome.error != 0 ? kNoRealResult : outcome.value;
}

template <BinaryIntegerOperation operation>
constexpr Row Integer(std::u16string_view name) {
    return {name, 2, ApplyInteger<operation>, nullptr, ApplyRealInteger<operation>};
}

template <UnaryIntegerOperation operation>
void ApplyComplement(OperandStack<DComplex>& stack, std::int32_t base) {
    if (!HasOperands(stack, base, 1)) return;
    DComplex& top = stack.Top();
    if (!IsReal(top)) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
    } else {
        StoreOutcome(operation(top.re, calcContext().wordSize), top);
    }
}

template <UnaryIntegerOperation operation>
double ApplyRealComplement(double operand) {
    return std::isnan(operand) ? kNoRealResult : operation(operand, calcContext().wordSize).value;
}

template <UnaryIntegerOperation operation>
constexpr Row IntegerComplement(std::u16string_view name) {
    return {name, 1, ApplyComplement<operation>, ApplyRealComplement<operation>};
}

// "exp" takes one operand here and two in the complex table. The compiler orders it as a binary operator in
// both: 'exp(x)' becomes '( x ) exp', and of '2 exp 3' the 2 is the result. This is intended.
constexpr auto kRows = std::to_array<Row>({
    {u"%", 1, DoublePercent, RealPercent},
    {u"+", 2, DoubleAdd, nullptr, RealAdd},
    {u"*", 2, DoubleMultiply, nullptr, RealMultiply},
    {u"-", 2, DoubleSubtract, RealNegate, RealSubtract},
    {u"/", 2, DoubleDivide, nullptr, RealDivide},
    Direct<dcomplex::sin, ERROR_SIN>(u"sin"),
    Inverse<dcomplex::asin, ERROR_ARCSIN>(u"asin"),
    Inverse<dcomplex::acos, ERROR_ARCCOS>(u"acos"),
    Direct<dcomplex::cos, ERROR_COS>(u"cos"),
    Direct<dcomplex::tan, ERROR_TAN, IsOddRightAngle>(u"tan"),
    Inverse<dcomplex::atan, ERROR_ARCTAN>(u"atan"),
    Direct<dcomplex::cot, ERROR_COTAN, HasNoPole, false>(u"ctan"),
    Inverse<dcomplex::acot, ERROR_ARCCOT>(u"acot"),
    Plain<dcomplex::sqrt, ERROR_SQUARE_ROOT>(u"sqrt"),
    Logarithm<dcomplex::ln>(u"ln"),
    Logarithm<dcomplex::log10>(u"log"),
    {u"!", 1, DoubleFactorial, RealFactorial},
    {u"^", 2, DoublePower, nullptr, RealPower},
    Plain<dcomplex::exp, 0>(u"exp"),
    Integer<IntegerAnd>(u"and"),
    Integer<IntegerOr>(u"or"),
    Integer<IntegerNand>(u"nand"),
    Integer<IntegerNor>(u"nor"),
    Integer<IntegerXor>(u"xor"),
    Plain<dcomplex::sinh, ERROR_SINH>(u"sinh"),
    Plain<dcomplex::asinh, ERROR_ARCSINH>(u"asinh"),
    Plain<dcomplex::acosh, ERROR_ARCCOSH>(u"acosh"),
    Plain<dcomplex::atanh, ERROR_ARCTANH>(u"atanh"),
    Plain<dcomplex::acoth, ERROR_ARCCOTH>(u"acoth"),
    Plain<dcomplex::cosh, ERROR_COSH>(u"cosh"),
    Plain<dcomplex::tanh, ERROR_TANH>(u"tanh"),
    Plain<dcomplex::coth, ERROR_COTANH>(u"ctanh"),
    Direct<dcomplex::sec, ERROR_SEC, IsOddRightAngle>(u"sec"),
    Direct<dcomplex::csc, ERROR_CSC, IsStraightAngle>(u"csc"),
    Plain<dcomplex::sech, ERROR_SECH>(u"sech"),
    Plain<dcomplex::csch, ERROR_CSCH>(u"csch"),
    Inverse<dcomplex::asec, ERROR_ARCSEC>(u"asec"),
    Inverse<dcomplex::acsc, ERROR_ARCCSC>(u"acsc"),
    Plain<dcomplex::asech, ERROR_ARCSECH>(u"asech"),
    Plain<dcomplex::acsch, ERROR_ARCCSCH>(u"acsch"),
    {u"root", 2, DoubleRoot, nullptr, RealRoot},
    Integer<IntegerMod>(u"mod"),
    Integer<IntegerShiftLeft>(u"shl"),
    Integer<IntegerShiftRight>(u"shr"),
    Integer<IntegerRotateLeft>(u"rtl"),
    Integer<IntegerRotateRight>(u"rtr"),
    IntegerComplement<IntegerNot>(u"not"),
    IntegerComplement<IntegerNegate>(u"cpl"),
    {u"iroot", 2, DoubleInverseRoot, nullptr, RealInverseRoot},
    {u"iexp", 2, DoubleScale, nullptr, RealScale},
    Plain<MagnitudeOf, ERROR_ABSOLUTE>(u"abs"),
});

constexpr OperatorTable<DComplex> kTable(kRows);

}  // namespace

const OperatorTable<DComplex>& DoubleOperatorTable() {
    return kTable;
}

}  // namespace quorix
