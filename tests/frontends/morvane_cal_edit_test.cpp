#include "frontends/morvane_cal_edit.h"

#include <gtest/gtest.h>

#include "frontends/display_file.h"
#include "frontends/string_key_tokens.h"
#include "support/calculator_rig.h"
#include "support/fake_clipboard.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using testing::CalculatorRig;
using testing::FakeClipboard;

struct Box {
    CalculatorSettings settings;
    int repaints = 0;
    int used = 0;
    MorvaneCalEdit edit{settings,
                        {.invalidate = [this] { ++repaints; }, .useInArithmetic = [this] { ++used; }}};
};

TEST(MorvaneCalEdit, EveryKeyEditsAsOnTheDisplay) {
    for (std::int32_t code = -1; code < 170; ++code) {
        Box box;
        box.edit.SetFocused(true);
        CalculatorRig rig;
        for (const std::int32_t key : {std::int32_t{KEY_1}, std::int32_t{KEY_ASINH}, std::int32_t{KEY_2},
                                       std::int32_t{KEY_LEFT}, code, std::int32_t{KEY_3}}) {
            box.edit.Key(key);
            rig.display->Key(key);
        }
        EXPECT_EQ(box.edit.GetLine(), rig.display->GetLine()) << code;
        EXPECT_EQ(box.edit.GetTokenLengths(), rig.display->GetTokenLengths()) << code;
        EXPECT_EQ(box.edit.Line().Cursor(), rig.display->Line().Cursor()) << code;
        EXPECT_EQ(box.edit.GetAngle(), rig.display->GetAngle()) << code;
        EXPECT_EQ(box.edit.GetBase(), rig.display->GetBase()) << code;
        EXPECT_EQ(box.edit.GetFormat(), rig.display->GetFormat()) << code;
        EXPECT_EQ(box.edit.GetWordSize(), rig.display->GetWordSize()) << code;
        EXPECT_EQ(box.edit.Memory(), rig.display->Memory()) << code;
    }
}

TEST(MorvaneCalEdit, TakesOnlyTheKeysItMay) {
    Box box;
    box.edit.SetLine(u"sin(12", u"411");
    for (const StringKeyTokens& row : AllStringKeyTokens()) {
        box.edit.Key(row.code);
    }
    EXPECT_FALSE(box.edit.Character(u'5'));
    EXPECT_EQ(box.edit.GetLine(), u"sin(12");
    const int repaints = box.repaints;
    box.edit.SetFocused(true);
    EXPECT_GT(box.repaints, repaints);
    box.edit.SetReadOnly(true);
    for (std::int32_t code = 0; code < 170; ++code) {
        if (code != KEY_CLEAR) {
            box.edit.Key(code);
        }
    }
    box.edit.Character(8);
    EXPECT_EQ(box.edit.GetLine(), u"sin(12");
    box.edit.Key(KEY_LEFT);
    EXPECT_EQ(box.edit.Line().Cursor(), 2);
    EXPECT_FALSE(box.edit.Undo());
    box.edit.SetFocused(false);
    box.edit.Key(KEY_CLEAR);
    EXPECT_EQ(box.edit.GetLine(), u"");
    box.edit.SetReadOnly(false);
    box.edit.SetFocused(true);
    for (const char16_t c : std::u16string_view(u"12+x\b\b=")) {
        box.edit.Character(c);
    }
    EXPECT_EQ(box.edit.GetLine(), u"12");
}

TEST(MorvaneCalEdit, TheViewFollowsTheWidthAndATapTheTokens) {
    Box box;
    box.edit.SetFocused(true);
    std::vector<int> widths;
    for (int i = 0; i < 12; ++i) {
        box.edit.Key(KEY_1);
        widths.push_back(20);
        box.edit.UpdateView(widths, 16 + 5 * 20, 2);
    }
    EXPECT_EQ(box.edit.Line().FirstVisible(), 7);
    box.edit.UpdateView(widths, 16 + 8 * 20, 2);
    EXPECT_EQ(box.edit.Line().FirstVisible(), 4);
    box.edit.Key(KEY_LEFT_10);
    box.edit.UpdateView(widths, 16 + 8 * 20, 2);
    EXPECT_EQ(box.edit.Line().FirstVisible(), 2);
    EXPECT_EQ(box.edit.Line().LastVisible(), 9);
    box.edit.SetFocused(false);
    box.edit.Tap(kCalEditInset * 2 + 45, 2);
    EXPECT_TRUE(box.edit.Focused());
    EXPECT_EQ(box.edit.Line().Cursor(), 4);
    box.edit.Tap(16 + 8 * 20 - 2, 2);
    EXPECT_EQ(box.edit.Line().Cursor(), 12);
}

TEST(MorvaneCalEdit, ColoursMenuAndFile) {
    Box box;
    EXPECT_EQ(box.edit.FieldColour(), 0xD0D0F0U);
    box.edit.SetFocused(true);
    EXPECT_EQ(box.edit.FieldColour(), 0xF5F5F5U);
    box.edit.SetMarked(true);
    EXPECT_EQ(box.edit.Colours()[DisplayColour::nameToken], 0x0000FFU);
    EXPECT_EQ(box.edit.Colours()[DisplayColour::cursor], display_colors::kCursor);
    box.edit.SetMarked(false);
    EXPECT_EQ(box.edit.Colours(), kDisplayColours);

    FakeClipboard clipboard;
    box.edit.SetLine(u"sin(12", u"411");
    std::vector<int> ids;
    for (const ContextMenuItem& item : box.edit.Menu(clipboard)) {
        ids.push_back(item.id);
        EXPECT_EQ(item.enabled, item.id != MENU_PASTE);
    }
    EXPECT_EQ(ids, (std::vector<int>{1000, 1001, 1002, 1003, 1004}));
    box.edit.RunMenu(MENU_USE_IN_ARITHMETIC, clipboard);
    EXPECT_EQ(clipboard.content, u"sin(12");
    EXPECT_EQ(box.used, 1);
    box.edit.RunMenu(MENU_PASTE, clipboard);
    EXPECT_EQ(box.edit.GetTokenLengths(), u"411411");

    const testing::TemporaryFolder folder;
    ASSERT_TRUE(DisplayFile(folder / "graph.dat").Save(box.edit));
    Box again;
    DisplayFile(folder / "graph.dat").Restore(again.edit);
    EXPECT_EQ(again.edit.GetTokenLengths(), u"411411");
}

}  // namespace
}  // namespace quorix
