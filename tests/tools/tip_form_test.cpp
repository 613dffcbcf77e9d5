#include "tools/tip_form.h"

#include <gtest/gtest.h>

#include "engine/number_locale.h"

namespace quorix {
namespace {

constexpr std::u16string_view kUs = u"English (US)";

void Type(TipForm& form, std::u16string_view keys) {
    for (const char16_t key : keys) {
        form.Key(key);
    }
}

TEST(TipForm, SharesTheBill) {
    struct Row {
        std::u16string_view locale, keys;
        std::u16string tip, share;
    };
    const std::u16string comma(1, kDisplayComma);
    const Row rows[] = {
        {kUs, u"4\t15\t100", u"15$", u"28.75$"},
        {kUs, u"3\t0\t100", u"0$", u"33.3333333$"},
        {kUs, u"3\t\t100", u"0$", u"33.3333333$"},
        {kUs, u"2\t10\t1000000", u"100" + comma + u"000$", u"550" + comma + u"000$"},
        {kUs, u"1\t100\t12345678912345", u"1.23456789e+13$", u"2.46913578e+13$"},
        {u"European", u"2\t12,5\t1234.5", u"154" + comma + u"3125$", u"694" + comma + u"40625$"},
        {kUs, u"0\t15\t100", u"", u""},
        {kUs, u"\t15\t100", u"", u""},
        {kUs, u"4\t15\t0", u"", u""},
        {kUs, u"4\t15\t.", u"", u""},
    };
    for (const Row& row : rows) {
        TipForm form(row.locale);
        Type(form, row.keys);
        EXPECT_EQ(form.ResultLines()[0], u"Tip Amount  = " + row.tip);
        EXPECT_EQ(form.ResultLines()[1], u"Total/Person = " + row.share);
    }
}

TEST(TipForm, KeepsFieldsWithinTheirLimits) {
    TipForm form(kUs);
    EXPECT_EQ(form.Text(TipForm::PEOPLE), u"P");
    Type(form, u"12345678");
    EXPECT_EQ(form.Text(TipForm::PEOPLE), u"12\u00B8345\u00B8678P");
    EXPECT_FALSE(form.Key(u'9'));
    EXPECT_FALSE(form.Key(u'.'));
    EXPECT_TRUE(form.Key(8));
    EXPECT_EQ(form.Text(TipForm::PEOPLE), u"1\u00B8234\u00B8567P");
    Type(form, u"\t1.25.5");
    EXPECT_EQ(form.Text(TipForm::PERCENT), u"1.255%");
    Type(form, u"\t12345678901234.");
    EXPECT_EQ(form.Text(TipForm::BILL), u"12\u00B8345\u00B8678\u00B8901\u00B8234.$");
    EXPECT_FALSE(form.Key(u'5'));
    EXPECT_FALSE(form.Key(u'x'));
}

TEST(TipForm, ClearsAndCycles) {
    TipForm form(kUs);
    Type(form, u"4\t15\t100\t");
    EXPECT_EQ(form.Active(), TipForm::PEOPLE);
    EXPECT_EQ(form.ResultLines()[1], u"Total/Person = 28.75$");
    form.Key(u'C');
    EXPECT_EQ(form.Text(TipForm::PEOPLE), u"P");
    EXPECT_EQ(form.Text(TipForm::BILL), u"100$");
    EXPECT_EQ(form.ResultLines()[1], u"Total/Person = ");
    Type(form, u"5\b\b\b2");
    EXPECT_EQ(form.ResultLines()[1], u"Total/Person = 57.5$");
    form.Key(27);
    EXPECT_EQ(form.ResultLines()[0], u"Tip Amount  = ");
}

TEST(TipForm, ChangesItsSignsWithTheLocale) {
    TipForm form(kUs);
    Type(form, u"2\t12.5\t1234.5");
    form.SetNumberLocale(u"European");
    EXPECT_EQ(form.Text(TipForm::BILL), u"1.234\u00B85$");
    EXPECT_EQ(form.ResultLines()[1], u"Total/Person = 694\u00B840625$");
    form.SetNumberLocale(kUs);
    EXPECT_EQ(form.Text(TipForm::BILL), u"1\u00B8234.5$");
    EXPECT_EQ(form.Text(TipForm::PERCENT), u"12.5%");
}

}  // namespace
}  // namespace quorix
