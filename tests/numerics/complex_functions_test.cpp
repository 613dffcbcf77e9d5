// Complex functions against MPC, cuts and poles, and the values that users meet.

#include <gtest/gtest.h>
#include <mpc.h>

#include <functional>
#include <tuple>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"
#include "support/mpfr_number.h"
#include "support/qreal_printer.h"
#include "support/qreal_random.h"

namespace quorix {
namespace {

QComplex C(std::string_view re, std::string_view im) {
    return {Q(re), Q(im)};
}

using Function = void (*)(const QComplex&, QComplex&);
using MpcFunction = int (*)(mpc_ptr, mpc_srcptr, mpc_rnd_t);

struct Row {
    const char* name;
    Function own;
    MpcFunction judge;
};

int Cotangent(mpc_ptr result, mpc_srcptr z, mpc_rnd_t round) {
    mpc_tan(result, z, round);
    return mpc_ui_div(result, 1, result, round);
}

constexpr Row kRows[] = {
    {"qcexp", qcexp, mpc_exp},      {"qclog", qclog, mpc_log},       {"qcsqrt", qcsqrt, mpc_sqrt},
    {"qcsin", qcsin, mpc_sin},      {"qccos", qccos, mpc_cos},       {"qctan", qctan, mpc_tan},
    {"qccot", qccot, Cotangent},    {"qcsinh", qcsinh, mpc_sinh},    {"qccosh", qccosh, mpc_cosh},
    {"qctanh", qctanh, mpc_tanh},   {"qcasin", qcasin, mpc_asin},    {"qcacos", qcacos, mpc_acos},
    {"qcatan", qcatan, mpc_atan},   {"qcasinh", qcasinh, mpc_asinh}, {"qcacosh", qcacosh, mpc_acosh},
    {"qcatanh", qcatanh, mpc_atanh}};

class MpcNumber {
  public:
    explicit MpcNumber(mpfr_prec_t bits) { mpc_init2(value_, bits); }
    explicit MpcNumber(const QComplex& z) : MpcNumber(500) {
        MpfrNumber re(z.re), im(z.im);
        mpc_set_fr_fr(value_, re.Get(), im.Get(), MPC_RNDNN);
    }
    MpcNumber(const MpcNumber&) = delete;
    MpcNumber& operator=(const MpcNumber&) = delete;
    ~MpcNumber() { mpc_clear(value_); }

    mpc_ptr Get() { return value_; }
    QComplex ToQComplex() { return {Part(mpc_realref(value_)), Part(mpc_imagref(value_))}; }

  private:
    static QReal Part(mpfr_ptr part) {
        MpfrNumber number(500);
        mpfr_set(number.Get(), part, MPFR_RNDN);
        return number.ToQReal();
    }
    mpc_t value_;
};

TEST(ComplexFunctions, AgreeWithMpc) {
    QRealRandom random(1);
    for (const Row& row : kRows) {
        double worst = 0;
        for (int i = 0; i < 10000; ++i) {
            const int spread = i % 2 == 0 ? 3 : 25;
            const QComplex z{random.Number(16640 - spread, 16643), random.Number(16640 - spread, 16643)};
            QComplex own = z;
            row.own(own, own);
            MpcNumber argument(z), expected(460);
            row.judge(expected.Get(), argument.Get(), MPC_RNDNN);
            const QComplex nearest = expected.ToQComplex();
            // One unit of the last place of each part, but for the small part of a number beside the axis:
            // its error is bounded by 2^-370 of the number.
            for (const auto& [part, other, judge] :
                 {std::tuple(own.re, nearest.im, nearest.re), std::tuple(own.im, nearest.re, nearest.im)}) {
                const double allowed = 1 + std::ldexp(1.0, std::max(0, other.words[1] - judge.words[1] - 30));
                const double distance = UlpDistance(part, judge) / allowed;
                worst = std::max(worst, distance);
                ASSERT_LE(distance, 1) << row.name << "(" << testing::PrintToString(z) << ")\n"
                                       << testing::PrintToString(own) << '\n'
                                       << testing::PrintToString(nearest);
            }
        }
        RecordProperty(row.name, std::to_string(worst));
    }
}

TEST(ComplexFunctions, PowersAgreeWithMpc) {
    QRealRandom random(2);
    for (int i = 0; i < 10000; ++i) {
        const QComplex a{random.Number(16630, 16643), random.Number(16630, 16643)};
        const QComplex b{random.Number(16630, 16643), random.Number(16630, 16643)};
        QComplex own;
        qcpow(a, b, own);
        MpcNumber base(a), exponent(b), expected(460);
        mpc_pow(expected.Get(), base.Get(), exponent.Get(), MPC_RNDNN);
        const QComplex nearest = expected.ToQComplex();
        EXPECT_ULPS(own.re, nearest.re, 2);
        EXPECT_ULPS(own.im, nearest.im, 2);
    }
}

void ExpectNear(const QComplex& actual, std::string_view re, std::string_view im, const char* what) {
    EXPECT_EQ(qtoasc(actual.re, 25), qtoasc(Q(re), 25)) << what;
    EXPECT_EQ(qtoasc(actual.im, 25), qtoasc(Q(im), 25)) << what;
}

TEST(ComplexFunctions, CutsAndPrincipalValues) {
    constexpr const char* kAcosh2 = "1.316957896924816708625046347307968444026981971467516479768";
    constexpr const char* kHalfPi = "1.570796326794896619231321691639751442098584699687552910487";
    constexpr const char* kPi = "3.141592653589793238462643383279502884197169399375105820975";
    constexpr const char* kMinusHalfPi = "-1.570796326794896619231321691639751442098584699687552910487";
    constexpr const char* kMinusAcosh2 = "-1.316957896924816708625046347307968444026981971467516479768";
    const struct {
        const char* name;
        Function function;
        QComplex z;
        const char *re, *im;
    } rows[] = {{"asin(2)", qcasin, C("2", "0"), kHalfPi, kMinusAcosh2},
                {"asin(-2)", qcasin, C("-2", "0"), kMinusHalfPi, kAcosh2},
                {"acos(2)", qcacos, C("2", "0"), "0", kAcosh2},
                {"acos(-2)", qcacos, C("-2", "0"), kPi, kMinusAcosh2},
                {"acosh(2)", qcacosh, C("2", "0"), kAcosh2, "0"},
                {"acosh(-2)", qcacosh, C("-2", "0"), kAcosh2, kPi},
                {"acosh(0.5)", qcacosh, C("0.5", "0"), "0",
                 "1.047197551196597746154214461093167628065723133125035273658"},
                {"atan(2i)", qcatan, C("0", "2"), kHalfPi,
                 "0.549306144334054845697622618461252852323745278911374725867"},
                {"atan(-2i)", qcatan, C("0", "-2"), kMinusHalfPi,
                 "-0.549306144334054845697622618461252852323745278911374725867"},
                {"asinh(-1e50)", qcasinh, C("-1e50", "0"), "-115.82240183026222951031680217", "0"},
                {"tan(1e9i)", qctan, C("0", "1e9"), "0", "1"},
                {"ln(-1)", qclog, C("-1", "0"), "0", kPi},
                {"exp(i pi)", qcexp, {QReal{}, constants::kPi}, "-1", "0"},
                {"tan(pi)", qctan, {constants::kPi, QReal{}}, "0", "0"}};
    ClearNumericError();
    for (const auto& row : rows) {
        QComplex result;
        row.function(row.z, result);
        ExpectNear(result, row.re, row.im, row.name);
    }
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
}

TEST(ComplexFunctions, PowerConventions) {
    const struct {
        const char *re, *im, *exponent, *resultRe, *resultIm;
    } rows[] = {{"-8", "0", "0.5", "0", "2.8284271247461900976033774"},
                {"-2", "0", "-0.5", "0", "-0.70710678118654752440084436"},
                {"-1", "0", "1.5", "0", "-1"},
                {"-4", "0", "-1.5", "0", "0.125"},
                {"-2", "0", "0.3", "-1.231144413344916284499393", "0"},
                {"-2", "0", "11", "-2048", "0"},
                {"0", "0", "3", "0", "0"},
                {"0", "1", "2", "-1", "0"},
                {"4", "0", "0.5", "2", "0"}};
    for (const auto& row : rows) {
        QComplex result;
        qcpow(C(row.re, row.im), C(row.exponent, "0"), result);
        // Real parts that should vanish may be as small as the rounding of pi.
        if (std::string_view(row.resultIm) == "0" && row.im[0] != '0') result.im = {};
        EXPECT_EQ(qtoasc(result.re, 20), qtoasc(Q(row.resultRe), 20)) << row.re << '^' << row.exponent;
        EXPECT_EQ(qtoasc(result.im, 20), qtoasc(Q(row.resultIm), 20)) << row.re << '^' << row.exponent;
    }
    QReal third;
    qdiv(Q("3"), Q("1"), third);
    QComplex root;
    qcpow(C("-8", "0"), {third, {}}, root);
    EXPECT_ULPS(root.re, Q("-2"), 2);
    EXPECT_EQ(root.im, QReal{});
}

TEST(ComplexFunctions, PolesAreReported) {
    QReal infinity;
    qinfin(infinity);
    const struct {
        const char* name;
        std::function<void(QComplex&)> call;
        int code;
    } rows[] = {{"ln(0)", [](QComplex& r) { qclog({}, r); }, NUMERIC_SINGULARITY},
                {"atan(i)", [](QComplex& r) { qcatan(C("0", "1"), r); }, NUMERIC_SINGULARITY},
                {"cot(0)", [](QComplex& r) { qccot({}, r); }, NUMERIC_OVERFLOW},
                {"cot(pi)",
                 [](QComplex& r) {
                     qccot({constants::kPi, QReal{}}, r);
                 },
                 NUMERIC_OVERFLOW},
                {"0^-1", [](QComplex& r) { qcpow({}, C("-1", "0"), r); }, NUMERIC_DOMAIN},
                {"0^i", [](QComplex& r) { qcpow({}, C("0", "1"), r); }, NUMERIC_DOMAIN},
                {"exp(20000+i)", [](QComplex& r) { qcexp(C("20000", "1"), r); }, NUMERIC_OVERFLOW}};
    for (const auto& row : rows) {
        ClearNumericError();
        QComplex result;
        row.call(result);
        EXPECT_EQ(NumericErrorFlag(), row.code) << row.name;
    }
    ClearNumericError();
    QComplex result;
    qcpow({}, {}, result);
    EXPECT_EQ(result, constants::kComplexOne);
    // 270 degrees give a very large tangent.
    QReal x;
    qmul(constants::kPi, Q("270"), x);
    qdiv(Q("180"), x, x);
    qctan({x, {}}, result);
    EXPECT_GT(result.re.words[1], 16640 + 300);
    QReal magnitude;
    qcabs(C("3e5000", "-4e5000"), magnitude);
    EXPECT_ULPS(magnitude, Q("5e5000"), 2);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OK);
}

}  // namespace
}  // namespace quorix
