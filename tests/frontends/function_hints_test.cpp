#include <gtest/gtest.h>

#include "frontends/categories.h"
#include "frontends/function_hints.h"
#include "support/calculator_rig.h"

namespace quorix {
namespace {

using testing::CalculatorRig;

TEST(FunctionHints, TheInnermostOpenCallAndItsArgument) {
    HintTable table;
    table.SetMacroRows({u"s(a, b)", u"mySin(v)"});
    struct Case {
        std::u16string_view line;  // "|" is the cursor; every character is a token save those of names
        std::u16string_view row;
        int argument;
    };
    const Case cases[] = {
        {u"|", u"", 0},
        {u"gcd(12|", u"gcd(number1, number2)", 0},
        {u"gcd(12,|", u"gcd(number1, number2)", 1},
        {u"gcd(sin(3),lcm(|4", u"lcm(number1, number2)", 0},
        {u"gcd(sin(3)|", u"gcd(number1, number2)", 0},
        {u"gcd((1,2),(|", u"gcd(number1, number2)", 1},
        {u"gcd(1,2)|", u"", 0},
        {u"2\u221A(|9", u"\u221A(x)", 0},
        {u"\u2211(x,x,1|", u"\u2211(expression, variable, start, end, [step])", 2},
        {u"asinh(|", u"asinh(x)", 0},
        {u"s(1,|", u"s(a, b)", 1},
        {u"mySin(|", u"mySin(v)", 0},
        {u"ln(|-2", u"ln(x)", 0},
    };
    for (const Case& c : cases) {
        std::u16string line(c.line);
        const std::size_t cursor = line.find(u'|');
        line.erase(cursor, 1);
        const auto hint = table.FindHint(line, std::u16string(line.size(), u'1'), static_cast<int>(cursor));
        EXPECT_EQ(hint ? ToUtf8(hint->text) : "", ToUtf8(c.row)) << ToUtf8(c.line);
        EXPECT_EQ(hint ? hint->argument : 0, c.argument) << ToUtf8(c.line);
    }
    // A function under the cursor is shown, whatever call is round it.
    EXPECT_EQ(table.FindHint(u"gcd(sin(3", u"441", 1)->text, u"sin(x)");
    EXPECT_EQ(table.FindHint(u"7 mod 3", u"151", 1)->argument, 0);
    EXPECT_EQ(table.FindHint(u"7 mod 3", u"151", 2)->argument, 1);
}

TEST(FunctionHints, ArgumentsOfARow) {
    const auto argument = [](std::u16string_view row, int index) {
        const auto [at, length] = ArgumentSpan(row, index);
        return std::u16string(row.substr(at, length));
    };
    EXPECT_EQ(argument(u"fv(rate, nper, type=0)", 0), u"rate");
    EXPECT_EQ(argument(u"fv(rate, nper, type=0)", 1), u"nper");
    EXPECT_EQ(argument(u"fv(rate, nper, type=0)", 9), u"type=0");
    EXPECT_EQ(argument(u"f()", 0), u"");
    for (const std::u16string_view row : FunctionHints()) {
        EXPECT_EQ(TakesSeveralArguments(row.substr(0, row.find(u'('))), row.find(u',') != row.npos);
        for (int index = 0; index < 7; ++index) {
            EXPECT_GT(ArgumentSpan(row, index).second, 0U) << ToUtf8(row);
        }
    }
}

TEST(FunctionHints, TheDisplayTellsOfEveryKeyInStringModeAndHidesAtEquals) {
    CalculatorRig rig;
    rig.Type("#26 1 2,");
    ASSERT_TRUE(rig.hint);
    EXPECT_EQ(rig.hint->line, u"gcd(12,");
    EXPECT_EQ(rig.hint->cursor, 4);
    rig.Type("<<");
    EXPECT_EQ(rig.hint->cursor, 2);
    rig.Type(">>8)=");
    EXPECT_FALSE(rig.hint);
    rig.Type("1");
    EXPECT_TRUE(rig.hint);
    rig.Enter(CATEGORY_FINANCE);
    EXPECT_FALSE(rig.hint);
    rig.settings.toolTipsEnabled = 0;
    rig.Type("1");
    EXPECT_FALSE(rig.hint);
    CalculatorRig basic(kModeBasic);
    basic.Type("1+<");
    EXPECT_FALSE(basic.hint);
}

}  // namespace
}  // namespace quorix
