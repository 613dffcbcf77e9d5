#include <gtest/gtest.h>

#include "frontends/base_conversion.h"
#include "frontends/categories.h"
#include "frontends/context_menu.h"
#include "support/calculator_rig.h"
#include "support/fake_clipboard.h"

namespace quorix {
namespace {

using testing::CalculatorRig;
using testing::FakeClipboard;

// What a line gives stands in the examples of the manual.
TEST(StringKeys, EqualsIsShownWithAResultAndWithAMessage) {
    for (const auto& [keys, result] : {std::pair{"2i*i=", "-2"}, {"(1=", "Syntax error"}}) {
        CalculatorRig rig;
        rig.Type(keys);
        EXPECT_EQ(rig.Result(), result) << keys;
        EXPECT_TRUE(rig.display->ShowsEquals()) << keys;
    }
}

TEST(StringKeys, AnswerCarriesTheFullPrecision) {
    CalculatorRig rig;
    rig.Type("1/3= c a*3=");
    EXPECT_EQ(rig.Row(), "[ans]×3");
    EXPECT_EQ(rig.Result(), "1");
    rig.Type("c i= c aa=");
    EXPECT_EQ(rig.Result(), "-1");
}

TEST(StringKeys, EmptyAndOverlongLinesAreNamed) {
    CalculatorRig rig;
    rig.Type("=");
    EXPECT_EQ(rig.Result(), "Empty string");
    EXPECT_FALSE(rig.display->ShowsEquals());
    rig.display->Paste(std::u16string(4096, u'1'));
    rig.Type("=");
    EXPECT_EQ(rig.Result(), "Empty string");  // the kept oversight at exactly 4096 characters
    rig.Type("1=");
    EXPECT_EQ(rig.Result(), "Overlength string");
    rig.Type("dd=");
    EXPECT_EQ(rig.Result().substr(0, 4), "1.11");
}

TEST(StringKeys, AFormatThatAResultTakesForItselfGoesWithTheNextClear) {
    CalculatorRig rig;
    for (int tap = 0; tap < 3; ++tap) {
        rig.display->PenUp({240, 14}, 2);  // the format mark, NORM to FRAC
    }
    rig.Type("1+i=");
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_SCI);
    rig.Type("c");
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_FRAC);
    EXPECT_TRUE(rig.Result().empty());
}

TEST(StringKeys, EqualsPushesTheLinesDown) {
    CalculatorRig rig;
    rig.Type("1+1= c 2+2= c 3+3=");
    for (const auto& [line, text] : {std::pair{0, u"3+3"}, {1, u"3+3"}, {2, u"2+2"}, {3, u"1+1"}}) {
        EXPECT_EQ(rig.display->LineAt(0, line).Text(), text) << line;
    }
    rig.Type("#155 9=");  // line 5 moves nothing
    EXPECT_EQ(ToUtf8(rig.display->LineAt(0, 3).Text()), "1+1");
    EXPECT_EQ(rig.Row(), "9");
    rig.Type("#149");
    EXPECT_EQ(rig.display->LineNumber(), 0);
    rig.Type("#150");
    EXPECT_EQ(rig.display->LineNumber(), 4);
}

TEST(StringKeys, StartAndEndOfALine) {
    CalculatorRig rig;
    rig.Type("12#156 7");
    EXPECT_EQ(rig.Row(), "712");
    rig.Type("#157 8");
    EXPECT_EQ(rig.Row(), "7128");
}

TEST(StringKeys, ShiftEndsWithEveryOtherKey) {
    for (const std::int32_t code : std::initializer_list<std::int32_t>{
             KEY_LEFT, KEY_1, KEY_SHIFT, KEY_NEXT_LINE, KEY_M3, KEY_CLEAR, KEY_FORMAT, KEY_DELETE, 999}) {
        CalculatorRig rig;
        rig.Type("s");
        EXPECT_TRUE(rig.display->GetShift());
        rig.display->Key(code);
        EXPECT_FALSE(rig.display->GetShift()) << code;
    }
}

TEST(StringKeys, MemoriesGiveBackWhatWasStored) {
    struct Case {
        const char* keys;
        const char* memory;
        const char* again;  // result of the recalled line
    };
    const Case cases[] = {
        {"1234.5=", "1234.5", "1¸234.5"},
        {"15000000000*1=", "15000000000", "15¸000¸000¸000"},
        {"15000000000000*1=", "1.50000000000000000000000000000000exp13",
         "1.50000000000000000000000000000000E13"},
        {"1/8/10000000000000=", "1.25000000000000000000000000000000exp(-14)",
         "1.25000000000000000000000000000000E-14"},
        {"3/4= #159", "0.75", "3/4"},
        {"2i=", "(2i)", "2.0000E0i"},
        {"1/2-3i=", "(0.5-3i)", "5.0000E-1-3.0000E0i"},
        {"1-1=", "0", "0"},
    };
    for (const Case& c : cases) {
        CalculatorRig rig;
        rig.Type(c.keys);
        rig.Type("M");
        EXPECT_EQ(ToUtf8(rig.display->MemoryText(0, 0)), c.memory) << c.keys;
        const std::int32_t format = rig.display->GetFormat();
        rig.Type("cR");
        rig.display->Key(format);
        rig.Type("=");
        EXPECT_EQ(rig.Result(), c.again) << c.keys;
    }
    CalculatorRig rig;
    rig.Type("1-1001=Mc2*R=");
    EXPECT_EQ(rig.Row(), "2×(−1000)");
    EXPECT_EQ(rig.Result(), "-2¸000");
}

TEST(StringKeys, MemoriesBelongToTheirPageAndRefuseMessages) {
    CalculatorRig rig;
    rig.Type("7=M");
    rig.Type("#20");
    EXPECT_EQ(rig.display->Memory(), KEY_M2);
    rig.Type("c1+=M");  // a message is no value
    EXPECT_TRUE(rig.display->MemoryText(1, 0).empty());
    rig.Type("#126");
    rig.Enter(CATEGORY_TRIGONOMETRY);
    rig.Type("cR");
    EXPECT_EQ(rig.Row(), "7");
    rig.Enter(CATEGORY_FINANCE);
    rig.Type("cR");
    EXPECT_EQ(rig.Row(), "");
    rig.Enter(CATEGORY_ARITHMETIC);
    rig.Type("#21");
    EXPECT_TRUE(rig.display->MemoryText(0, 0).empty());
}

TEST(StringKeys, BaseConversionFollowsBaseAndWordSize) {
    CalculatorRig rig;
    rig.Enter(CATEGORY_BASE_CONVERSION);
    rig.Type("200+55");
    CycleBase(*rig.display);
    EXPECT_EQ(rig.display->GetBase(), RADIX_HEX);
    EXPECT_EQ(rig.Row(), "C8+37");
    rig.Type("=");
    EXPECT_EQ(rig.Result(), "FF");
    CycleBase(*rig.display);
    EXPECT_EQ(rig.Row(), "11001000+110111");
    CycleBase(*rig.display);
    EXPECT_EQ(rig.Row(), "310+67");
    CycleBase(*rig.display);
    EXPECT_EQ(rig.display->GetBase(), RADIX_DEC);
    EXPECT_EQ(rig.Row(), "200+55");
    rig.Type("#137 c 300");
    EXPECT_EQ(rig.display->GetWordSize(), WORD_16);
    CycleWordSize(*rig.display);
    CycleWordSize(*rig.display);
    EXPECT_EQ(rig.display->GetWordSize(), WORD_8);
    EXPECT_EQ(rig.Row(), "44");
    rig.Type("c1+=");
    EXPECT_EQ(rig.Result(), "SYNTAX ERROR");
}

TEST(StringKeys, ContextMenuMovesDisplayText) {
    CalculatorRig rig;
    FakeClipboard clipboard;
    auto items = ContextMenuOf(*rig.display, clipboard);
    EXPECT_FALSE(items[0].enabled || items[1].enabled || items[2].enabled || items[3].enabled);
    rig.Type("1/#54 3");
    RunContextMenu(MENU_COPY, *rig.display, clipboard);
    EXPECT_EQ(clipboard.content, u"1÷sin(3");
    RunContextMenu(MENU_CUT, *rig.display, clipboard);
    EXPECT_EQ(rig.Row(), "");
    rig.Type("52<");
    clipboard.content = u"sin(\r\n3)";
    items = ContextMenuOf(*rig.display, clipboard);
    EXPECT_TRUE(items[0].enabled && items[1].enabled && items[2].enabled && items[3].enabled);
    RunContextMenu(MENU_PASTE, *rig.display, clipboard);
    EXPECT_EQ(rig.Row(), "5sin(3)2");
    EXPECT_EQ(rig.display->GetTokenLengths(), u"14111");
    RunContextMenu(MENU_CLEAR, *rig.display, clipboard);
    EXPECT_EQ(rig.Row(), "");
    clipboard.content.assign(1 << 20, u'1');
    RunContextMenu(MENU_PASTE, *rig.display, clipboard);
    EXPECT_EQ(rig.display->GetLine().size(), kLongestLine);
}

}  // namespace
}  // namespace quorix
