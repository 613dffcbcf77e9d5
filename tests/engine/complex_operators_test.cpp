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

TEST_F(ComplexOperators, AnglesGoInAndOutInTheUnit) {
    ExpectAll(UNIT_DEGREES,
              "sin(30) -> 0.5; cos(60) -> 0.5; tan(45) -> 1; sec(60) -> 2; csc(30) -> 2; asin(0.5) -> 30; "
              "acos(0.5) -> 60; atan(1) -> 45; atan(10^200) -> 90; atan(-10^200) -> -90; asec(2) -> 60; "
              "acsc(2) -> 30; acsc(-2) -> -30; "
              "sinh(180/pi) -> 1.1752011936438014568823818505956; "  // the hyperbolic ones convert too
              "asinh(0) -> 0");
    ExpectAll(UNIT_GRADS, "sin(100) -> 1; atan(1) -> 50; cos(200) -> -1");
    ExpectAll(UNIT_RADIANS,
              "sin(pi/6) -> 0.5; cosh(0) -> 1; atanh(0.5) -> 0.54930614433405484569762261846126; "
              "acosh(2) -> 1.31695789692481670862504634730797; "
              "asech(0.5) -> 1.31695789692481670862504634730797; "
              "asinh(-10^50) -> -115.822401830262229510316804855676; tanh(100000) -> 1; tanh(-100000) -> -1; "
              "sech(100000) -> 0; acosh(0.5) -> 0+1.04719755119659774615421446109317i");
}

TEST_F(ComplexOperators, Poles) {
    ExpectAll(UNIT_DEGREES,
              "tan(90) -> error -56; tan(-90) -> error -56; sec(90) -> error -56; csc(180) -> error -56; "
              "csc(0) -> error -56");
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
              "2^10 -> 1024; (-2)^11 -> -2048; (-1)^98 -> 1; 2^(-2) -> 0.25; (-8)^(1/3) -> -2; "
              "(-4)^0.5 -> 0+2i; 2^3^2 -> 512; 0^0 -> 1; 0^(-1) -> error -56; e^(-20000) -> 0; "
              "10^(-5010) -> 0; 10^5020 -> error -56; 1 exp (-5100) -> 0; 2 exp 3 -> 2000; "
              "2.5 exp (-3) -> 0.0025; (2 exp) -> error -1; 3 root 8 -> 2; sqrt(16) -> 4; sqrt(-9) -> 0+3i; "
              "(sqrt(9))! -> 6; ln(e) -> 1; ln(-1) -> 0+3.1415926535897932384626433832795i; log(1000) -> 3; "
              "log(0) -> error -56; i^i -> 0.20787957635076190854695561983498; abs(3+4*i) -> 5; "
              "abs(-3)+1 -> 2; "  // abs is loose and takes in the sum
              "csch(1) -> error -1; ctan(1) -> error -1; lg(10) -> error -1");
}

TEST_F(ComplexOperators, FactorialsPercentAndIntegers) {
    ExpectAll(UNIT_DEGREES,
              "5! -> 120; 0! -> 1; 2.5! -> 2; (0-1)! -> error -56; 1501! -> error -56; 1500.5! -> error -56; "
              "(1+i)! -> error -54; 10% -> 0.1; i% -> error -54; 5 and 3 -> 1; 5.5 and 3 -> error -53; "
              "(1+i) and 3 -> error -54; 12 or 3 -> 15; 7 mod 0 -> error -5; (-7) mod 3 -> 1; 1 shl 40 -> 0; "
              "8 shl (-1) -> 4; 129 rtl 1 -> 3; 1 rtr 1 -> 128; 6 nand 3 -> 253; 6 xor 3 -> 5");
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
