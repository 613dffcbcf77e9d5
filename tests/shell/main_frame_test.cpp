#include "shell/main_frame.h"

#include <gtest/gtest.h>

#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"

#include "support/frame_rig.h"

namespace quorix {
namespace {

using testing::FrameRig;
using testing::TemporaryFolder;

constexpr DeviceScreen kScreens[] = {{480, 640}, {640, 480}, {480, 480}, {240, 320}, {320, 240}, {240, 240}};

PanelCell Upper(int cell) {
    return {Panel::upper, cell};
}
PanelCell Lower(int code) {
    return {Panel::lower, code};
}

TEST(MainFrame, TapsBecomeAResultOnEveryScreen) {
    for (const DeviceScreen& screen : kScreens) {
        FrameRig rig(screen);
        rig.TapPad("1/3+");
        rig.Tap(Upper(12));
        rig.TapPad("2*5.5");
        rig.Tap(Upper(13));
        rig.TapPad("=");
        EXPECT_EQ(rig.Row(), "1÷3+(2×5.5)") << screen.width << "x" << screen.height;
        EXPECT_EQ(rig.Result(), "11.3333333333333333333333333333333");
        rig.TapPad("C");
        EXPECT_EQ(rig.Row(), "");
    }
}

TEST(MainFrame, HoldingReachesTheOrangeFunctions) {
    FrameRig rig;
    // Held for the interval, the orange function comes without SHIFT, and the release adds nothing.
    rig.frame.ButtonDown(rig.CentreOf(Upper(7)));
    ASSERT_EQ(rig.timers.running, (std::map<int, int>{{TIMER_HOLD, 200}}));
    rig.frame.OnTimer(TIMER_HOLD);
    EXPECT_TRUE(rig.timers.running.empty());
    rig.frame.ButtonUp(rig.CentreOf(Upper(7)));
    EXPECT_EQ(rig.Row(), "e^");
    rig.frame.ButtonDown(rig.CentreOf(Lower(KEY_EQUALS)));
    rig.frame.OnTimer(TIMER_HOLD);
    rig.frame.ButtonUp(rig.CentreOf(Lower(KEY_EQUALS)));
    EXPECT_EQ(rig.Row(), "e^[ans]");
    EXPECT_EQ(rig.Result(), "");
}

TEST(MainFrame, HeldKeysRepeat) {
    FrameRig rig;
    rig.frame.ButtonDown(rig.CentreOf(Lower(KEY_7)));
    ASSERT_EQ(rig.timers.running, (std::map<int, int>{{TIMER_REPEAT, 200}}));
    rig.frame.OnTimer(TIMER_REPEAT);
    rig.frame.OnTimer(TIMER_REPEAT);
    rig.frame.ButtonUp(rig.CentreOf(Lower(KEY_7)));
    EXPECT_EQ(rig.Row(), "777");
    rig.frame.ButtonDown(rig.CentreOf(Upper(CELL_DELETE)));
    ASSERT_EQ(rig.timers.running, (std::map<int, int>{{TIMER_REPEAT, 150}}));
    rig.frame.OnTimer(TIMER_REPEAT);
    rig.frame.ButtonUp(rig.CentreOf(Upper(CELL_DELETE)));
    EXPECT_EQ(rig.Row(), "7");
}

TEST(MainFrame, ThePenThatLeavesACellReleasesIt) {
    FrameRig rig;
    const Point centre = rig.CentreOf(Lower(KEY_5));
    rig.frame.ButtonDown(centre);
    EXPECT_TRUE(rig.frame.Looks().LooksDown(Lower(KEY_5)));
    rig.frame.MouseMove({centre.x + 5, centre.y});
    EXPECT_EQ(rig.Row(), "");
    rig.frame.MouseMove({centre.x + 60, centre.y});
    EXPECT_EQ(rig.Row(), "5");
    EXPECT_FALSE(rig.frame.Looks().LooksDown(Lower(KEY_5)));
    rig.frame.ButtonUp({centre.x + 60, centre.y});
    EXPECT_EQ(rig.Row(), "5");
}

TEST(MainFrame, WordsAndMatricesReachTheDisplay) {
    FrameRig rig;
    rig.TypeText(u"2pi");
    rig.TapPad("+1=");
    rig.frame.PopupChosen(POPUP_FUNCTIONS, 99);  // no such row
    EXPECT_EQ(rig.Row(), "2pi+1") << "a tap ends a whole word";
    rig.frame.SwitchCategory(CATEGORY_MATRIX);
    rig.TapPad("C");
    SetMatrixOperators(MatrixOperatorTable());
    SetVariableMatrix(2, 2, 2, std::array{1.0, 2.0, 3.0, 4.0});
    rig.frame.Display().Paste(u"trans([VA])");
    rig.TapPad("=");
    EXPECT_EQ(rig.Result(), "[1 3;2 4]");
}

TEST(MainFrame, HardKeysStepThroughTheEnabledCategories) {
    const TemporaryFolder folder;
    {
        Preferences p;
        p.categoryEnabled.fill(0);
        p.categoryEnabled[CATEGORY_ARITHMETIC] = 1;
        p.categoryEnabled[CATEGORY_BASE_CONVERSION] = 1;
        SavePreferences(folder / "preferences.dat", p);
    }
    FrameRig rig(folder.Path());
    rig.TypeText(u"12");
    rig.frame.KeyUp(HardKey::down);
    EXPECT_EQ(rig.frame.CurrentCategory(), CATEGORY_BASE_CONVERSION);
    rig.frame.KeyUp(HardKey::down);
    EXPECT_EQ(rig.frame.CurrentCategory(), CATEGORY_ARITHMETIC);
    EXPECT_EQ(rig.Row(), "");  // the way over the base page clears the line
    rig.frame.KeyUp(HardKey::up);
    EXPECT_EQ(rig.frame.CurrentCategory(), CATEGORY_BASE_CONVERSION);
    EXPECT_EQ(rig.host.categories, (std::vector<int>{0, 2, 0, 2}));
}

TEST(MainFrame, BaseConversionKillsDigitsBeyondItsBase) {
    FrameRig rig;
    rig.frame.SwitchCategory(CATEGORY_BASE_CONVERSION);
    rig.Tap(Upper(CELL_MENU));  // HEX
    rig.TypeText(u"fF");
    rig.Tap(Upper(6));
    EXPECT_EQ(rig.Row(), "FFA");
    rig.TapPad("C");
    rig.Tap(Upper(CELL_MENU));  // BIN
    rig.TapPad("9102.");
    rig.TypeText(u"25.1");
    EXPECT_EQ(rig.Row(), "101");
    rig.Tap(Upper(CELL_MENU));
    EXPECT_EQ(rig.Row(), "5");
    EXPECT_EQ(rig.frame.Display().GetBase(), RADIX_OCT);
}

TEST(MainFrame, TheBaseOnShowSurvivesARestart) {
    const TemporaryFolder folder;
    {
        FrameRig rig(folder.Path());
        rig.frame.SwitchCategory(CATEGORY_BASE_CONVERSION);
        rig.Tap(Upper(CELL_MENU));
        rig.TapPad("12");
        ASSERT_TRUE(rig.frame.SaveState());
    }
    FrameRig rig(folder.Path());
    EXPECT_EQ(rig.frame.CurrentCategory(), CATEGORY_BASE_CONVERSION);
    EXPECT_EQ(rig.frame.Display().GetBase(), RADIX_HEX);
    EXPECT_EQ(rig.Row(), "12");
}

TEST(MainFrame, BasicModesStartFromZeroAndKeepTheirMode) {
    const TemporaryFolder folder;
    {
        Preferences p;
        p.calculator.inputMode = kModeRpn;
        SavePreferences(folder / "preferences.dat", p);
    }
    FrameRig rig(folder.Path());
    EXPECT_EQ(rig.Row(), "0");
    rig.TypeText(u"2\r3+");  // Enter ends the first number
    EXPECT_EQ(rig.Row(), "5");
    ASSERT_TRUE(rig.frame.SaveState());
    FrameRig again(folder.Path());
    EXPECT_EQ(again.frame.Settings().calculator.inputMode, kModeRpn);
}

TEST(MainFrame, SavingIntoAFolderThatIsGoneFailsWithoutHarm) {
    auto folder = std::make_unique<TemporaryFolder>();
    FrameRig rig(folder->Path());
    folder.reset();
    EXPECT_FALSE(rig.frame.SaveState());
}

}  // namespace
}  // namespace quorix
