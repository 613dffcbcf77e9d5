#include "equations/equation_page.h"

#include <gtest/gtest.h>

#include "platform/utf8.h"

namespace quorix {
namespace {

struct Row {
    const char* line;
    const char* text;
};

TEST(EquationPage, PolynomialAndLinearDisplay) {
    for (const Row& row :
         {Row{"1 -3 2", "X^2-(3)X+(2)*=*0"}, Row{"-1 0 2/2 1", "-X^3+X+(1)*=*0"}, Row{"5", "(5)X*=*?"},
          Row{" 2   0 0 ", "(2)X^2*=*0"}, Row{"1-3 1-3 1-3", "(1-3)X^2+(1-3)X+(1-3)*=*0"},
          Row{"-1/2 sqrt(2) -1/3", "(-1/2)X^2+(sqrt(2))X-(1/3)*=*0"}}) {
        EXPECT_EQ(ToUtf8(PolynomialDisplay(FromUtf8(row.line))), row.text) << row.line;
    }
    EXPECT_EQ(SimultaneousDisplay(u"2 1 -1 0 5"), u"(2)X_1+X_2-X_3*=*(5)");
}

TEST(EquationPage, ComposedText) {
    EXPECT_EQ(ComposeEquationPage(u"", {}), "{aX}^{4}+{bX}^{3}+{cX}^{2}+dX+e=0");
    EXPECT_EQ(ComposeEquationPage(u"1 -1/2 2-3*(1+1)", {"X_1=1", "Cannot solved"}),
              R"({X}^{2}-\frac{1}{2}X+(2-3*(1+1))=0\\X_1=1\\Cannot solved)");
    EXPECT_EQ(ComposeEquationPage(u"gcd(4,6) (2*3)! 5/(2*3)", {}),
              R"({gcd(4,6)X}^{2}+(2*3)!X+\frac{5}{2*3}=0)");
    EXPECT_EQ(ComposeEquationPage(u"(-3) (-2)^2 2*(-3)", {}), R"({-3X}^{2}+{(-2)}^{2}X+2*(-3)=0)");
    EXPECT_EQ(ComposeEquationPage(u"1 2", {R"(\text{This cannot be})"}),
              R"(X+2=0\\\rightarrow\text{This cannot be})");
    EXPECT_EQ(ComposeEquationPage(u"\\text{Hello}", {}), "\\text{Hello}");
    EXPECT_EQ(ComposeEquationPage(std::u16string(4096, u'1'), {}), "\\text{Overlength!}");
    std::u16string fractions;
    while (fractions.size() < 4000) fractions += u"1/3 ";
    EXPECT_EQ(ComposeEquationPage(fractions, {}), "Overlength!");
    EXPECT_EQ(ComposeSimultaneousRow(u"1/2 1 sqrt(2)"), R"(\frac{1}{2}X_1+X_2=\sqrt{2})");
    EXPECT_EQ(ComposeSimultaneousRow(u"  "), "");
}

}  // namespace
}  // namespace quorix
