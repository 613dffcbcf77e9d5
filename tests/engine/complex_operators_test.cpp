// The rows of the complex operator table, as a user meets them.

#include "engine/complex_operator_table.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

class ComplexOperators : public EngineTest {
  protected:
    static std::string In(AngleUnit unit, std::string_view text) {
        SetAngleUnit(unit);
        return Evaluate(text);
    }
    static void ExpectAll(AngleUnit unit, std::string_view rows) {
        for (const auto& [text, result] : Rows(rows)) {
            EXPECT_EQ(In(unit, text), result) << text;
        }
    }
};

// The shipped table of expressions and the manual hold the common values in each unit.
TEST_F(ComplexOperators, AnglesGoInAndOutInTheUnit) {
    ExpectAll(UNIT_DEGREES,
              "atan(-10^200) -> -90; acsc(-2) -> -30; "
              "sinh(180/pi) -> 1.1752011936438014568823818505956; "  // the hyperbolic ones convert too
              "asinh(0) -> 0");
    ExpectAll(UNIT_GRADS, "sin(100) -> 1; atan(1) -> 50; cos(200) -> -1");
    ExpectAll(UNIT_RADIANS,
              "asinh(-10^50) -> -115.822401830262229510316804855676; tanh(-100000) -> -1; "
              "sech(100000) -> 0; acosh(0.5) -> 0+1.04719755119659774615421446109317i");
}

TEST_F(ComplexOperators, Poles) {
    EXPECT_EQ(In(UNIT_DEGREES, "csc(0)"), "error -56");
    // Only the first poles are tested.
    EXPECT_NE(In(UNIT_DEGREES, "tan(270)").find("E10"), std::string::npos);
    EXPECT_EQ(In(UNIT_GRADS, "tan(100)"), "error -56");
    EXPECT_EQ(In(UNIT_RADIANS, "tan(pi/2)"), "error -56");
}

TEST_F(ComplexOperators, ComplexArgumentsSwitchToRadiansForGood) {
    SetAngleUnit(UNIT_DEGREES);
    EXPECT_EQ(Evaluate("sin(i)"), "0+1.1752011936438014568823818505956i");
    EXPECT_EQ(calcContext().angleUnit, UNIT_RADIANS);
    SetAngleUnit(UNIT_GRADS);
    EXPECT_EQ(Evaluate("acosh(0.5)"), "0+1.04719755119659774615421446109317i");
    EXPECT_EQ(calcContext().angleUnit, UNIT_RADIANS);
}

TEST_F(ComplexOperators, PowersRootsAndLogarithms) {
    ExpectAll(UNIT_RADIANS,
              "(-1)^98 -> 1; 10^5020 -> error -56; 1 exp (-5100) -> 0; (2 exp) -> error -1; 3 root 8 -> 2; "
              "sqrt(-9) -> 0+3i; (sqrt(9))! -> 6; ln(-1) -> 0+3.1415926535897932384626433832795i; "
              "i^i -> 0.20787957635076190854695561983498; abs(3+4*i) -> 5; "
              "abs(-3)+1 -> 2; "  // abs is loose and takes in the sum
              "lg(10) -> error -1");
}

TEST_F(ComplexOperators, FactorialsPercentAndIntegers) {
    ExpectAll(UNIT_DEGREES,
              "0! -> 1; 2.5! -> 2; 1500.5! -> error -56; (-7) mod 3 -> 1; 8 shl (-1) -> 4; 6 nand 3 -> 253");
    EXPECT_EQ(Evaluate("1500!").substr(0, 12), "4.8119977967");
}

TEST_F(ComplexOperators, TheTableKeepsItsDeadRows) {
    const auto rows = ComplexOperatorTable().Rows();
    ASSERT_EQ(rows.size(), 47U);
    EXPECT_EQ(rows[18].name, u"sech");
    EXPECT_EQ(rows[19].name, u"asech");
    EXPECT_EQ(ComplexOperatorTable().Find(u"sech"), &rows[14]);
    EXPECT_EQ(ComplexOperatorTable().Find(u"acsch"), nullptr);
}

}  // namespace
}  // namespace quorix
