#include <gtest/gtest.h>

#include <set>

#include "platform/files.h"
#include "shell/preferences_pages.h"
#include "shell/tools_panel.h"
#include "support/frame_rig.h"

namespace quorix {
namespace {

using testing::FrameRig;
using testing::TemporaryFolder;
using Log = std::vector<std::string>;

TEST(Categories, WindowsComeAndGoWithTheirCategories) {
    FrameRig rig;
    rig.host.TakeLog();
    const auto log = [&rig](int category) {
        rig.frame.SwitchCategory(category);
        return rig.host.TakeLog();
    };
    EXPECT_EQ(log(CATEGORY_TIP), (Log{"create 6"}));
    EXPECT_EQ(rig.frame.KeyboardTarget(), ModuleWindow::tip);
    // The three pages of the converter share one window.
    EXPECT_EQ(log(CATEGORY_UNIT_CONVERTER), (Log{"destroy 3", "create 7", "send 4 5100 0 0"}));
    EXPECT_EQ(log(CATEGORY_CURRENCY_CONVERTER), (Log{"show 4", "send 4 5100 1 0"}));
    EXPECT_EQ(rig.frame.KeyboardTarget(), ModuleWindow::converter);
    EXPECT_EQ(log(CATEGORY_CONSTANTS), (Log{"show 4", "send 4 5100 2 0"}));
    EXPECT_EQ(rig.frame.KeyboardTarget(), ModuleWindow::none);
    EXPECT_EQ(log(CATEGORY_FUNCTION_GRAPH), (Log{"destroy 4", "create 13"}));
    EXPECT_EQ(log(CATEGORY_FUNCTION_GRAPH), Log{});
    EXPECT_EQ(log(16), Log{});
    EXPECT_EQ(log(CATEGORY_ARITHMETIC), (Log{"destroy 8"}));
    EXPECT_FALSE(rig.frame.ModuleLive(ModuleWindow::functionGraph));
}

TEST(Categories, KeysReachTheWindowThatTakesThem) {
    FrameRig rig;
    rig.frame.SwitchCategory(CATEGORY_TIP);
    rig.host.TakeLog();
    rig.sound.played.clear();
    rig.TapPad("7~");
    rig.TypeText(u"5z");
    rig.frame.KeyUp(HardKey::remove);
    EXPECT_EQ(rig.host.TakeLog(), (Log{"send 3 3024 55 0", "send 3 3024 126 0", "send 3 3024 53 0",
                                       "send 3 3024 122 0", "send 3 3024 8 0"}));
    EXPECT_EQ(rig.sound.played, Log(3, "Sound 01.wav")) << "letters are silent";
    rig.frame.SwitchCategory(CATEGORY_EQUATION_SOLVER);
    rig.host.TakeLog();
    rig.TapPad("=");
    rig.Tap({Panel::upper, CELL_MENU});
    EXPECT_EQ(rig.host.TakeLog(), (Log{"send 7 3025 19 0"})) << "no upper panel above a window";
    EXPECT_EQ(rig.Row(), "");
}

TEST(Categories, AMacroUnderEditKeepsToItsPages) {
    FrameRig rig;
    rig.frame.SwitchCategory(CATEGORY_MACROS);
    rig.frame.ToggleMacroEditing();
    rig.host.TakeLog();
    rig.frame.SwitchCategory(CATEGORY_MATRIX);
    EXPECT_EQ(rig.frame.CurrentCategory(), CATEGORY_MACROS);
    std::vector<int> walked;
    for (const HardKey key :
         {HardKey::up, HardKey::up, HardKey::up, HardKey::up, HardKey::down, HardKey::down, HardKey::down}) {
        rig.frame.KeyUp(key);
        walked.push_back(rig.frame.CurrentCategory());
    }
    EXPECT_EQ(walked, (std::vector<int>{1, 0, 15, 1, 15, 0, 1}));
    EXPECT_TRUE(rig.frame.ModuleLive(ModuleWindow::macros)) << "hidden, not ended";
    rig.frame.SwitchCategory(CATEGORY_MACROS);
    EXPECT_EQ(rig.host.TakeLog().back(), "show 6");
}

TEST(Categories, InputModeReturnsWithThePagesThatKnowIt) {
    const TemporaryFolder folder;
    {
        Preferences p;
        p.calculator.inputMode = kModeRpn;
        p.lastCategory = CATEGORY_TIP;
        SavePreferences(folder / "preferences.dat", p);
    }
    FrameRig rig(folder.Path());
    EXPECT_TRUE(rig.frame.Settings().calculator.IsStringMode());
    EXPECT_EQ(rig.frame.UserSettings().calculator.inputMode, kModeRpn);
    Preferences changed = rig.frame.UserSettings();
    changed.calculator.inputMode = kModeBasic;
    changed.skinFile = u"Black Skin.inf";
    rig.host.TakeLog();
    rig.frame.ApplyPreferences(changed);
    EXPECT_EQ(rig.host.TakeLog(), Log{"reload skin"});
    EXPECT_TRUE(rig.frame.Settings().calculator.IsStringMode());
    rig.frame.SwitchCategory(CATEGORY_ARITHMETIC);
    EXPECT_EQ(rig.frame.Settings().calculator.inputMode, kModeBasic);
}

TEST(Categories, ChangedPreferencesKeepTheValuesOnShow) {
    FrameRig rig;
    rig.TypeText(u"1234.5*2=");
    Preferences changed = rig.frame.UserSettings();
    for (const auto& [locale, line, result] :
         {std::tuple{u"European", "1234¸5×2", "2.469"}, {u"English (UK)", "1234.5×2", "2¸469"}}) {
        changed.calculator.numberLocale = locale;
        rig.frame.ApplyPreferences(changed);
        EXPECT_EQ(rig.Row(), line);
        EXPECT_EQ(rig.Result(), result);
        rig.TypeText(u"=");
        EXPECT_EQ(rig.Result(), result);
    }
    // Another machine finds an empty line, also when it was chosen on a page of another kind.
    rig.frame.SwitchCategory(CATEGORY_TIP);
    changed.calculator.inputMode = kModeBasic;
    rig.frame.ApplyPreferences(changed);
    rig.frame.SwitchCategory(CATEGORY_ARITHMETIC);
    rig.TypeText(u"6*7=");
    EXPECT_EQ(rig.Row(), "42");
    rig.frame.SwitchCategory(CATEGORY_TIP);
    changed.calculator.inputMode = kModeString;
    rig.frame.ApplyPreferences(changed);
    rig.frame.SwitchCategory(CATEGORY_ARITHMETIC);
    EXPECT_EQ(rig.Row(), "");
}

TEST(Categories, TheChooserOpensClosesAndLatches) {
    FrameRig rig;
    rig.host.TakeLog();
    const PanelCell chooser{Panel::upper, CELL_CHOOSER};
    rig.Tap(chooser);
    EXPECT_TRUE(rig.frame.ChooserOpen());
    EXPECT_TRUE(rig.frame.Looks().LooksDown(chooser));
    rig.Tap({Panel::lower, KEY_7});
    EXPECT_TRUE(rig.frame.ChooserOpen()) << "only its own key closes it";
    rig.Tap(chooser);
    EXPECT_FALSE(rig.frame.ChooserOpen());
    rig.frame.ToggleChooser();
    rig.frame.ChooseTool(Tool::about);
    EXPECT_EQ(rig.host.TakeLog(), (Log{"chooser", "no chooser", "chooser", "no chooser", "tool 2"}));
}

TEST(ToolsPanel, EveryCategoryCanBeReachedByPenAndByKeysOnEveryScreen) {
    CategoryOrder order = DefaultCategoryOrder();
    MoveRow(order, 15, RowMove::top);
    for (const Orientation orientation :
         {Orientation::portrait, Orientation::landscape, Orientation::square}) {
        const Rect key = CellRect(orientation, {Panel::upper, CELL_CHOOSER});
        const Rect room = SheetRoom(orientation, key);
        std::set<int> tapped;
        for (int category = 0; category < kCategoryCount; ++category) {
            ToolsPanel panel(order, category, room.Width(), room.Height());
            ASSERT_LE(panel.Height(), room.Height());
            std::set<int> tools;
            for (const SheetPart& part : panel.Parts()) {
                const Rect rect = panel.RectOf(part);
                EXPECT_TRUE(rect.left >= 0 && rect.top >= 0 && rect.right <= panel.Width() &&
                            rect.bottom <= panel.Height());
                const Point centre{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
                ASSERT_EQ(panel.PartAt(centre), part) << "parts do not overlap";
                if (part.kind == SheetPart::Kind::tile) {
                    panel.PenDown(centre);
                    tapped.insert(panel.PenUp(centre)->index);
                }
            }
            EXPECT_EQ(panel.Focused(), (SheetPart{SheetPart::Kind::tile, category}));
            EXPECT_EQ(
                panel.PartAt({panel.RectOf(panel.Focused()).left, panel.RectOf(panel.Focused()).top}).index,
                category)
                << "the page of the current category is on show";
        }
        EXPECT_EQ(tapped.size(), 16U);
        ToolsPanel panel(order, 0, room.Width(), room.Height());
        std::set<std::pair<int, int>> walked;
        for (int i = 0; i < 200; ++i) {
            panel.Key(i % 7 == 6 ? SheetKey::down : i % 11 == 10 ? SheetKey::up : SheetKey::next);
            if (panel.Focused().kind == SheetPart::Kind::pageForth) {
                EXPECT_EQ(panel.Key(SheetKey::choose), std::nullopt);
            }
            walked.insert({static_cast<int>(panel.Focused().kind), panel.Focused().index});
        }
        EXPECT_GE(walked.size(), 20U) << "sixteen tiles and four tools";
    }
}

TEST(PreferencesPages, RowsMoveAndFilesAreListed) {
    CategoryOrder order = DefaultCategoryOrder();
    EXPECT_EQ(MoveRow(order, 3, RowMove::top), 0);
    EXPECT_EQ(order[0], 3);
    EXPECT_EQ(order[1], 0);
    EXPECT_EQ(order[4], 4);
    EXPECT_EQ(MoveRow(order, 0, RowMove::up), 0);
    EXPECT_EQ(MoveRow(order, 0, RowMove::bottom), 15);
    EXPECT_EQ(order[15], 3);
    EXPECT_EQ(MoveRow(order, 14, RowMove::down), 15);
    EXPECT_EQ(order[14], 3);

    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "Interfaces");
    for (const char* name : {"Zebra.INF", "default.inf", "Black Skin.inf", "notes.txt"}) {
        WriteFileAtomically(folder / "Interfaces" / name, {});
    }
    std::vector<std::u16string> shown;
    for (const FileChoice& skin : SkinChoices(folder.Path())) {
        shown.push_back(skin.shown);
    }
    EXPECT_EQ(shown, (std::vector<std::u16string>{u"Default", u"Black Skin", u"Zebra"}));
    EXPECT_TRUE(SoundChoices(folder.Path()).empty());
}

}  // namespace
}  // namespace quorix
