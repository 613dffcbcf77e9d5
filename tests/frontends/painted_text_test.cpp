// What the painters of the display draw, decided without a window.

#include <gtest/gtest.h>

#include "frontends/result_fit.h"
#include "frontends/token_colors.h"

namespace quorix {
namespace {

namespace colors = display_colors;

TEST(ColorsOfLine, TellTokenClassesApart) {
    const std::u16string line = u"12\u00D7sin(3)+[ans]\u2212(-4,5";
    const std::vector<Rgb> found = ColorsOfLine(line, u"111411151211");
    const struct {
        char16_t sign;
        Rgb color;
    } expected[] = {
        {u'1', colors::kDigitToken},         {u'\u00D7', colors::kOperatorToken},
        {u's', colors::kNameToken},          {u')', colors::kParenthesisToken},
        {u'+', colors::kOperatorToken},      {u'[', colors::kNameToken},
        {u'\u2212', colors::kOperatorToken}, {u'-', colors::kNameToken},
        {u',', colors::kParenthesisToken},
    };
    ASSERT_EQ(found.size(), line.size());
    for (const auto& row : expected) {
        EXPECT_EQ(found[line.find(row.sign)], row.color) << static_cast<int>(row.sign);
    }
    EXPECT_EQ(ColorsOfLine(u"-", u"1").front(), colors::kSignToken);
}

TEST(ColorsOfLine, RecolourTheDegreeOfARoot) {
    EXPECT_EQ(ColorsOfLine(u"2+1.5\u221A(8", u"1111121"),
              (std::vector<Rgb>{colors::kDigitToken, colors::kOperatorToken, colors::kDegreeToken,
                                colors::kDegreeToken, colors::kDegreeToken, colors::kNameToken,
                                colors::kNameToken, colors::kDigitToken}));
    EXPECT_EQ(ColorsOfLine(u"x\u221A(", u"12").front(), colors::kNameToken);
}

TEST(ColorsOfLine, SurvivesLengthsThatDoNotAddUp) {
    EXPECT_EQ(ColorsOfLine(u"123", u"").size(), 3U);
    EXPECT_EQ(ColorsOfLine(u"123", u"9").size(), 3U);
    EXPECT_EQ(ColorsOfLine(u"123", u"0x2").size(), 3U);
    EXPECT_TRUE(ColorsOfLine(u"", u"111").empty());
}

TEST(CutToFit, RemovesMantissaDigitsAndKeepsTheExponent) {
    const auto shorterThan = [](std::size_t size) {
        return [size](std::u16string_view text) { return text.size() < size; };
    };
    EXPECT_EQ(CutToFit(u"1.23456E-10", shorterThan(10)), u"1.234E-10");
    EXPECT_EQ(CutToFit(u"1.23456", shorterThan(5)), u"1.23");
    EXPECT_EQ(CutToFit(u"1.23", shorterThan(5)), u"1.23");
    EXPECT_EQ(CutToFit(u"E10", shorterThan(3)), u"E1");
    EXPECT_EQ(CutToFit(u"12E5", shorterThan(1)), u"");
}

}  // namespace
}  // namespace quorix
