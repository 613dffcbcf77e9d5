#include "frontends/token_line.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/utf8.h"

namespace quorix {
namespace {

TEST(TokenLine, InsertsAtTheCursorBetweenTokens) {
    TokenLine line;
    line.InsertToken(0, u"sin(");
    line.InsertToken(1, u")");
    line.MoveLeft(1);
    line.InsertToken(line.Cursor(), u"pi");
    EXPECT_EQ(line.Text(), u"sin(pi)");
    EXPECT_EQ(line.TokenLengths(), u"421");
    EXPECT_EQ(line.Cursor(), 2);
    line.InsertCharacters(u"+1");
    EXPECT_EQ(line.Text(), u"sin(pi+1)");
    EXPECT_EQ(line.TokenLengths(), u"42111");
}

TEST(TokenLine, RestoredLengthsThatDoNotFitAreCutAnew) {
    TokenLine line;
    line.Set(u"sin(3)", u"411");
    EXPECT_EQ(line.TokenCount(), 3);
    for (const char16_t* damaged : {u"41", u"41111", u"501", u"4:1", u""}) {
        line.Set(u"sin(3)", damaged);
        EXPECT_EQ(line.TokenLengths(), u"111111") << ToUtf8(damaged);
    }
}

TEST(TokenLine, AnOverlongLineStopsGrowing) {
    TokenLine line;
    line.InsertCharacters(std::u16string(2 * kLongestLine, u'1'));
    EXPECT_EQ(line.Text().size(), kLongestLine);
    line.InsertToken(line.Cursor(), u"2");
    EXPECT_EQ(line.Text().size(), kLongestLine);
    EXPECT_EQ(line.TokenLengths().size(), kLongestLine);
}

TEST(TokenLine, CursorAndViewStayInRangeUnderAnyEdits) {
    std::mt19937 random(7);
    TokenLine line;
    for (int step = 0; step < 20000; ++step) {
        switch (random() % 7) {
            case 0: line.InsertToken(line.Cursor(), u"asin("); break;
            case 1: line.InsertToken(line.Cursor(), u"1"); break;
            case 2: line.DeleteToken(line.Cursor()); break;
            case 3: line.MoveLeft(static_cast<int>(random() % 12)); break;
            case 4: line.MoveRight(static_cast<int>(random() % 12)); break;
            case 5: line.InsertCharacters(u"12"); break;
            default: line.SetCursor(static_cast<int>(random() % 50)); break;
        }
        if (line.TokenCount() > 200) {
            line.Clear();
        }
        if (random() % 2 == 0) {
            std::vector<int> widths;
            for (int k = 0; k < line.TokenCount(); ++k) {
                widths.push_back(static_cast<int>(line.Token(k).size()) * 9);
            }
            line.UpdateView(widths, 190);
            ASSERT_GE(line.FirstVisible(), 0);
            ASSERT_LT(line.LastVisible(), std::max(1, line.TokenCount()));
            ASSERT_LE(line.FirstVisible(), line.Cursor());
            ASSERT_LE(line.Cursor(), line.LastVisible() + 1);
        }
        ASSERT_GE(line.Cursor(), 0);
        ASSERT_LE(line.Cursor(), line.TokenCount());
        ASSERT_EQ(line.OffsetOf(line.TokenCount()), line.Text().size());
    }
}

}  // namespace
}  // namespace quorix
