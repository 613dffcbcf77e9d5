// Real functions against MPFR, and the values and reports that users meet.

#include <gtest/gtest.h>

#include <functional>

#include <string>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "support/mpfr_number.h"
#include "support/qreal_printer.h"
#include "support/qreal_random.h"

namespace quorix {
namespace {

using constants::kOne;

using Function = void (*)(const QReal&, QReal&);
using MpfrFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

struct Row {
    const char* name;
    Function own;
    MpfrFunction judge;
    int lowExponent, highExponent;  // of the arguments, as exponent words
    bool positive = false;
};

// Ranges where no result leaves the exponent range.
constexpr Row kRows[] = {
    {"qsqrt", qsqrt, mpfr_sqrt, 1, 33280, true}, {"qexp", qexp, mpfr_exp, 16300, 16652},
    {"qlog", qlog, mpfr_log, 1, 33280, true},    {"qlog near one", qlog, mpfr_log, 16639, 16640, true},
    {"qsin", qsin, mpfr_sin, 16300, 16660},      {"qsin large", qsin, mpfr_sin, 16704, 33280},
    {"qcos", qcos, mpfr_cos, 16300, 16660},      {"qcos large", qcos, mpfr_cos, 16704, 33280},
    {"qatn", qatn, mpfr_atan, 1, 33280},         {"qatn middle", qatn, mpfr_atan, 16630, 16645},
    {"qsinh", qsinh, mpfr_sinh, 16000, 16652},   {"qcosh", qcosh, mpfr_cosh, 16300, 16652},
    {"qtanh", qtanh, mpfr_tanh, 16000, 16660}};

TEST(Functions, AgreeWithMpfr) {
    QRealRandom random(1);
    for (const Row& row : kRows) {
        double worst = 0;
        for (int i = 0; i < 10000; ++i) {
            QReal x = random.Number(row.lowExponent, row.highExponent);
            if (row.positive) qabs(x);
            QReal own = x;
            row.own(own, own);
            MpfrNumber argument(x), expected(420);
            row.judge(expected.Get(), argument.Get(), MPFR_RNDN);
            const QReal nearest = expected.ToQReal();
            worst = std::max(worst, UlpDistance(own, nearest));
            ASSERT_LE(worst, 1) << row.name << "(" << testing::PrintToString(x) << ")\n"
                                << testing::PrintToString(own) << '\n'
                                << testing::PrintToString(nearest);
        }
        RecordProperty(row.name, std::to_string(worst));
    }
}

TEST(Functions, PowersAgreeWithMpfr) {
    QRealRandom random(2);
    for (int i = 0; i < 10000; ++i) {
        QReal x = random.Number(16630, 16650), y = random.Number(16630, 16649), own;
        if (i % 2 == 0) {
            qfloor(y, y);
        } else {
            qabs(x);
        }
        qpow(x, y, own);
        MpfrNumber base(x), exponent(y), expected(420);
        mpfr_pow(expected.Get(), base.Get(), exponent.Get(), MPFR_RNDN);
        ASSERT_LE(UlpDistance(own, expected.ToQReal()), 1)
            << testing::PrintToString(x) << testing::PrintToString(y);
    }
}

// The square root keeps the bits of eight steps from the polynomial.
TEST(Functions, SquareRootIsThatOfEightStepsFromThePolynomial) {
    QRealRandom random(3);
    for (int i = 0; i < 20000; ++i) {
        QReal x = random.Number(1, 33280);
        qabs(x);
        std::int32_t n;
        QReal m, y, t;
        qfrexp(x, n, m);
        qmul(Q("0.204405847"), m, y);
        qsub(y, Q("0.890194099"), y);
        qmul(m, y, y);
        qadd(Q("0.313567057"), y, y);
        y.words[1] = static_cast<std::uint16_t>(16639 + n / 2);
        if (x.words[1] % 2 == 0) qmul(constants::kSqrt2, y, y);
        for (int step = 0; step < 8; ++step) {
            qdiv(y, x, t);
            qadd(t, y, y);
            --y.words[1];
        }
        QReal own;
        qsqrt(x, own);
        ASSERT_EQ(own, y) << testing::PrintToString(x);
    }
}

TEST(Functions, ExactAndKnownValues) {
    QReal r;
    qpow(Q("2"), Q("1000"), r);
    EXPECT_EQ(r.words[1], 16640 + 1000);
    EXPECT_EQ(r.words[3], 0x8000);
    const struct {
        const char *x, *y, *power;
    } powers[] = {{"-2", "11", "-2048"}, {"-1", "98", "1"},    {"3", "5", "243"},      {"0.5", "-3", "8"},
                  {"10", "30", "1e30"},  {"7", "0", "1"},      {"0", "0", "1"},        {"0", "2.5", "0"},
                  {"4", "0.5", "2"},     {"-1", "1e30", "1"},  {"10", "-5010", "0"},   {"2", "-20000", "0"},
                  {"-1", "-3", "-1"},    {"1.5", "2", "2.25"}, {"-10", "-100001", "0"}};
    ClearNumericError();
    for (const auto& row : powers) {
        qpow(Q(row.x), Q(row.y), r);
        EXPECT_EQ(r, Q(row.power)) << row.x << '^' << row.y;
    }
    qlog(kOne, r);
    EXPECT_EQ(r, QReal{});
    qexp(Q("-1e300"), r);
    EXPECT_EQ(r, QReal{});
    qtanh(Q("-1e300"), r);
    EXPECT_EQ(r, Q("-1"));
    for (const char* square : {"0", "4", "144", "2.25", "1e100"}) {
        qsqrt(Q(square), r);
        qmul(r, r, r);
        EXPECT_EQ(r, Q(square));
    }
    qsin(constants::kPi, r);
    EXPECT_EQ(r, QReal{});
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
}

// Degrees become radians by pi/180, as rounded as that comes.
TEST(Functions, QuarterTurnsAreExact) {
    for (int degrees = -1080; degrees <= 1080; degrees += 30) {
        QReal x, sine, cosine;
        ltoq(degrees, x);
        qmul(constants::kPi, x, x);
        qdiv(Q("180"), x, x);
        qsin(x, sine);
        qcos(x, cosine);
        EXPECT_EQ(sine.IsZero(), degrees % 180 == 0) << degrees;
        EXPECT_EQ(cosine.IsZero(), degrees % 180 != 0 && degrees % 90 == 0) << degrees;
        if (degrees % 360 == 30) {
            EXPECT_ULPS(sine, constants::kHalf, 64);
        }
    }
}

TEST(Functions, AnglesByQuadrant) {
    QReal half, angle;
    qldexp(constants::kPi, -1, half);
    QReal minusHalf = half, minusPi = constants::kPi;
    qneg(minusHalf);
    qneg(minusPi);
    const struct {
        const char *y, *x;
        QReal angle;
    } rows[] = {{"0", "0", {}},
                {"0", "5", {}},
                {"0", "-5", constants::kPi},
                {"2", "0", half},
                {"-2", "0", minusHalf},
                {"1e-5000", "-1e5000", constants::kPi},
                {"-1e-5000", "-1e5000", minusPi},
                {"1e5000", "1e-5000", half},
                {"1e200", "1", half}};
    for (const auto& row : rows) {
        qatn2(Q(row.y), Q(row.x), angle);
        EXPECT_EQ(angle, row.angle) << row.y << ", " << row.x;
    }
    qatn2(Q("1"), Q("-1"), angle);
    qmul(Q("4"), angle, angle);
    qdiv(constants::kPi, angle, angle);
    EXPECT_EQ(angle, Q("3"));
}

TEST(Functions, ErrorsAreReported) {
    QReal infinity;
    qinfin(infinity);
    QReal minusInfinity = infinity;
    qneg(minusInfinity);
    const struct {
        const char* name;
        std::function<void(QReal&)> call;
        int code;
        QReal result;
    } rows[] = {
        {"exp(20000)", [](QReal& r) { qexp(Q("20000"), r); }, NUMERIC_OVERFLOW, infinity},
        {"exp(1e10)", [](QReal& r) { qexp(Q("1e10"), r); }, NUMERIC_OVERFLOW, infinity},
        {"ln(0)", [](QReal& r) { qlog(QReal{}, r); }, NUMERIC_SINGULARITY, minusInfinity},
        {"ln(-1)", [](QReal& r) { qlog(Q("-1"), r); }, NUMERIC_DOMAIN, {}},
        {"sqrt(-4)", [](QReal& r) { qsqrt(Q("-4"), r); }, NUMERIC_DOMAIN, {}},
        {"2^20000", [](QReal& r) { qpow(Q("2"), Q("20000"), r); }, NUMERIC_OVERFLOW, infinity},
        {"(-3)^99999", [](QReal& r) { qpow(Q("-3"), Q("99999"), r); }, NUMERIC_OVERFLOW, minusInfinity},
        {"0^-1", [](QReal& r) { qpow(QReal{}, Q("-1"), r); }, NUMERIC_OVERFLOW, infinity},
        {"0.1^-9999", [](QReal& r) { qpow(Q("0.1"), Q("-9999"), r); }, NUMERIC_OVERFLOW, infinity},
        {"(-8)^0.3", [](QReal& r) { qpow(Q("-8"), Q("0.3"), r); }, NUMERIC_DOMAIN, {}},
        {"sinh(-20000)", [](QReal& r) { qsinh(Q("-20000"), r); }, NUMERIC_OVERFLOW, minusInfinity}};
    for (const auto& row : rows) {
        ClearNumericError();
        QReal result;
        row.call(result);
        EXPECT_EQ(NumericErrorFlag(), row.code) << row.name;
        EXPECT_EQ(result, row.result) << row.name;
    }
}

}  // namespace
}  // namespace quorix
