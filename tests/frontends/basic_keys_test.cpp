#include <gtest/gtest.h>

#include "engine/key_engine.h"
#include "support/calculator_rig.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

using testing::CalculatorRig;

/// Row and result behind the keys of each row, on a display that has been cleared.
void ExpectRows(std::u16string_view mode, std::string_view table) {
    for (const auto& [keys, row] : Rows(table)) {
        CalculatorRig rig(mode);
        rig.Type("c" + keys);
        EXPECT_EQ(rig.Row(), row) << ToUtf8(mode) << " " << keys;
        EXPECT_EQ(rig.Result(), row) << ToUtf8(mode) << " " << keys;
    }
}

// The examples of the manual have the common sequences.
TEST(BasicKeys, StandardComputesAsKeysAreTyped) {
    ExpectRows(kModeBasic,
               " -> 0; 12.50 -> 12.50; 1. -> 1.; .5 -> 0.5; 1234567 -> 1¸234¸567; 2*3+4= -> 10; "
               "2+3= 10= -> 10; 5~3 -> -53; 5+4r= -> 5.25; 1/3=r -> 3; 2+3 d -> 0; 2+3 c 4= -> 4; p5 -> 5");
}

TEST(BasicKeys, AMessageStandsUntilANumberIsTyped) {
    ExpectRows(kModeBasic,
               "1+2/0= -> Invalid parameter(s); 1/0= 5+5= -> 10; 1/0-3= -> Invalid parameter(s); "
               "1/(1/0)= -> Invalid parameter(s); (0#29) -> Invalid parameter(s); 5) -> Syntax error; "
               "0#29r -> Invalid parameter(s); 0#29 5+3= -> 8");
}

TEST(BasicKeys, FunctionKeysActOnTheEntry) {
    ExpectRows(kModeBasic,
               "#145 11#31 -> 00001001; 9#31= -> 81; 3#38 -> 1¸000; 1.5#27 3= -> 1¸500; 8#40 3= -> 2; "
               "1#39 -> 2.71828182845904523536028747135266; p -> 3.1415926535897932384626433832795");
}

TEST(BasicKeys, ReversePolishComputesAtOnce) {
    ExpectRows(kModeRpn, "4r -> 0.25; 7~ -> -7; 2(3+= -> 5; 2(3+d -> 5; + -> Syntax error; 27(3#40 -> 3");
}

TEST(BasicKeys, ThePendingOperatorIsShownForOneKey) {
    CalculatorRig rig(kModeBasic);
    rig.Type("c2/");
    EXPECT_EQ(rig.display->PendingOperator(), u"\u00F7");
    rig.Type("*");
    EXPECT_EQ(rig.display->PendingOperator(), u"\u00D7");
    rig.Type("3");
    EXPECT_EQ(rig.display->PendingOperator(), u"");
}

TEST(BasicKeys, OnlyEqualsUsesTheFormatOfTheDisplay) {
    CalculatorRig rig(kModeBasic);
    rig.Type("c");
    rig.display->PenUp({240, 14}, 2);  // NORM to FIX
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_FIX);
    EXPECT_EQ(rig.Row(), "0.0000");
    rig.Type("1/8");
    EXPECT_EQ(rig.Row(), "8");
    rig.Type("=");
    EXPECT_EQ(rig.Row(), "0.1250");
    rig.display->PenUp({240, 14}, 2);
    EXPECT_EQ(rig.Row(), "1.25000000000000000000000000000000E-1");
}

TEST(BasicKeys, MemoriesKeepTheValue) {
    for (const std::u16string_view mode : {kModeBasic, kModeRpn}) {
        CalculatorRig rig(mode);
        rig.Type("c 1234.5 M c R");
        EXPECT_EQ(rig.Row(), "1¸234.5");
        EXPECT_EQ(ToUtf8(rig.display->MemoryText(0, 0)), "1234.5");
        rig.Type("#20 R");  // an empty memory is 0
        EXPECT_EQ(rig.Row(), "0");
    }
    CalculatorRig rig(kModeBasic);
    rig.Type("c1000000*1000000*10= M c5+R=");
    EXPECT_EQ(ToUtf8(rig.display->MemoryText(0, 0)), "1.00000000000000000000000000000000exp13");
    EXPECT_EQ(rig.Row(), "1.00000000000050000000000000000000E13");
    rig.Type("c1/1000000/10000000/8= M cR");
    EXPECT_EQ(ToUtf8(rig.display->MemoryText(0, 0)), "1.25000000000000000000000000000000exp(-14)");
    EXPECT_EQ(rig.Row(), "1.25000000000000000000000000000000E-14");
    // What String mode stored reads back too, a complex number as the refusal of the basic modes.
    rig.settings.inputMode = kModeString;
    rig.Type("c 1+i= M");
    rig.settings.inputMode = kModeBasic;
    rig.Type("cR");
    EXPECT_EQ(rig.Row(), "Invalid parameter(s)");
}

TEST(BasicKeys, KeysWithoutATokenOnlyEndShift) {
    for (const std::int32_t code :
         std::initializer_list<std::int32_t>{KEY_I, KEY_GCD, KEY_ANSWER, KEY_NEXT_LINE, KEY_DET, 77777, -5}) {
        CalculatorRig rig(kModeBasic);
        rig.Type("c12s");
        rig.display->Key(code);
        EXPECT_EQ(rig.Row(), "12") << code;
        EXPECT_FALSE(rig.display->GetShift()) << code;
    }
}

TEST(BasicKeys, EveryKeyInEveryModeIsSafe) {
    for (const std::u16string_view mode : {kModeString, kModeBasic, kModeRpn}) {
        CalculatorRig rig(mode);
        for (int round = 0; round < 3; ++round) {
            for (std::int32_t code = -1; code < 256; ++code) {
                rig.display->Key(code);
                EXPECT_LE(KeyEngineDepth(), 128);
                EXPECT_EQ(rig.display->Line().OffsetOf(rig.display->Line().TokenCount()),
                          rig.display->GetLine().size());
            }
        }
    }
}

}  // namespace
}  // namespace quorix
