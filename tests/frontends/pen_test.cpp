#include <gtest/gtest.h>

#include "frontends/categories.h"
#include "support/calculator_rig.h"

namespace quorix {
namespace {

using testing::CalculatorRig;

constexpr int kScale = 2;

Point CentreOf(DisplayPart part) {
    const Rect rect = DisplayPartRect(part, kScale);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void Tap(CalculatorRig& rig, Point point) {
    rig.display->PenDown(point, kScale);
    rig.display->PenUp(point, kScale);
}

TEST(Pen, MarksAnswerWhereTheyAreShown) {
    CalculatorRig rig;
    Tap(rig, CentreOf(DisplayPart::angleMark));
    EXPECT_EQ(rig.display->GetAngle(), ANGLE_RAD);
    Tap(rig, CentreOf(DisplayPart::memoryMark));
    EXPECT_EQ(rig.display->Memory(), KEY_M2);
    Tap(rig, CentreOf(DisplayPart::lineNumber));
    EXPECT_EQ(rig.display->LineNumber(), 1);
    Tap(rig, CentreOf(DisplayPart::formatMark));
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_FIX);
    Tap(rig, CentreOf(DisplayPart::baseMark));  // lives on the base page only
    Tap(rig, CentreOf(DisplayPart::wordSizeMark));
    EXPECT_EQ(rig.display->GetBase(), RADIX_DEC);
    EXPECT_EQ(rig.display->GetWordSize(), WORD_8);
    EXPECT_EQ(rig.messages, std::vector<LedMessage>{LED_FORMAT_CHANGED});

    rig.Enter(CATEGORY_BASE_CONVERSION);
    Tap(rig, CentreOf(DisplayPart::angleMark));
    Tap(rig, CentreOf(DisplayPart::baseMark));
    Tap(rig, CentreOf(DisplayPart::wordSizeMark));
    EXPECT_EQ(rig.display->GetAngle(), ANGLE_RAD);
    EXPECT_EQ(rig.messages.back(), LED_BASE_TAPPED);
    EXPECT_EQ(rig.display->GetWordSize(), WORD_16);
}

TEST(Pen, ATapPutsTheCursorOnTheToken) {
    CalculatorRig rig;
    rig.Type("1#54 30)+2");  // 1 sin( 3 0 ) + 2
    rig.display->UpdateView(std::vector<int>{20, 70, 20, 20, 10, 20, 20}, kScale);
    const Rect row = DisplayPartRect(DisplayPart::textRow, kScale);
    const int start = row.left + kTextRowInset * kScale;
    const int y = row.top + 10;
    Tap(rig, {start + 5, y});
    EXPECT_EQ(rig.display->Line().Cursor(), 0);
    Tap(rig, {start + 60, y});
    EXPECT_EQ(rig.display->Line().Cursor(), 1);
    ASSERT_TRUE(rig.hint);
    EXPECT_EQ(rig.hint->line, rig.display->GetLine());
    EXPECT_EQ(rig.hint->cursor, 1);
    Tap(rig, {start + 95, y});
    EXPECT_EQ(rig.display->Line().Cursor(), 2);
    Tap(rig, {row.right - 3, y});
    EXPECT_EQ(rig.display->Line().Cursor(), 7);
}

TEST(Pen, HeldArrowsRepeat) {
    CalculatorRig rig;
    for (int i = 0; i < 30; ++i) {
        rig.Type("1");
        rig.display->UpdateView(std::vector<int>(static_cast<std::size_t>(i + 1), 20), kScale);
    }
    ASSERT_TRUE(rig.display->ArrowShown(DisplayPart::leftArrow));
    ASSERT_FALSE(rig.display->ArrowShown(DisplayPart::rightArrow));
    rig.display->PenDown(CentreOf(DisplayPart::leftArrow), kScale);
    EXPECT_EQ(rig.timers.running, (std::map<int, int>{{kRepeatTimer, kCursorRepeatMs}}));
    rig.display->OnTimer(kRepeatTimer);
    rig.display->OnTimer(kRepeatTimer);
    rig.display->PenUp(CentreOf(DisplayPart::leftArrow), kScale);
    EXPECT_TRUE(rig.timers.running.empty());
    EXPECT_EQ(rig.display->Line().Cursor(), 27);
    rig.display->OnTimer(kRepeatTimer);
    EXPECT_EQ(rig.display->Line().Cursor(), 27);
}

TEST(Pen, TheTexButtonReportsToItsParent) {
    CalculatorRig rig;
    rig.display->PenDown(CentreOf(DisplayPart::texButton), kScale);
    EXPECT_TRUE(rig.display->TexButtonPressed());
    rig.display->PenUp(CentreOf(DisplayPart::texButton), kScale);
    EXPECT_FALSE(rig.display->TexButtonPressed());
    EXPECT_EQ(rig.messages, std::vector<LedMessage>{LED_TEX_BUTTON});
}

}  // namespace
}  // namespace quorix
