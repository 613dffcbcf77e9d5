#include "frontends/engine_text.h"

#include <gtest/gtest.h>

#include "platform/utf8.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

std::string Translate(std::string_view display, std::u16string_view locale = u"English (US)",
                      int radix = 10) {
    const auto text = ToEngineText(FromUtf8(display), locale, radix);
    return text ? ToUtf8(*text) : "overlong";
}

void ExpectRows(std::string_view table) {
    for (const auto& [display, engine] : Rows(table)) {
        EXPECT_EQ(Translate(display), engine) << display;
    }
}

TEST(EngineText, SignsPointsAndNames) {
    ExpectRows(
        "1÷3×2−4 -> 1/3*2-4; 1.5exp3 -> 1.5 exp 3; .5+.25 -> 0.5+0.25; (.5) -> (0.5); "
        "∫(x,x,0,1) -> fnInt(x,x,0,1); δ(x,x,1) -> fnDeriv(x,x,1); 2∏(x,x,1,3) -> 2*fnProduct(x,x,1,3); "
        "∑(x,x,1,3) -> fnSum(x,x,1,3); ƒ(x,x,1) -> fnEval(x,x,1)");
}

TEST(EngineText, RootsTakeTheirDegree) {
    ExpectRows(
        "2√(9) -> RT(2,9); (1+1)√(9) -> RT((1+1),9); 5+1.5√(9) -> 5+RT(1.5,9); √(9) -> RT(,9); "
        "3√(2√(64)) -> RT(3,RT(2,64)); 2√9 -> 2√9");
}

TEST(EngineText, ProductsThatAReaderSees) {
    ExpectRows(
        "2i -> 2*i; (1)(2) -> (1)*(2); 2(3)4 -> 2*(3)*4; [ans][ans] -> [VRE]*[VRE]; [ans](2) -> [VRE]*(2); "
        "3[ans] -> 3*[VRE]; 2sin(3)cos(4) -> 2*sin(3)*cos(4); 2pi -> 2*pi; pi(2) -> pi*(2); pi2 -> pi*2; "
        "i(2) -> i*(2); ii -> i*i; 3!i -> 3!*i; 3%i -> 3%*i; (1)i -> (1)*i; 2√(4)(3) -> RT(2,4)*(3)");
    // Letters that are no factors.
    ExpectRows("tri([VA]) -> tri([VA]); sin(2) -> sin(2); 2e5 -> 2e5; 5 mod 3 -> 5 mod 3; 2^3! -> 2^3!");
}

TEST(EngineText, FollowsTheNumberLocale) {
    EXPECT_EQ(Translate("1¸234.5"), "1234.5");
    EXPECT_EQ(Translate("1.234¸5", u"European"), "1234.5");
    EXPECT_EQ(Translate("¸5", u"European"), "0.5");
    EXPECT_EQ(Translate("2¸5√(9)", u"European"), "RT(2.5,9)");
}

TEST(EngineText, HexadecimalLettersAreDigitsInTheirBaseOnly) {
    EXPECT_EQ(Translate("A(2)", u"English (US)", 16), "A*(2)");
    EXPECT_EQ(Translate("A5 and 3C", u"English (US)", 16), "A5 and 3C");
    EXPECT_EQ(Translate("(A)B", u"English (US)", 16), "(A)*B");
    EXPECT_EQ(Translate("[VA][VB]", u"English (US)", 16), "[VA]*[VB]");
}

TEST(EngineText, RefusesWhatTheEngineCannotTake) {
    EXPECT_EQ(Translate(std::string(4095, '1')), std::string(4095, '1'));
    EXPECT_EQ(Translate(std::string(4096, '1')), "overlong");
    // Products make a text longer.
    std::string factors;
    for (int i = 0; i < 1300; ++i) {
        factors += "(1)";
    }
    EXPECT_EQ(Translate(factors), "overlong");
}

}  // namespace
}  // namespace quorix
