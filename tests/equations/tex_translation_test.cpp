#include "equations/tex_translation.h"

#include <gtest/gtest.h>

#include "equations/tex_for_copy.h"

#include <algorithm>
#include <vector>

#include "engine/variable_store.h"
#include "numerics/qcore.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

struct Row {
    const char* engineText;
    const char* tex;
};

void ExpectRows(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(ExpressionToTeX(FromUtf8(row.engineText)), row.tex) << row.engineText;
    }
}

TEST(TexTranslation, OperatorsNestAsTheyAreCalculated) {
    ExpectRows({
        {"1/2+1/3", R"(\frac{1}{2}+\frac{1}{3})"},
        {"2/3/4", R"(\frac{\frac{2}{3}}{4})"},
        {"a^b/c", R"(\frac{{a}^{b}}{c})"},
        {"2^3^2", R"({2}^{{3}^{2}})"},
        {"5!^2*x", R"({5!}^{2}*x)"},
        {"2^(3^10/4)", R"({2}^{\left( \frac{{3}^{10}}{4} \right)})"},
        {"7/4 mod 3", R"(\frac{7}{4 }mod 3)"},
        {"sin(t)/(2t)%", R"(\frac{sin\left( t \right)}{\left( 2t \right)\%})"},
        {"gcd(1,2/3)", R"(gcd\left( 1,\frac{2}{3} \right))"},
        {"2^3 root 4^5", R"({2}^{3 }root{ 4}^{5})"},
        {"sin 2^3", R"({\left( sin 2 \right)}^{3})"},
        {"2 exp 3^2", R"({\left( 2 exp 3 \right)}^{2})"},
        {"sin(2)^3", R"({sin\left( 2 \right)}^{3})"},
        {"abs(3)/(-2)", R"(abs\frac{\left( 3 \right)}{\left( -2 \right)})"},
        {"1/abs(2)+5", R"(\frac{1}{abs\left( 2 \right)+5})"},
        {"sqrt 2.5+sqrt (9)!", R"(sqrt\left( 2.5 \right)+sqrt\left( \left( 9 \right)! \right))"},
        {"sqrt sin RT(2,9)%", R"(sqrt\left( sin \sqrt{9}\% \right))"},
    });
}

TEST(TexTranslation, CallsTakeTheirMathematicalForm) {
    ExpectRows({
        {"RT(2,9)/RT(3,x)", R"(\frac{\sqrt{9}}{\sqrt[3]{x}})"},
        {"fnInt(x^2/3,x,0,1/2)", R"(\int_{0}^{\frac{1}{2}}{\left(\frac{{x}^{2}}{3}\right)}\hspace1dx)"},
        {"fnDeriv(x,x,1)", R"(\left(x\right)^{'}_{x=1})"},
        {"fnEval(x,x,1)", R"(\left(x\right)_{x=1})"},
        {"fnRoot(x,x,-1,1)", R"(\left(x=0\right)_{-1<=x<=1})"},
        {"fnProduct(fnSum(k,k,1,n,2),n,1,5)",
         R"(\displaystyle\prod_{n=1}^{5}{\left(\displaystyle\sum_{k=1,\Delta=2}^{n}{\left(k\right)}\right)})"},
        {"ncr(5,2)+npr(10,12)", R"(C^{5}_2+P^{10}_{12})"},
        {"gcd(RT(2,3),lcm(4,6))", R"(gcd\left( \sqrt{3},lcm\left( 4,6 \right) \right))"},
        {"sum(3)", R"(\displaystyle\sum_{n=1}^{N}{X[n]})"},
        {"sum()^2", R"({\left(\displaystyle\sum_{n=1}^{N}{X[n]}\right)}^{2})"},
        {"ncr(5,2)^2*RT(3,x)^2", R"({\left(C^{5}_2\right)}^{2}*{\sqrt[3]{x}}^{2})"},
        {"fnProduct(k,k,1,3)*2", R"(\left(\displaystyle\prod_{k=1}^{3}{\left(k\right)}\right)*2)"},
        {"fnInt(x,x,0,1)*2", R"(\int_{0}^{1}{\left(x\right)}\hspace1dx*2)"},
        {"ssd()",
         R"(\displaystyle\sqrt{\frac{n*\sum_{n=1}^{N}{X[n]^2}-\left(\sum_{n=1}^{N}{X[n]}\right)^2}{n*\left( n-1 \right)}})"},
        {R"(\sum_{x}+sum)", R"(\sum_{x}+sum)"},
        {"RT(3)+rank(2)", R"(RT\left( 3 \right)+rank\left( 2 \right))"},
    });
}

TEST(TexTranslation, HalfTypedCallsBecomePlaceholders) {
    ExpectRows({
        {"1+RT(", R"(1+\sqrt[\left(?\right)]{\left(?\right)})"},
        {"fnSum(k/2,k", R"(\sum\left(?\right))"},
        {"gcd(1+RT(2,", R"(gcd\left(?\right))"},
        {"avg(1", R"(\displaystyle\frac{\sum_{n=1}^{N}{X[n]}}{N})"},
        {"3+pmt(1", "3+"},
        {"1/ncr(5", R"(\frac{1}{C\left(?\right)})"},
        {"(1+2", R"(\left( 1+2)"},
    });
}

TEST(TexTranslation, VariablesShowTheirValue) {
    QComplex number;
    etoq(-2.5, number.re);
    SetVariableNumber(SLOT_FIRST_USER, number);
    etoq(2, number.re);
    etoq(-3, number.im);
    SetVariableComplex(SLOT_FIRST_USER + 2, number);
    const double elements[] = {1, 0.33333333, -0.00001, 40};
    SetVariableMatrix(SLOT_FIRST_USER + 1, 2, 2, elements);
    ExpectRows({
        {"[VA]+1", "-2.5+1"},
        {"[VA] mod 2", R"(\left( -2.5 \right) mod 2)"},
        {"[VC]*2+sin[VC]", R"(\left( 2-3i \right)*2+sin\left( 2-3i \right))"},
        {"[VC]-1", "2-3i-1"},
        {"fnSum([VA]*VC,VA,0,3)", R"(\displaystyle\sum_{VA=0}^{3}{\left([VA]*\left( 2-3i \right)\right)})"},
        {"3-[VA]^2", R"(3-{\left( -2.5 \right)}^{2})"},
        {"inv([vb])",
         R"(inv\left( \left[\begin{matrix} 1 & 0.3333 \\ 0 & 40 \\ \end{matrix}\right] \right))"},
    });
    number = {};
    asctoq("1E400", number.re);
    SetVariableNumber(SLOT_FIRST_USER, number);
    EXPECT_EQ(ExpressionToTeX(u"[VA]"), "1.0000E400");
    ClearAllVariables();
}

TEST(TexTranslation, LongAndDeepTextsEndInAMessage) {
    EXPECT_EQ(ExpressionToTeX(std::u16string(4095, u'7')), std::string(4095, '7'));
    EXPECT_EQ(ExpressionToTeX(std::u16string(4096, u'7')), R"(\text{Overlength!})");
    const std::vector<double> elements(2000, 1.25);
    SetVariableMatrix(SLOT_LIST, 2000, 1, elements);
    for (const std::u16string_view unit : {u"1/", u"2^", u"1/(", u"2^(", u"RT(2,", u"(", u"[LIST]"}) {
        std::u16string text;
        while (text.size() + unit.size() < 4000) text += unit;
        text += std::u16string(static_cast<std::size_t>(std::ranges::count(text, u'(')), u')');
        text.resize(std::min<std::size_t>(text.size(), 4095));
        EXPECT_LE(ExpressionToTeX(text).size(), kTexBufferSize) << ToUtf8(unit);
    }
    ClearAllVariables();
}

TEST(TexTranslation, CopiesUseTheCommandsOfTexSystems) {
    const std::pair<const char16_t*, const char*> kCases[] = {
        {u"sin(30)^2+pi", "{\\sin \\left( 30 \\right)}^{2}+\\pi "},
        {u"sqrt(2*x)", "\\sqrt{ 2\\cdot x }"},
        {u"3exp(-12)", "3\\cdot 10^{ -12 }"},
        {u"2exp5", "2\\cdot 10^{5}"},
        {u"2 exp e+2 exp 3!", "2 \\operatorname{exp} e+2 \\operatorname{exp} 3!"},
        {u"fnInt(x,x,0,1)", "\\int_{0}^{1}{\\left(x\\right)}\\,d x"},
        {u"asinh(1)-atan(x)", "\\operatorname{asinh}\\left( 1 \\right)-\\arctan \\left( x \\right)"},
        {u"sqrt(sqrt(2", "\\sqrt{}\\left( \\sqrt{}\\left( 2"},
    };
    for (const auto& [line, tex] : kCases) {
        EXPECT_EQ(TexForCopy(line), tex);
    }
}

}  // namespace
}  // namespace quorix
