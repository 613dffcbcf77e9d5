#include "engine/keyword_table.h"
#include "engine/number_grammar.h"
#include "engine/postfix_compiler.h"
#include "engine/radix_digits.h"
#include "engine/tokeniser.h"
#include "support/engine_fixture.h"

#include <cmath>

namespace quorix {
namespace {

using CompilerTest = EngineTest;

std::string Tokens(std::string_view text, int radix = 10, std::u16string_view boundName = {}) {
    std::u16string tokens = Wide(text);
    return TokeniseExpression(tokens, radix, boundName) ? Narrow(tokens) : "refused";
}

std::string Postfix(std::string_view text, int radix = 10) {
    std::u16string postfix = Wide(text);
    if (!TokeniseExpression(postfix, radix)) return "refused";
    if (!CompileToPostfix(postfix)) {
        EXPECT_EQ(calcContext().calcError, -1) << text;
        ClearCalcError();
        return "not compiled";
    }
    return Narrow(postfix);
}

TEST_F(CompilerTest, DecimalTextIsCutIntoTokens) {
    for (const auto& [text, tokens] :
         Rows("1+2 -> 1 + 2;   (SIN 30)*[va]  -> ( sin 30 ) * va; 1.5E3% -> 1.5e3 %; 3 4 -> 3 4; "
              ".5 -> 5; "  // A point that follows no digit is lost.
              "5. -> refused; "
              "1E-5 -> 1e - 5; "            // An exponent has no sign of its own.
              "1.2.3+PIE -> 1.2.3 + pie; "  // The evaluator decides about such words.
              "2pi -> 2pi; (5) -> ( 5 ); 5! -> 5 !; [VA] -> va; -5 -> - 5; "
              "5+ -> refused; "  // An expression ends in a word.
              "5.+. -> refused; - -> refused; -- -> refused; "
              "1--2 -> refused; "  // Two minus signs in a row.
              "1- -2 -> 1 - - 2;  -> refused;  ])%! -> refused; 1,2 -> refused; 1;2 -> refused; "
              "A+B -> refused; "
              "lg 5 -> refused; "  // Known to the compiler alone.
              "not 5 -> refused; x+1 -> refused; (1+2 -> refused; 1+2) -> refused; 2×3 -> refused; "
              "πr -> refused"))
        EXPECT_EQ(Tokens(text), tokens) << text;
}

TEST_F(CompilerTest, OtherRadicesBecomeSignedDecimals) {
    const auto expect = [](int radix, std::string_view table) {
        for (const auto& [text, tokens] : Rows(table)) EXPECT_EQ(Tokens(text, radix), tokens) << text;
    };
    expect(16,
           "A+B -> 10 + 11; a+0f -> 10 + 15; FFFFFFFF -> -1; 7fffffff-80000000 -> 2147483647 - -2147483648; "
           "123456789ABC -> -1; "        // Saturates at the largest word.
           "ADD -> 2781; "               // Digits come before words...
           "ABS(ABC) -> abs ( 2748 ); "  // ...and keywords have a letter that is none.
           "[VA] -> va; "
           "1.5 -> 1 5; "  // The point is skipped.
           "1,;~2 -> 1 2; G -> refused; pi -> refused");
    expect(2, "101+11 -> 5 + 3; 102 -> refused; e -> refused");
    expect(8, "17 and 7 -> 15 and 7; 8 -> refused");
    expect(3, "1+e 2 -> 1+E 2");  // An unknown radix leaves the text unchecked.
    EXPECT_EQ(ParseUnsignedInRadix(u"55", 7), 0U);
}

TEST_F(CompilerTest, TheBoundNameIsAcceptedWithoutRegardToCase) {
    EXPECT_EQ(Tokens("x+X", 10, u"x"), "x + x");
    EXPECT_EQ(Tokens("xx", 10, u"x"), "refused");
    EXPECT_EQ(Tokens("θ+1", 10, u"θ"), "θ + 1");
    EXPECT_EQ(Tokens("AB+g", 16, u"G"), "171 + g");
    calcContext().calcError = -5;
    EXPECT_EQ(Tokens("1"), "refused");
}

TEST_F(CompilerTest, PostfixFollowsPrecedence) {
    for (
        const auto& [text, postfix] : Rows(
            "1+2*3 -> 1 2 3 * + ; (1+2)*3 -> ( 1 2 + ) 3 * ; 8/2/2 -> 8 2 / 2 / ; "
            "2^3^2 -> 2 3 2 ^ ^ ; "  // To the right.
            "2^3 exp 2*5 -> 2 3 2 exp ^ 5 * ; sin 30 + 1 -> 30 sin 1 + ; sin(30) -> ( 30 ) sin ; "
            "2*sin 30 -> 2 30 sin * ; "
            "abs(-3)+1 -> ( 3 - ) 1 + abs ; "  // The level of abs is that of the logical words.
            "-5+3 -> 5 - 3 + ; 2-(-3) -> 2 ( 3 - ) - ; 1 and 2+3 -> 1 2 3 + and ; 7 mod 3*2 -> 7 3 2 * mod ; "
            "5!% -> 5 ! % ; 3 4 -> 3 4 ; 2*-3 -> not compiled; 2 - -3 -> not compiled; 2+!5 -> not compiled; "
            "(2+%)5 -> not compiled; )5(7 -> not compiled; 5)( -> refused"))
        EXPECT_EQ(Postfix(text), postfix) << text;
}

TEST_F(CompilerTest, NumberGrammarKnowsNoWordsAndNoHexadecimal) {
    const struct {
        std::string_view text;
        std::size_t length;
    } rows[] = {{"12", 2},  {"12.", 3},  {"12.5x", 4}, {"1e5", 3},   {"1e", 1},
                {"1e-", 1}, {"1E+5", 4}, {"-7", 2},    {"-", 0},     {".5", 0},
                {"inf", 0}, {"nan", 0},  {"0x1p3", 1}, {"1.2.3", 3}, {"", 0}};
    for (const auto& row : rows) EXPECT_EQ(NumberPrefixLength(Wide(row.text)), row.length) << row.text;
    EXPECT_EQ(NumberToDouble(u"-2.5e3"), -2500.0);
    EXPECT_EQ(NumberToDouble(u"1e999999999999999999999"), HUGE_VAL);
    EXPECT_EQ(NumberToDouble(u"1e-400"), 0.0);
    EXPECT_EQ(NumberToDouble(u"0.000001e400"), HUGE_VAL);
}

}  // namespace
}  // namespace quorix
