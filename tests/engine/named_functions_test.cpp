#include "engine/named_functions.h"

#include <cmath>

#include "engine/number_theory.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

class NamedFunctions : public EngineTest {
  protected:
    static void SetList(std::vector<double> values) {
        SetVariableMatrix(SLOT_LIST, static_cast<std::uint16_t>(values.size()), 1, values);
    }
    static void ExpectAll(std::string_view rows) {
        for (const auto& [text, result] : Rows(rows)) {
            EXPECT_EQ(Evaluate(text), result) << text;
        }
    }
    /// |value of the text - expected| for real results.
    static double Distance(std::string_view text, double expected) {
        ClearCalcError();
        const CalcValue value = EvaluateExpression(Wide(text), EvaluationMode::number, 10);
        EXPECT_EQ(calcContext().calcError, 0) << text;
        return std::fabs(qtoe(value.number.re) - expected);
    }
};

TEST_F(NamedFunctions, ArgumentsAreCutAtTheirCommas) {
    const std::u16string_view text = u"a(1,2),b,,(c)";
    std::size_t position = 0;
    EXPECT_EQ(NextArgument(text, position), u"a(1,2)");
    EXPECT_EQ(NextArgument(text, position), u"b");
    EXPECT_EQ(NextArgument(text, position), std::nullopt);
    EXPECT_EQ(NextArgument(text, position), u"(c)");
    EXPECT_EQ(NextArgument(text, position), std::nullopt);
}

TEST_F(NamedFunctions, AreMacrosOfText) {
    ExpectAll(
        "RT(3,8) -> 2; RT(2,RT(2,16)) -> 2; 1+RT(2,9)*2 -> 7; 3+gcd(12,18)*2 -> 15; "
        "1/gcd(20,40) -> 0.05; 2^gcd(4,6) -> 4; gcd(12,18,8) -> 2; gcd(0,5) -> 5; gcd(-12,18) -> 6; "
        "lcm(4,6) -> 12; lcm(4,6,10) -> 60; lcm(0,0) -> 0; gcd(lcm(4,6),18) -> 6; module(1) -> 0; "
        "[VN]+1 -> 1; "  // a variable, not N
        "ran(5,5) -> 5");
    // Names are found anywhere in the text.
    EXPECT_EQ(Evaluate("Nsin(3)"), "error -49");
}

TEST_F(NamedFunctions, DepthAndLengthAreBounded) {
    const auto nested = [](int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i) {
            text += "gcd(6,";
        }
        text += "6";
        return text + std::string(static_cast<std::size_t>(depth), ')');
    };
    EXPECT_EQ(Evaluate(nested(60)), "6");
    EXPECT_EQ(Evaluate(nested(100)), "error -8");
    std::string many = "1";
    for (int i = 0; i < 200; ++i) {
        many += "+gcd(1,1)";
    }
    EXPECT_EQ(Evaluate(many), "error -8");  // the pasted numbers pass the limit
    EXPECT_EQ(Evaluate("fnSum(" + std::string(3000, 'x') + ",x,1,2)"), "error -8");
}

TEST_F(NamedFunctions, SeriesReplaceTheVariableAsText) {
    ExpectAll(
        "fnSum(x,x,1,10) -> 55; fnSum(x,x,10,1,-1) -> 55; fnSum(x^2,x,-2,2) -> 10; "
        "fnSum(x,x,0,1,0.25) -> 2.5; fnSum(x,x,5,5) -> 5; fnSum(x, x ,1,3) -> 6; "
        "fnProduct(x,x,1,5) -> 120; fnProduct(2,x,1,10) -> 1024; fnSum(gcd(x,6),x,1,6) -> 15; "
        "fnSum(fnSum(y*x,y,1,x),x,1,3) -> 25; "
        "fnSum(2 exp x,x,1,2) -> error -1; "  // the x of exp is replaced too
        "fnSum(1/x,x,1,3) -> 1.83333333333333333333333333333333");
}

TEST_F(NamedFunctions, NumberTheoryIsExact) {
    ExpectAll(
        "fib(0) -> 0; fib(1) -> 1; fib(10) -> 55; fib(78) -> 8.94439432379146400000000000000000E15; "
        "ncr(50,6) -> 15890700; ncr(5,4) -> 5; npr(10,3) -> 720; "
        "npr(100,99)/ncr(100,1)-fnProduct(x,x,2,99) -> 0");
    SetRandomClock([] { return std::uint64_t{42}; });
    const std::string first = Evaluate("ran(3,7)");
    EXPECT_EQ(Evaluate("ran(3,7)"), first);
    EXPECT_EQ(Evaluate("ran(7,3)"), first);
    EXPECT_LE(Distance("ran(3,7)", 5), 2);
}

TEST_F(NamedFunctions, IntegralsAndRoots) {
    EXPECT_LT(Distance("fnInt(x^2,x,1,0)", 1.0 / 3), 1e-9);  // the order of the limits is ignored
    EXPECT_LT(Distance("fnInt(sin(x),x,0,pi)", 2), 1e-7);
    EXPECT_EQ(calcContext().angleUnit, UNIT_RADIANS);
    EXPECT_EQ(Evaluate("fnInt(sin(x),x,-3,3)"), "0");
    EXPECT_EQ(Evaluate("fnInt(x,x,1,1)"), "0");
    EXPECT_EQ(Evaluate("fnRoot(x-1,x,1,2)"), "1");
}

TEST_F(NamedFunctions, DerivativesGoByStructure) {
    ExpectAll(
        "fnDeriv(3*x-2*x^2-x,x,2) -> -6; "
        "fnDeriv((x+1)*(x-1),x,3) -> 6; fnDeriv(x/2/x,x,5) -> 0; fnDeriv(1/x,x,2) -> -0.25; "
        "fnDeriv(6/2*x,x,1) -> 3; fnDeriv(3 root x,x,8) -> 0.08333333333333333333333333333333; "
        "fnDeriv(x^x,x,1) -> 1; fnDeriv(7,x,1) -> 0; fnEval(x^2+1,x,3) -> 10; fnEval(gcd(4,6)*x,x,3) -> 6");
    EXPECT_LT(Distance("fnDeriv(2^x,x,0)", std::log(2.0)), 1e-15);
    EXPECT_LT(Distance("fnDeriv(x^3,x,-2)", 12), 1e-9);
    EXPECT_LT(Distance("fnDeriv(sqrt(x),x,4)", 0.25), 1e-11);
    EXPECT_LT(Distance("fnDeriv(sqrt(x),x,0)", 1000), 1e-3);  // one side shrinks to the edge of the domain
    EXPECT_LT(Distance("fnDeriv(x*sin(x)/cos(x),x,1)", std::tan(1.0) + 1 / std::pow(std::cos(1.0), 2)),
              1e-10);
}

TEST_F(NamedFunctions, StatisticsReadTheList) {
    SetList({-1, 8, 1});  // the examples of the manual have the plain values
    EXPECT_EQ(Evaluate("3+sum()*2"), "19");
    EXPECT_LT(Distance("gm(X)", -2), 1e-14);
    SetList({3, 1, 3, 1});
    EXPECT_EQ(Evaluate("md(X)"), "3");  // the earliest on a tie
    // Neither close values nor products beyond the doubles spoil the result.
    SetList({1e9 + 1, 1e9 + 2, 1e9 + 3});
    EXPECT_LT(Distance("ssd(X)", 1), 1e-15);
    EXPECT_LT(Distance("avd(X)", 2.0 / 3), 1e-15);
    SetList(std::vector<double>(60, 1e-9));
    EXPECT_LT(Distance("gm(X)", 1e-9), 1e-22);
    SetList({-1, 4});
    EXPECT_EQ(Evaluate("gm(X)"), "error -4");
    SetList({7});
    EXPECT_EQ(Evaluate("ssd(X)"), "error -5");
    EXPECT_EQ(Evaluate("median(X)"), "7");
}

TEST_F(NamedFunctions, FinanceWithoutInterestAndWithPartYears) {
    ExpectAll("fv(0,10,-100,0,12) -> 1000; rate(10,-100,1000,0,12) -> 0");
    EXPECT_LT(Distance("db(1000000,100000,6,1,7)", 186083.0 + 1.0 / 3), 1e-8);
}

}  // namespace
}  // namespace quorix
