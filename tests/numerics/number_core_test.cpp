// What users of the core rely on: known values, edges of the range, reports, text. MPFR judges where it can.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "support/mpfr_number.h"
#include "support/qreal_printer.h"
#include "support/qreal_random.h"

namespace quorix {
namespace {

std::string debugText;

class NumberCore : public testing::Test {
  protected:
    void SetUp() override {
        ClearNumericError();
        debugText.clear();
        SetDebugStream([](std::string_view line) { debugText += line; });
        qinfin(infinity_);
    }
    void TearDown() override { SetDebugStream(nullptr); }

    QReal infinity_;
};

QReal Sum(const QReal& a, const QReal& b) {
    QReal c;
    qadd(a, b, c);
    return c;
}

TEST_F(NumberCore, LayoutIsTheDocumentedOne) {
    EXPECT_EQ(constants::kOne.words[1], 16640);
    EXPECT_EQ(constants::kOne.words[3], 0x8000);
    EXPECT_EQ(Sum(constants::kHalf, constants::kHalf), constants::kOne);
    QReal negative = constants::kTen;
    qneg(negative);
    EXPECT_EQ(negative.words[0], 65535);
    EXPECT_EQ(Q("-10"), negative);
    EXPECT_EQ(infinity_.words[1], 33280);
    EXPECT_EQ(infinity_.words[2], 0);
    EXPECT_EQ(infinity_.words[23], 65535);
}

TEST_F(NumberCore, ConstantsAreTheNearestOf336Bits) {
    using namespace constants;
    MpfrNumber x(700), y(700);
    mpfr_const_pi(x.Get(), MPFR_RNDN);
    EXPECT_EQ(MpfrNumber(kPi).ToQReal(), kPi);
    EXPECT_EQ(x.ToQReal(), kPi);
    mpfr_set_prec(x.Get(), 700);
    mpfr_const_euler(x.Get(), MPFR_RNDN);
    EXPECT_EQ(x.ToQReal(), kEuler);
    mpfr_set_prec(x.Get(), 700);
    mpfr_const_pi(x.Get(), MPFR_RNDN);
    mpfr_rec_sqrt(x.Get(), x.Get(), MPFR_RNDN);
    mpfr_mul_ui(x.Get(), x.Get(), 2, MPFR_RNDN);
    EXPECT_EQ(x.ToQReal(), kTwoOverSqrtPi);
    for (const auto& [offset, constant] :
         {std::pair(0, &kSqrt2), std::pair(1, &kSqrt2Plus1), std::pair(-1, &kSqrt2Minus1)}) {
        mpfr_set_prec(x.Get(), 700);
        mpfr_sqrt_ui(x.Get(), 2, MPFR_RNDN);
        mpfr_add_si(x.Get(), x.Get(), offset, MPFR_RNDN);
        EXPECT_EQ(x.ToQReal(), *constant) << offset;
    }
    mpfr_set_prec(x.Get(), 700);
    mpfr_const_log2(x.Get(), MPFR_RNDN);
    mpfr_sub(y.Get(), x.Get(), MpfrNumber(kLn2High).Get(), MPFR_RNDN);
    EXPECT_EQ(y.ToQReal(), kLn2Low);
    EXPECT_EQ(x.ToQReal(), kLn2);
    EXPECT_EQ(Q("0.69314718036912381649017333984375"), kLn2High);
    for (std::size_t i = 0; i < kPowersOfTen.size(); ++i) {
        mpfr_set_prec(x.Get(), 700);
        mpfr_ui_pow_ui(x.Get(), 10, 4096u >> i, MPFR_RNDN);
        mpfr_ui_div(y.Get(), 1, x.Get(), MPFR_RNDN);
        EXPECT_EQ(x.ToQReal(), kPowersOfTen[i]) << i;
        EXPECT_EQ(y.ToQReal(), kNegativePowersOfTen[i]) << i;
        mpfr_set_prec(y.Get(), 700);
    }
    const std::pair<const char*, const QReal*> integers[] = {{"0", &kZero}, {".5", &kHalf},     {"1", &kOne},
                                                             {"2", &kTwo},  {"3", &kThree},     {"9", &kNine},
                                                             {"10", &kTen}, {"32", &kThirtyTwo}};
    for (const auto& [text, constant] : integers) EXPECT_EQ(Q(text), *constant) << text;
}

// Sums, products and quotients are right to the last place or the one beside it.
TEST_F(NumberCore, ArithmeticAgreesWithMpfr) {
    QRealRandom random(1);
    for (int i = 0; i < 3000; ++i) {
        const QReal a = random.Number(16600, 16680), b = random.Number(16600, 16680);
        MpfrNumber x(a), y(b), z(1000);
        QReal own;
        qadd(a, b, own);
        mpfr_add(z.Get(), x.Get(), y.Get(), MPFR_RNDN);
        const bool isSum = a.words[0] == b.words[0];
        // A difference drops a guard word that may stand for nearly two units after the shift.
        EXPECT_ULPS(own, z.ToQReal(), isSum ? 1 : 2);
        mpfr_set_prec(z.Get(), 1000);
        qmul(a, b, own);
        mpfr_mul(z.Get(), x.Get(), y.Get(), MPFR_RNDN);
        EXPECT_ULPS(own, z.ToQReal(), 1);
        mpfr_set_prec(z.Get(), 1000);
        qdiv(b, a, own);
        mpfr_div(z.Get(), x.Get(), y.Get(), MPFR_RNDN);
        EXPECT_ULPS(own, z.ToQReal(), 1);
    }
}

TEST_F(NumberCore, OverflowGivesTheLargestNumberAndAReport) {
    EXPECT_EQ(Sum(infinity_, infinity_), infinity_);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OVERFLOW);
    EXPECT_EQ(debugText, "\nqadd overflow error\n");
    QReal c;
    ClearNumericError();
    debugText.clear();
    qdiv(QReal{}, Q("-2"), c);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_SINGULARITY);
    EXPECT_EQ(debugText, "\nqdiv singularity error\n");
    EXPECT_TRUE(c.IsNegative());
    ClearNumericError();
    qdiv(QReal{}, QReal{}, c);
    EXPECT_EQ(c, QReal{});
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
    qmul(Q("1e-3000"), Q("1e-3000"), c);
    EXPECT_EQ(c, QReal{});
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
    QComplex z;
    qcdiv({}, {constants::kOne, constants::kOne}, z);
    EXPECT_EQ(z, (QComplex{infinity_, {}}));
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OVERFLOW);
    debugText.clear();
    mtherr("anything", 9);
    EXPECT_EQ(debugText, "\nanything unknown error\n");
}

TEST_F(NumberCore, IntegerPartsAndRounding) {
    struct Row {
        const char* value;
        std::int32_t integer;
        const char *fraction, *floor, *round;
    };
    constexpr Row kRows[] = {{"7.5", 7, "0.5", "7", "8"},
                             {"6.5", 6, "0.5", "6", "6"},
                             {"-0.5", 0, "-0.5", "-1", "0"},
                             {"-0.75", 0, "-0.75", "-1", "-1"},
                             {"2147483647.5", 2147483647, "0.5", "2147483647", "2147483648"},
                             {"-1e20", -2147483647, "0", "-1e20", "-1e20"}};
    for (const Row& row : kRows) {
        std::int32_t n;
        QReal result;
        qifrac(Q(row.value), n, result);
        EXPECT_EQ(n, row.integer) << row.value;
        EXPECT_EQ(result, Q(row.fraction)) << row.value;
        qfloor(Q(row.value), result);
        EXPECT_EQ(result, Q(row.floor)) << row.value;
        qround(Q(row.value), result);
        EXPECT_EQ(result, Q(row.round)) << row.value;
    }
    std::int32_t n;
    QReal mantissa;
    qfrexp(Q("-12"), n, mantissa);
    EXPECT_EQ(n, 4);
    EXPECT_EQ(mantissa, Q("-0.75"));
    qldexp(mantissa, 4, mantissa);
    EXPECT_EQ(mantissa, Q("-12"));
    qldexp(mantissa, -40000, mantissa);
    EXPECT_EQ(mantissa, QReal{});
    ltoq(std::numeric_limits<std::int32_t>::min(), mantissa);
    EXPECT_EQ(mantissa, Q("-2147483648"));
}

TEST_F(NumberCore, DoublesConvertExactlyAndBack) {
    QRealRandom random(2);
    for (int i = 0; i < 2000; ++i) {
        const QReal a = random.Number(16640 - 1100, 16640 + 1022);
        MpfrNumber x(a);
        const double expected = mpfr_get_d(x.Get(), MPFR_RNDN);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(qtoe(a)), std::bit_cast<std::uint64_t>(expected))
            << testing::PrintToString(a);
        QReal back;
        etoq(expected, back);
        EXPECT_EQ(qtoe(back), expected);
    }
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
    constexpr double kLargest = std::numeric_limits<double>::max();
    EXPECT_EQ(qtoe(Q("-1.797693134862315807e308")), -kLargest);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
    EXPECT_EQ(qtoe(Q("1.7976931348623159e308")), kLargest);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OVERFLOW);
    EXPECT_EQ(qtoe(Q("2.4703282292062327e-324")), 0.0);
    EXPECT_EQ(qtoe(Q("2.4703282292062328e-324")), std::numeric_limits<double>::denorm_min());
}

TEST_F(NumberCore, TextWithExponent) {
    QReal third;
    qdiv(constants::kThree, constants::kOne, third);
    EXPECT_EQ(qtoasc(third, 32), " 3.33333333333333333333333333333333E-1");
    EXPECT_EQ(qtoasc(third, 120).size(), 1 + 1 + 1 + 99 + 3u);
    EXPECT_EQ(qtoasc(Q("9.99"), 1), " 1.0E1");
    EXPECT_EQ(qtoasc(Q("2.5"), 0), " 2.E0");
    EXPECT_EQ(qtoasc(QReal{}, 2), " 0.00E0");
    EXPECT_EQ(qtoasc(Q("1e5009"), 2), " 1.00E5009");
    EXPECT_EQ(qtoasc(constants::kPi, 60),
              " 3.141592653589793238462643383279502884197169399375105820974945E0");
}

TEST_F(NumberCore, ReadingText) {
    const QReal number = Q("1234.5");
    for (const char* text :
         {"1 234.5", "+1234.50", "0001234.5", "12345e-1", " 1.2345 E + 3", "1234.5\n99", "1234.5\r"}) {
        EXPECT_EQ(Q(text), number) << text;
    }
    QReal a;
    EXPECT_TRUE(asctoq("1e5000", a));
    EXPECT_EQ(qtoasc(a, 5), " 1.00000E5000");
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
    // The tail of an integer of more than 99 digits is lost, and with it a power of ten.
    EXPECT_EQ(qtoasc(Q("1" + std::string(99, '0')), 2), " 1.00E98");
    EXPECT_EQ(qtoasc(Q("0." + std::string(98, '0') + "19"), 2), " 1.00E-99");
    // A power that overflows as a divisor is applied in two steps.
    EXPECT_EQ(qtoasc(Q("123456789e-5016"), 8), " 1.23456789E-5008");
    EXPECT_EQ(Q("1e-5100"), QReal{});
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
}

TEST_F(NumberCore, TextOutOfRangeIsReported) {
    struct Row {
        const char *text, *report;
        bool isInfinite;
    };
    constexpr Row kRows[] = {
        {"1e5100", "\nqmul overflow error\n", true},      {"-1e8192", "\nasctoq overflow error\n", true},
        {"1e32760", "\nasctoq overflow error\n", true},   {"1e-32760", "\nasctoq underflow error\n", false},
        {"1e-8192", "\nasctoq underflow error\n", false}, {"0e5", "\nasctoq underflow error\n", false}};
    for (const Row& row : kRows) {
        debugText.clear();
        QReal a = constants::kOne;
        EXPECT_TRUE(asctoq(row.text, a));
        EXPECT_EQ(debugText, row.report) << row.text;
        EXPECT_EQ(a.IsNegative(), row.text[0] == '-');
        qabs(a);
        EXPECT_EQ(a, row.isInfinite ? infinity_ : QReal{}) << row.text;
    }
}

TEST_F(NumberCore, MalformedTextGivesZeroAndADebugLine) {
    for (const char* text : {"--1", "1-", "1.2.3", "1x", "1e5x", "1e+-5", "1e5.0", "1e5e5", "0x10"}) {
        debugText.clear();
        QReal a = constants::kOne;
        const bool isWellFormed = asctoq(text, a);
        // A sign is also taken behind digits, as long as it is the first one.
        EXPECT_EQ(isWellFormed, std::string_view(text) == "1-") << text;
        if (isWellFormed) continue;
        EXPECT_EQ(a, QReal{}) << text;
        EXPECT_EQ(debugText, "asctoq conversion error\n") << text;
    }
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
}

// 100 digits out, 99 of them in again: the lost one weighs up to 1500 units of the last place.
TEST_F(NumberCore, TextRoundTrip) {
    QRealRandom random(3);
    for (int i = 0; i < 2000; ++i) {
        const QReal a = random.Dense(40, 33240);
        EXPECT_ULPS(Q(qtoasc(a, 99)), a, 1500);
    }
}

}  // namespace
}  // namespace quorix
