#include "engine/bound_expression.h"
#include "engine/complex_operands.h"
#include "engine/eval_complex.h"
#include "engine/eval_double.h"
#include "engine/eval_matrix.h"
#include "engine/rewrite_solve.h"
#include "matrix/matrix_operators.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using EvaluateTest = EngineTest;

TEST_F(EvaluateTest, FourFunctionExpressions) {
    for (const auto& [text, result] :
         Rows("1/3 -> 0.33333333333333333333333333333333; 1+2*3-4/8 -> 6.5; (1+2)*(3-4)/8 -> -0.375; "
              "-5+3 -> -2; 2-(-3) -> 5; -(2+3)*4 -> -20; 0.1+0.2-0.3 -> 0; 3 4 -> 3; .5 -> 5; 1.5e3 -> 1500; "
              "1e5000/1e4999 -> 10; pi-pi -> 0; [VA] -> 0; i*i -> -1; (1+i)*(1-i) -> 2; 1/i -> 0-1i; "
              "1/0 -> error -56; 0/0 -> error -56; 1e5100 -> error -56; 1e9000 -> error -56; 0e5 -> 0; "
              "1+0e5 -> error -56; "  // The underflow of the token stands when the sum looks.
              "0e5+1 -> 1; "          // The next value clears it.
              "1.2.3 -> error -1; PIE -> error -1; 1E-5 -> error -1; 2*-3 -> error -1; 1+ -> error -1; "
              "(*)5 -> error -1;  -> error -1; nosuch(1) -> error -1; 1e-64+1-1 -> error -1"))
        EXPECT_EQ(Evaluate(text), result) << text;
}

TEST_F(EvaluateTest, TinyRealPartsOfSumsVanish) {
    QReal tiny;
    etoq(1e-64, tiny);
    EXPECT_EQ(tiny, kTiny);
    SetVariableNumber(2, {Real("9e-65"), {}});
    SetVariableNumber(3, {Real("2e-64"), {}});
    EXPECT_EQ(Evaluate("[VA]+0"), "0");
    EXPECT_EQ(Evaluate("[VB]-0"), "2.00000000000000000000000000000000E-64");
    EXPECT_EQ(Evaluate("[VA]*1"), "9.00000000000000000000000000000000E-65");
    EXPECT_EQ(Evaluate("-[VA]"), "-9.00000000000000000000000000000000E-65");
}

TEST_F(EvaluateTest, KindAndSignAreThoseOfTheValue) {
    const auto value = [](std::u16string_view text) {
        return EvaluateExpression(text, EvaluationMode::number, 10);
    };
    EXPECT_EQ(value(u"(-0)").number, QComplex{});
    EXPECT_EQ(value(u"-(5-5)").number, QComplex{});
    EXPECT_EQ(value(u"2*i").kind, KIND_COMPLEX);
    EXPECT_EQ(value(u"i*i").kind, KIND_REAL);
}

TEST_F(EvaluateTest, StoredVariablesAreRead) {
    const double data[] = {1};
    SetVariableComplex(SLOT_LAST_RESULT, {Real("2"), Real("-3")});
    SetVariableMatrix(4, 1, 1, data);
    EXPECT_EQ(Evaluate("[VRE]*2"), "4-6i");
    EXPECT_EQ(Evaluate("vre"), "2-3i");
    EXPECT_EQ(Evaluate("[VC]"), "error -1");
    EXPECT_EQ(Evaluate("[VVV]"), "0");  // Slot 0 is emptied before each evaluation.
    EXPECT_EQ(Evaluate("7"), "7");
    EXPECT_EQ(TextOf(Variable(SLOT_SCRATCH)), "7");
}

TEST_F(EvaluateTest, AStandingErrorEndsEveryEntryPoint) {
    Variable(SLOT_SCRATCH).number.re = Real("9");
    calcContext().calcError = -12;
    EXPECT_EQ(TextOf(EvaluateExpression(u"1", EvaluationMode::number, 10)), "9");
    EXPECT_FALSE(EvalToComplex(u"1", {}, nullptr, 10));
    EXPECT_FALSE(EvalToDouble(u"1", {}, 0.0, 10));
    CalcValue value;
    EXPECT_FALSE(EvalToMatrix(u"1", value));
    EXPECT_EQ(calcContext().calcError, -12);
}

std::string Repeat(std::string_view text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i) repeated += text;
    return repeated;
}

TEST_F(EvaluateTest, CapacitiesAreErrorsAndNotFaults) {
    EXPECT_EQ(Evaluate(Repeat("1+", 2046) + "111"), "2157");
    EXPECT_EQ(Evaluate(Repeat("1+", 2047) + "1"), "2048");
    EXPECT_EQ(Evaluate(Repeat("1+", 2047) + "11"), "error -1");  // 4096 characters.
    EXPECT_EQ(Evaluate(Repeat("(", 1024) + "1" + Repeat(")", 1024)), "1");
    EXPECT_EQ(Evaluate(Repeat("(", 1100) + "1" + Repeat(")", 1100)), "error -1");
    EXPECT_EQ(Evaluate(Repeat("7 ", 1024)), "7");
    EXPECT_EQ(Evaluate(Repeat("7 ", 1025)), "error -1");
    EXPECT_EQ(Evaluate(std::string(4000, '9') + "/" + std::string(90, '9')),
              Evaluate(std::string(99, '9') + "/" + std::string(90, '9')));
}

TEST_F(EvaluateTest, BoundNamesStandForTheirValue) {
    const QReal point = Real("2.5");
    EXPECT_EQ(TextOf(*EvalToComplex(u"X*x+e-e", u"x", &point, 10)), "6.25");
    EXPECT_EQ(TextOf(*EvalToComplex(u"e", u"E", &point, 10)), "2.5");    // It hides a constant...
    EXPECT_EQ(TextOf(*EvalToComplex(u"va", u"va", &point, 10)), "2.5");  // ...and a variable.
    EXPECT_EQ(EvalToDouble(u"x*x-x", u"X", 3.0, 10)->re, 6.0);
    EXPECT_EQ(EvalToDouble(u"ab*x", u"x", 2.0, 16)->re, 342.0);
}

TEST_F(EvaluateTest, DoublesKnowNoStoredVariables) {
    const struct {
        std::u16string_view text;
        double re, im;
        std::int32_t error;
    } rows[] = {{u"1/4+x*2", 3.25, 0, 0},
                {u"i*i", -1, 0, 0},
                {u"(1+2*i)/(3-4*i)", -0.2, 0.4, 0},
                {u"2*pi", 6.283185307179586, 0, 0},
                {u"e", 2.718281828459045, 0, 0},
                {u"-(x)", -1.5, 0, 0},
                {u"[VA]", 0, 0, -1},
                {u"1/0", 0, 0, -5},
                {u"x/(x-1.5)", 0, 0, -5},
                {u"1.2.3", 0, 0, -1},
                {u"3 4", 3, 0, 0},
                {u"2 exp 3", 2, 0, 0},  // The compiler orders it as binary, the operator takes one.
                {u"3 root (x*18)", 3, 0, 0}};
    for (const auto& row : rows) {
        ClearCalcError();
        const std::optional<DComplex> value = EvalToDouble(row.text, u"x", 1.5, 10);
        EXPECT_EQ(calcContext().calcError, row.error) << Narrow(row.text);
        ASSERT_EQ(value.has_value(), row.error == 0) << Narrow(row.text);
        if (!value) continue;
        EXPECT_DOUBLE_EQ(value->re, row.re) << Narrow(row.text);
        EXPECT_DOUBLE_EQ(value->im, row.im) << Narrow(row.text);
    }
}

TEST_F(EvaluateTest, ACallerMayChangeItsTextInPlace) {
    std::u16string text = u"x+1";
    EXPECT_EQ(EvalToDouble(text, u"x", 1.0, 10)->re, 2.0);
    text[1] = u'-';
    EXPECT_EQ(EvalToDouble(text, u"x", 1.0, 10)->re, 0.0);
    EXPECT_EQ(EvalToDouble(u"10", {}, 0.0, 10)->re, 10.0);
    EXPECT_EQ(EvalToDouble(u"10", {}, 0.0, 2)->re, 2.0);
    EXPECT_FALSE(EvalToDouble(u"y", u"x", 1.0, 10));
    ClearCalcError();
    EXPECT_EQ(EvalToDouble(u"y", u"y", 4.0, 10)->re, 4.0);
}

TEST_F(EvaluateTest, BoundExpressionRefusesImaginaryParts) {
    boundExpression() = {u"x*x+[VA]*i", u"x"};
    EXPECT_EQ(TextOf(EvalBoundComplex(Real("3"))), "9");
    SetVariableNumber(2, {kTiny, {}});
    EXPECT_EQ(TextOf(EvalBoundComplex(Real("3")).re), "9");
    EXPECT_EQ(calcContext().calcError, 0);
    SetVariableNumber(2, {Real("1.1e-64"), {}});
    EXPECT_EQ(EvalBoundComplex(Real("3")), QComplex{});
    EXPECT_EQ(calcContext().calcError, -54);
    ClearCalcError();
    EXPECT_EQ(TextOf(EvalBoundComplexClean(Real("3")).im), "1.10000000000000000000000000000000E-64");
    SetVariableNumber(2, {Real("9e-65"), {}});
    EXPECT_EQ(TextOf(EvalBoundComplexClean(Real("3"))), "9");

    boundExpression() = {u"x+i*0.00000000000001", u"x"};
    EXPECT_EQ(EvalBoundDouble(2.0, boundExpression().text), 2.0);
    EXPECT_EQ(calcContext().calcError, 0);
    EXPECT_EQ(EvalBoundDoubleCached(2.0), 0.0);
    EXPECT_EQ(calcContext().calcError, -54);
    ClearCalcError();
    EXPECT_EQ(EvalBoundDouble(2.0, u"x*i"), 0.0);
    EXPECT_EQ(calcContext().calcError, -54);
}

TEST_F(EvaluateTest, SolveBecomesAProductWithTheInverse) {
    const struct {
        std::u16string_view text, rewritten;
        std::int32_t error;
    } rows[] = {{u"solve([VA],[VB])", u"inv([VA])*([VB])", 0},
                {u"2*solve((a,b),c)+1", u"2*inv((a,b))*(c)", 0},  // What follows the call is lost.
                {u"solve(solve(a,b),c)", u"inv(inv(a)*(b)", 0},
                {u"solve(a)", u"solve(a)", -1},
                {u"solve(a,b", u"solve(a,b", -1},
                {u"det(a)", u"det(a)", 0}};
    for (const auto& row : rows) {
        ClearCalcError();
        std::u16string text(row.text);
        RewriteSolve(text);
        EXPECT_EQ(calcContext().calcError, row.error) << Narrow(row.text);
        if (row.error == 0) {
            EXPECT_EQ(text, row.rewritten);
        }
    }
}

TEST_F(EvaluateTest, MatrixExpressionsUseTheOperatorsHandedIn) {
    const double data[] = {1, 2, 3, 4};
    SetVariableMatrix(2, 2, 2, data);
    EXPECT_EQ(Evaluate("tri([VA])", 10, EvaluationMode::matrix), "error -1");
    SetMatrixOperators(MatrixOperatorTable());
    const auto matrix = EvaluationMode::matrix;
    EXPECT_EQ(Evaluate("tri([VA])", 10, matrix), "2x2: 1 2 0 -2");
    EXPECT_EQ(Evaluate("[VA]", 10, matrix), "2x2: 1 2 3 4");
    EXPECT_EQ(TextOf(Variable(2)), "2x2: 1 2 3 4");
    EXPECT_EQ(Evaluate("1.5+2", 10, matrix), "3.5");
    EXPECT_EQ(Evaluate("1.2.3+1", 10, matrix), "2.19999999999999995559107901499374");  // Read as 1.2.
    EXPECT_EQ(Evaluate("sin(1)", 10, matrix), "error -1");
    EXPECT_EQ(Evaluate("pi", 10, matrix), "error -1");
    EXPECT_EQ(Evaluate("1e999", 10, matrix), "error -56");
    EXPECT_EQ(Evaluate("+1", 10, matrix), "error -1");
    SetMatrixOperators({});
}

}  // namespace
}  // namespace quorix
