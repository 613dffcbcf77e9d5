#include <gtest/gtest.h>

#include "engine/identifiers.h"
#include "frontends/categories.h"
#include "frontends/key_panel.h"
#include "frontends/panel_keys.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

constexpr Orientation kOrientations[] = {Orientation::portrait, Orientation::landscape, Orientation::square};

Point CentreOf(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

TEST(Panels, EveryCellIsHitInEveryOrientation) {
    for (const Orientation orientation : kOrientations) {
        for (const int scale : {1, 2}) {
            for (const auto& [panel, count] :
                 {std::pair{Panel::upper, kUpperCellCount}, {Panel::lower, kLowerCellCount}}) {
                for (int cell = 0; cell < count; ++cell) {
                    const PanelCell expected{panel, cell};
                    const Rect rect = CellRect(orientation, expected).Scaled(scale);
                    EXPECT_EQ(CellAt(orientation, scale, CentreOf(rect)), expected) << cell;
                    EXPECT_EQ(CellAt(orientation, scale, {rect.left, rect.top}), expected) << cell;
                    EXPECT_EQ(CellAt(orientation, scale, {rect.right - 1, rect.bottom - 1}), expected)
                        << cell;
                    const Rect client = LayoutOf(orientation).client.Scaled(scale);
                    EXPECT_LE(rect.bottom, client.bottom);
                    EXPECT_LE(rect.right, client.right);
                }
            }
            EXPECT_EQ(CellAt(orientation, scale, {0, 0}).panel, Panel::none);
            EXPECT_EQ(CellAt(orientation, scale, {-5, 100000}).panel, Panel::none);
        }
    }
    // The display covers the empty cells of landscape.
    EXPECT_EQ(CellAt(Orientation::landscape, 1, {100, 40}).panel, Panel::none);
}

TEST(Panels, PadsReadAsPrinted) {
    std::u16string portrait;
    std::u16string landscape;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            portrait += PadCharacterOf(
                CellAt(Orientation::portrait, 1, {3 + 47 * column + 9, 139 + 38 * row + 9}).cell);
        }
    }
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 7; ++column) {
            landscape += PadCharacterOf(
                CellAt(Orientation::landscape, 1, {3 + 45 * column + 9, 106 + 36 * row + 9}).cell);
        }
    }
    EXPECT_EQ(portrait, u"789/C456*M123-R0.~+=");
    EXPECT_EQ(landscape, u"6789CCM2345-*R01.~+/=");
}

/// Keys of cells 2 to 11, plain and orange; -2 stands for a command.
struct PageRow {
    int category;
    std::array<int, 10> plain;
    std::array<int, 10> orange;
};

TEST(Panels, FunctionPagesSendTheirKeys) {
    constexpr int c = -2;
    const PageRow rows[] = {
        {0, {c, 25, 26, 27, 28, 29, 30, 31, 32, 33}, {34, 35, 36, 37, 38, 39, 40, 41, 42, 43}},
        {1, {50, 51, 52, 53, 54, 55, 56, 57, 58, 59}, {50, 60, 61, 62, 63, 64, 65, 66, 67, 131}},
        {2, {c, 69, 70, 71, 72, 73, 74, 75, 76, 77}, {c, 78, 79, 37, 80, 81, 82, 83, 84, 85}},
        {3, {c, c, 86, 87, 88, 89, 90, 91, 92, 93}, {c, c, 86, 94, 95, 96, 97, 98, 99, 100}},
        {4,
         {101, 102, 103, 104, 105, 106, 107, 108, 109, 110},
         {101, 102, 103, 104, 105, 106, 107, 108, 109, 110}},
        {5, {c, c, 111, 112, 113, 114, 115, 116, 117, 118}, {c, c, 111, 112, 113, 114, 115, 116, 117, 118}},
    };
    for (const PageRow& row : rows) {
        for (int cell = 2; cell < 12; ++cell) {
            for (const bool orange : {false, true}) {
                const int expected = (orange ? row.orange : row.plain)[static_cast<std::size_t>(cell - 2)];
                const PanelAction action = UpperAction(row.category, cell, orange, RADIX_HEX);
                const int actual = action.command != PanelCommand::none ? c : action.key;
                EXPECT_EQ(actual, expected) << row.category << " cell " << cell << " orange " << orange;
            }
        }
        EXPECT_EQ(UpperAction(row.category, CELL_CHOOSER, false, RADIX_DEC).command, PanelCommand::chooser);
        for (int cell = CELL_FIRST_GENERAL; cell < kUpperCellCount; ++cell) {
            EXPECT_EQ(UpperAction(row.category, cell, true, RADIX_DEC).key, cell + 32);
        }
    }
    EXPECT_EQ(UpperAction(CATEGORY_TRIGONOMETRY, CELL_SHIFT, false, RADIX_DEC).key, KEY_SHIFT);
    EXPECT_EQ(UpperAction(CATEGORY_MATRIX, CELL_SHIFT, false, RADIX_DEC).command, PanelCommand::editMatrix);
    EXPECT_EQ(UpperAction(CATEGORY_FINANCE, CELL_SHIFT, false, RADIX_DEC).command,
              PanelCommand::timeValueDialog);
    EXPECT_EQ(UpperAction(CATEGORY_BASE_CONVERSION, 6, false, RADIX_OCT), PanelAction{});
    EXPECT_EQ(UpperAction(CATEGORY_TIP, 5, false, RADIX_DEC), PanelAction{});
}

TEST(Panels, DigitsBeyondTheBaseAreDead) {
    const struct {
        std::int32_t radix;
        std::u16string_view alive;
    } rows[] = {
        {RADIX_BIN, u"01"}, {RADIX_OCT, u"01234567"}, {RADIX_DEC, u"0123456789"}, {RADIX_HEX, u"0123456789"}};
    for (const auto& [radix, alive] : rows) {
        for (const char16_t digit : std::u16string_view(u"0123456789")) {
            EXPECT_EQ(LowerKeyLives(KeyOfCharacter(digit, radix), radix, 2), alive.find(digit) != alive.npos)
                << radix;
        }
        EXPECT_FALSE(LowerKeyLives(KEY_POINT, radix, 2));
        EXPECT_TRUE(LowerKeyLives(KEY_PLUS, radix, 2));
    }
    EXPECT_TRUE(LowerKeyLives(KEY_POINT, RADIX_DEC, 0));
}

TEST(Panels, TypedCharactersBecomeKeys) {
    const struct {
        char16_t character;
        std::int32_t key;
    } rows[] = {
        {u'7', 0},  {u'/', 3},  {27, 4},    {u'*', 8},  {u'M', 9},      {u'-', 13}, {u'R', 14}, {u'.', 16},
        {u'_', 17}, {u'+', 18}, {u'=', 19}, {u'(', 44}, {u')', 45},     {u',', 46}, {u'x', 34}, {u'^', 30},
        {u'!', 33}, {u'%', 43}, {u'C', -1}, {u'a', -1}, {u'\u00D7', 8}, {u'q', -1},
    };
    for (const auto& [character, key] : rows) {
        EXPECT_EQ(KeyOfCharacter(character, RADIX_DEC), key) << ToUtf8(std::u16string(1, character));
    }
    EXPECT_EQ(KeyOfCharacter(u'C', RADIX_HEX), KEY_HEX_C);
    EXPECT_EQ(KeyOfCharacter(u'f', RADIX_HEX), KEY_HEX_F);
}

}  // namespace
}  // namespace quorix
