#include "engine/result_text.h"

#include "engine/format_fraction.h"
#include "engine/number_locale.h"
#include "engine/radix_conversion.h"
#include "numerics/constants.h"
#include "support/engine_fixture.h"

#include <cmath>
#include <numeric>

namespace quorix {
namespace {

using ResultTextTest = EngineTest;

/// Rows of "value -> text"; an exponent follows its mantissa behind a blank.
void ExpectFormat(const FormatSettings& settings, std::string_view table) {
    for (const auto& [value, text] : Rows(table)) {
        const FormattedValue formatted = FormatValue(Real(value), settings);
        const std::string exponent = Narrow(formatted.exponent);
        EXPECT_EQ(Narrow(formatted.mantissa) + (exponent.empty() ? "" : " " + exponent), text) << value;
    }
}

TEST_F(ResultTextTest, DecimalFormats) {
    ExpectFormat({},
                 "0 -> 0; 1000000000000 -> 1000000000000; "
                 "1000000100000 -> 1.00000010000000000000000000000000 E12; "
                 "5.0000000000001e-13 -> 0.00000000000050000000000001");
    ExpectFormat({.digits = 4}, "-1e13 -> -1.0000 E13; 4e-13 -> 4.0000 E-13");
    ExpectFormat({.digits = 2}, "123456.789 -> 123457; -0.00001 -> 0");  // Integer digits are never lost.
    ExpectFormat({.digits = 5}, "999999.9 -> 999999.9");
    ExpectFormat({.digits = 0}, "3.14159 -> 3");
    ExpectFormat({.formatId = FORMAT_SCI, .digits = 2}, "0 -> 0.00 E0");
    ExpectFormat({.formatId = FORMAT_FIX, .fixedDecimals = 2}, "2.999 -> 3.00; -0.004 -> 0.00");
    ExpectFormat({.formatId = FORMAT_FIX, .fixedDecimals = 0}, "2.5 -> 3; -0.4 -> 0; 5 -> 5");
    ExpectFormat({.formatId = FORMAT_FIX, .fixedDecimals = 1}, "-9.96 -> -10.0");
    ExpectFormat({.formatId = FORMAT_FIX, .digits = 2, .fixedDecimals = 2}, "1e13 -> 1.00 E13");
    // While it is typed a number keeps the decimals that were typed.
    ExpectFormat({.typedFractionDigits = 0}, "1 -> 1.");
    ExpectFormat({.typedFractionDigits = 3}, "1.5 -> 1.500");
    ExpectFormat({.typedFractionDigits = 2}, "1.555 -> 1.555");
    QReal limit;
    etoq(5e-13, limit);
    EXPECT_EQ(FormatValue(limit, {}).exponent, u"");
    QReal negativeZero;
    qneg(negativeZero);
    EXPECT_EQ(TextOf(negativeZero), "0");
    EXPECT_EQ(Evaluate("200/3"), "66.6666666666666666666666666666667");
}

TEST_F(ResultTextTest, PlainFormNeverHasAnExponent) {
    EXPECT_EQ(Narrow(FormatValuePlain(Real("1e13"), {})), "10000000000000");
    EXPECT_EQ(Narrow(FormatValuePlain(Real("-1.5e-20"), {})), "-0.000000000000000000015");
    EXPECT_EQ(Narrow(FormatValuePlain(Real("1e40"), {})), "1" + std::string(40, '0'));
    EXPECT_EQ(Narrow(FormatValuePlain(Real("-25e119"), {})), "-25" + std::string(119, '0'));
    EXPECT_EQ(FormatValuePlain(Real("1e5000"), {}).size(), 5001U);
    EXPECT_EQ(Narrow(FormatValuePlain(Real("7"), {.formatId = FORMAT_FIX, .fixedDecimals = 2})), "7.00");
}

TEST_F(ResultTextTest, OtherRadicesArePaddedToTheWord) {
    const struct {
        std::string_view value;
        std::int32_t radixId, wordId;
        int wordSize;
        std::string_view text;
    } rows[] = {{"255", RADIX_HEX, WORD_8, 8, "FF"},       {"256", RADIX_HEX, WORD_8, 8, "00"},
                {"5", RADIX_BIN, WORD_8, 8, "00000101"},   {"8", RADIX_OCT, WORD_8, 8, "010"},
                {"8", RADIX_OCT, WORD_16, 16, "000010"},   {"8", RADIX_OCT, WORD_32, 32, "00000000010"},
                {"-1", RADIX_HEX, WORD_16, 16, "FFFF"},    {"-2.7", RADIX_HEX, WORD_32, 32, "FFFFFFFE"},
                {"3.9", RADIX_BIN, WORD_8, 8, "00000011"}, {"1e20", RADIX_HEX, WORD_32, 32, "FFFFFFFF"},
                {"1e400", RADIX_HEX, WORD_16, 16, "FFFF"}, {"-1e20", RADIX_HEX, WORD_32, 32, "80000000"},
                {"1000", RADIX_HEX, WORD_16, 8, "3E8"},  // The identifier masks, the word size pads.
                {"10", RADIX_HEX, WORD_8, 32, "0000000A"}};
    for (const auto& row : rows) {
        calcContext().wordSize = row.wordSize;
        const FormattedValue formatted = FormatValue(Real(row.value), {row.radixId, row.wordId, FORMAT_SCI});
        EXPECT_EQ(Narrow(formatted.mantissa), row.text) << row.value;
        EXPECT_TRUE(formatted.exponent.empty());
    }
}

TEST_F(ResultTextTest, SeparatorsFollowTheLocale) {
    const struct {
        std::string_view text;
        std::string_view european, english;
    } rows[] = {{"1234567.89", "1.234.567¸89", "1¸234¸567.89"},
                {"-1234", "-1.234", "-1¸234"},
                {"-123", "-123", "-123"},
                {"\u2212123456", "\u2212123.456", "\u2212123¸456"},
                {"123", "123", "123"},
                {"0.123456", "0¸123456", "0.123456"},
                {" 123456.5", "123.456¸5", "123¸456.5"},
                {" 123", "123", "123"},
                {"1.2345E6", "1¸2345E6", "1.2345E6"},
                {"Syntax error", "Syntax error", "Syntax error"},
                {"12345i", "12345i", "12345i"},
                {"", "", ""}};
    for (const auto& row : rows) {
        std::u16string text = Wide(row.text);
        ApplySeparators(text, u"European", RADIX_DEC);
        EXPECT_EQ(Narrow(text), row.european) << row.text;
        text = Wide(row.text);
        ApplySeparators(text, u"English (US)", RADIX_DEC);
        EXPECT_EQ(Narrow(text), row.english) << row.text;
        ApplySeparators(text, u"English (UK)", RADIX_DEC);  // Separators of before go first.
        EXPECT_EQ(Narrow(text), row.english) << row.text;
    }
    std::u16string binary = u"11110000";
    ApplySeparators(binary, u"European", RADIX_BIN);
    EXPECT_EQ(binary, u"11110000");
}

TEST_F(ResultTextTest, FractionsOfSmallDenominatorsComeBack) {
    for (const auto& [value, fraction] :
         Rows("0.75 -> 3/4; 0 -> 0; -0 -> 0; 0.999999999999999 -> 1; -3.5 -> -3 1/2; 0.0001 -> 0; "
              "0.0008 -> 1/1000; 3.141592653589793 -> 3 16/113")) {
        EXPECT_EQ(Narrow(FormatFraction(std::stod(value), 1000)), fraction) << value;
    }
    EXPECT_EQ(FormatFraction(M_PI, 1e6), u"3 51669/364913");
    EXPECT_EQ(FormatFraction(1e300, 1000).size(), 301U);
    for (int denominator = 2; denominator <= 1000; denominator += 7) {
        for (int numerator = 1; numerator < denominator; ++numerator) {
            if (std::gcd(numerator, denominator) != 1) continue;
            EXPECT_EQ(Narrow(FormatFraction(double(numerator) / denominator, 1000)),
                      std::to_string(numerator) + "/" + std::to_string(denominator));
        }
    }
    EXPECT_EQ(FractionDenominatorLimit(1), 1e6);
    EXPECT_EQ(FractionDenominatorLimit(9), 1e3);
}

TEST_F(ResultTextTest, ExpressionsMoveBetweenRadices) {
    const struct {
        int from, to, wordSize;
        std::string_view text, converted;
    } rows[] = {{10, 16, 8, "255 + 1", "FF+1"},
                {10, 16, 8, "256", "0"},
                {10, 2, 8, "5 and 3", "101 and 11"},
                {16, 10, 32, "FFFFFFFF", "-1"},
                {10, 16, 32, "4294967295", "FFFFFFFF"},
                {16, 10, 16, "[VA]*A and abs(B)", "[VA]*10 and abs(11)"},
                {16, 10, 16, "BA", "186"},
                {10, 16, 32, "1E5", "186A0"},
                {10, 16, 32, "2pi", "2pi"},
                {8, 2, 8, "17 shl 2", "1111 shl 10"},
                {10, 8, 8, "(8 * 9)", "(10*11)"}};
    for (const auto& row : rows) {
        calcContext().wordSize = row.wordSize;
        const auto converted = ConvertExpressionRadix(Wide(row.text), row.from, row.to);
        ASSERT_TRUE(converted) << row.text;
        EXPECT_EQ(Narrow(*converted), row.converted) << row.text;
    }
    EXPECT_FALSE(ConvertExpressionRadix(u"", 10, 16));
    EXPECT_EQ(calcContext().calcError, -40);
}

TEST_F(ResultTextTest, TheResultRowShowsValueOrMessage) {
    struct Row {
        std::string_view expression;
        ResultSettings settings;
        std::string_view text;
        std::int32_t formatId;
    };
    const Row rows[] = {{"10000/3", {.digits = 5}, "3¸333.33", FORMAT_NORM},
                        {"1e15", {.digits = 3}, "1.000E15", FORMAT_SCI},
                        {"1234.5", {.formatId = FORMAT_SCI, .digits = 3}, "1.234E3", FORMAT_SCI},
                        {"1234.5", {.formatId = FORMAT_FIX, .fixDigits = 2}, "1¸234.50", FORMAT_FIX},
                        {"1234.5",
                         {.formatId = FORMAT_FIX, .fixDigits = 2, .numberLocale = u"European"},
                         "1.234¸50",
                         FORMAT_FIX},
                        {"12345+1/2", {.formatId = FORMAT_FRAC}, "12345 1/2", FORMAT_FRAC},
                        {"1e20", {.formatId = FORMAT_FRAC, .digits = 2}, "1.00E20", FORMAT_SCI},
                        {"1+2*i", {}, "1.0000E0+2.0000E0i", FORMAT_SCI},
                        {"1-2*i", {.numberLocale = u"European"}, "1¸0000E0-2¸0000E0i", FORMAT_SCI},
                        {"3+i", {.formatId = FORMAT_FIX}, "3.0000E0+i", FORMAT_SCI},
                        {"i", {}, "i", FORMAT_SCI},
                        {"-i", {}, "-1.0000E0i", FORMAT_SCI},
                        {"7+i", {.radixId = RADIX_BIN, .formatId = FORMAT_FIX}, "00000111", FORMAT_FIX},
                        {"1/0", {}, "Invalid parameter(s)", FORMAT_NORM},
                        {"1+", {.radixId = RADIX_HEX}, "Syntax error", FORMAT_NORM}};
    for (const Row& row : rows) {
        ClearCalcError();
        const CalcValue value = EvaluateExpression(Wide(row.expression), EvaluationMode::number, 10);
        const ResultText result = ComposeResult(value, row.settings);
        EXPECT_EQ(Narrow(result.text), row.text) << row.expression;
        EXPECT_EQ(result.formatId, row.formatId) << row.expression;
    }
}

}  // namespace
}  // namespace quorix
