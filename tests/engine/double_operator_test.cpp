// Rows of the double operator table beside the C library and std::complex, and their real forms beside them.

#include <array>
#include <cmath>
#include <complex>
#include <cstdio>
#include <functional>
#include <limits>
#include <numbers>
#include <random>

#include "engine/decimal_rounding.h"
#include "engine/double_operator_table.h"
#include "engine/double_power_operators.h"
#include "engine/eval_double.h"
#include "numerics/double_complex.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

using Complex = std::complex<double>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

class DoubleOperatorTest : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        calcContext().angleUnit = UNIT_RADIANS;
    }

    struct Outcome {
        Complex value;
        std::int32_t error = 0;
        std::int32_t depth = 0;
    };

    // The row on operands that lie above one that is none of its business.
    static Outcome Apply(std::u16string_view name, std::initializer_list<Complex> operands) {
        ClearCalcError();
        std::array<DComplex, 4> entries{};
        OperandStack<DComplex> stack{entries};
        stack.Push({77.0, 0.0});
        for (const Complex operand : operands) stack.Push({operand.real(), operand.imag()});
        const OperatorRow<DComplex>* row = DoubleOperatorTable().Find(name);
        if (row == nullptr) return {kNotANumber, 99, 0};
        row->function(stack, 1);
        const DComplex top = stack.Top();
        return {{top.re, top.im}, calcContext().calcError, stack.depth};
    }
};

TEST_F(DoubleOperatorTest, TooFewOperandsChangeNothing) {
    EXPECT_EQ(DoubleOperatorTable().Rows().size(), 51U);
    for (const OperatorRow<DComplex>& row : DoubleOperatorTable().Rows()) {
        EXPECT_EQ(DoubleOperatorTable().Find(row.name), &row);
        const Outcome none = Apply(row.name, {});
        EXPECT_EQ(none.error, -1) << Narrow(row.name);
        EXPECT_EQ(none.depth, 1) << Narrow(row.name);
        if (row.operands == 1) continue;
        const Outcome one = Apply(row.name, {3.0});
        EXPECT_EQ(one.error, row.name == u"-" ? 0 : -1) << Narrow(row.name);
        EXPECT_EQ(one.value, row.name == u"-" ? -3.0 : 3.0) << Narrow(row.name);
        EXPECT_EQ(one.depth, 2) << Narrow(row.name);
    }
}

using Reference = std::function<Complex(Complex)>;

struct FunctionCase {
    std::u16string_view name;
    Reference reference;
};

const FunctionCase kFunctions[] = {{u"sin", [](Complex z) { return std::sin(z); }},
                                   {u"asin", [](Complex z) { return std::asin(z); }},
                                   {u"acos", [](Complex z) { return std::acos(z); }},
                                   {u"cos", [](Complex z) { return std::cos(z); }},
                                   {u"tan", [](Complex z) { return std::tan(z); }},
                                   {u"atan", [](Complex z) { return std::atan(z); }},
                                   {u"ctan", [](Complex z) { return 1.0 / std::tan(z); }},
                                   {u"acot", [](Complex z) { return std::atan(1.0 / z); }},
                                   {u"sqrt", [](Complex z) { return std::sqrt(z); }},
                                   {u"ln", [](Complex z) { return std::log(z); }},
                                   {u"log", [](Complex z) { return std::log10(z); }},
                                   {u"exp", [](Complex z) { return std::exp(z); }},
                                   {u"sinh", [](Complex z) { return std::sinh(z); }},
                                   {u"asinh", [](Complex z) { return std::asinh(z); }},
                                   {u"acosh", [](Complex z) { return std::acosh(z); }},
                                   {u"atanh", [](Complex z) { return std::atanh(z); }},
                                   {u"acoth", [](Complex z) { return std::atanh(1.0 / z); }},
                                   {u"cosh", [](Complex z) { return std::cosh(z); }},
                                   {u"tanh", [](Complex z) { return std::tanh(z); }},
                                   {u"ctanh", [](Complex z) { return 1.0 / std::tanh(z); }},
                                   {u"sec", [](Complex z) { return 1.0 / std::cos(z); }},
                                   {u"csc", [](Complex z) { return 1.0 / std::sin(z); }},
                                   {u"sech", [](Complex z) { return 1.0 / std::cosh(z); }},
                                   {u"csch", [](Complex z) { return 1.0 / std::sinh(z); }},
                                   {u"asec", [](Complex z) { return std::acos(1.0 / z); }},
                                   {u"acsc", [](Complex z) { return std::asin(1.0 / z); }},
                                   {u"asech", [](Complex z) { return std::acosh(1.0 / z); }},
                                   {u"acsch", [](Complex z) { return std::asinh(1.0 / z); }},
                                   {u"abs", [](Complex z) { return Complex(std::abs(z)); }}};

TEST_F(DoubleOperatorTest, FunctionsAgreeWithTheLibrary) {
    // On a branch cut the side depends on the sign of a zero, which the rows do not look at: for real
    // arguments either side will do.
    std::vector<Complex> points = {0.3, 0.75};
    std::mt19937 random(9);
    std::uniform_real_distribution<double> part(-3.0, 3.0);
    for (int n = 0; n < 1000; ++n) points.emplace_back(part(random), part(random));
    for (const FunctionCase& row : kFunctions) {
        for (const Complex z : points) {
            const Complex expected = row.reference(z);
            const Outcome outcome = Apply(row.name, {z});
            EXPECT_EQ(outcome.error, 0) << Narrow(row.name) << z;
            double distance = std::abs(outcome.value - expected);
            if (z.imag() == 0.0) distance = std::min(distance, std::abs(outcome.value - std::conj(expected)));
            ASSERT_LT(distance, 2e-12 * std::max(1.0, std::abs(expected)))
                << Narrow(row.name) << z << " is " << outcome.value << ", expected " << expected;
            EXPECT_EQ(outcome.depth, 2);
        }
    }
}

TEST_F(DoubleOperatorTest, RealArgumentsOutsideTheRealDomain) {
    const double half = std::numbers::pi / 2;
    const struct {
        std::u16string_view name;
        double x;
        Complex value;
    } rows[] = {{u"sqrt", -4, {0, 2}},
                {u"sqrt", 0, 0},
                {u"ln", -1, {0, std::numbers::pi}},
                {u"log", -1000, {3, std::numbers::pi / std::numbers::ln10}},
                {u"ln", 0, -kInfinity},
                {u"ln", 1e-300, -690.7755278982137},
                {u"acosh", 0.5, {0, 1.0471975511965979}},
                {u"asech", 2, {0, 1.0471975511965979}},
                {u"atanh", 1, kInfinity},
                {u"acot", 0, half},
                {u"exp", 1000, kInfinity},
                {u"exp", -1000, 0},
                {u"abs", -1e200, 1e200},
                {u"abs", -0.0, 0}};
    for (const auto& row : rows) {
        const Outcome outcome = Apply(row.name, {row.x});
        EXPECT_EQ(outcome.error, 0) << Narrow(row.name) << row.x;
        if (std::isinf(row.value.real())) {
            EXPECT_EQ(outcome.value, row.value) << Narrow(row.name) << row.x;
        } else {
            EXPECT_LT(std::abs(outcome.value - row.value), 1e-12) << Narrow(row.name) << row.x;
        }
    }
    // The real part stays, the imaginary part tells the branch by its magnitude alone.
    EXPECT_NEAR(Apply(u"asin", {2.0}).value.real(), half, 1e-12);
    EXPECT_NEAR(std::fabs(Apply(u"asin", {2.0}).value.imag()), std::acosh(2.0), 1e-12);
    EXPECT_NEAR(std::fabs(Apply(u"acos", {2.0}).value.imag()), std::acosh(2.0), 1e-12);
    EXPECT_NEAR(std::fabs(Apply(u"acoth", {0.5}).value.imag()), half, 1e-12);
    EXPECT_TRUE(std::isnan(Apply(u"ln", {kNotANumber}).value.real()));
    EXPECT_TRUE(std::isnan(Apply(u"log", {kNotANumber}).value.real()));
}

TEST_F(DoubleOperatorTest, FunctionsBelowTheRows) {
    EXPECT_EQ(dcomplex::pow({0.0, 0.0}, {0.0, 0.0}).re, 0.0);  // The row of "^" says 1.
    EXPECT_TRUE(std::isinf(dcomplex::reciprocal({0.0, 0.0}).re));
    // Large imaginary parts neither overflow nor lose the sign.
    EXPECT_NEAR(dcomplex::tan({1.0, 800.0}).im, 1.0, 1e-15);
    EXPECT_NEAR(dcomplex::tan({1.0, -800.0}).im, -1.0, 1e-15);
    EXPECT_NEAR(dcomplex::tanh({800.0, 1.0}).re, 1.0, 1e-15);
}

TEST_F(DoubleOperatorTest, AnglesFollowTheUnit) {
    const struct {
        std::u16string_view name;
        double x, degrees, grads;
    } rows[] = {{u"sin", 30, 0.5, 0.453990499740},
                {u"sin", 180, 0, 0.309016994375},
                {u"cos", 90, 0, 0.156434465040},
                {u"tan", 45, 1, 0.854080685463},
                {u"sec", 60, 2, 1.701301616704},
                {u"csc", 30, 2, 2.202689264585},
                {u"asin", 0.5, 30, 100.0 / 3},
                {u"acos", 0.5, 60, 200.0 / 3},
                {u"atan", 1, 45, 50},
                {u"acot", 1, 45, 50},
                {u"asec", 2, 60, 200.0 / 3},
                {u"acsc", 2, 30, 100.0 / 3},
                {u"sinh", 1, 1.1752011936438014, 1.1752011936438014},  // No angle here.
                {u"asinh", 1, 0.881373587019543, 0.881373587019543}};
    for (const auto& row : rows) {
        calcContext().angleUnit = UNIT_DEGREES;
        EXPECT_NEAR(Apply(row.name, {row.x}).value.real(), row.degrees, 2e-13) << Narrow(row.name);
        calcContext().angleUnit = UNIT_GRADS;
        EXPECT_NEAR(Apply(row.name, {row.x}).value.real(), row.grads, 1e-12) << Narrow(row.name);
    }
    calcContext().angleUnit = UNIT_DEGREES;
    EXPECT_EQ(Apply(u"sin", {180.0}).value, 0.0);  // Quantised, so exactly.
    EXPECT_EQ(Apply(u"tan", {90.0}).error, -21);
    EXPECT_EQ(Apply(u"tan", {270.0}).error, -21);
    EXPECT_EQ(Apply(u"sec", {-90.0}).error, -27);
    EXPECT_EQ(Apply(u"csc", {720.0}).error, -28);
    EXPECT_EQ(Apply(u"ctan", {90.0}).error, 0);
    EXPECT_NEAR(Apply(u"ctan", {45.0}).value.real(), 1.0, 1e-15);
}

TEST_F(DoubleOperatorTest, ComplexAnglesSwitchToRadiansForGood) {
    const Complex z(0.5, 0.25);
    for (const std::u16string_view name : {u"sin", u"cos", u"tan", u"sec", u"csc", u"ctan", u"asin", u"acos",
                                           u"atan", u"acot", u"asec", u"acsc"}) {
        calcContext().angleUnit = UNIT_DEGREES;
        const Complex fromDegrees = Apply(name, {z}).value;
        EXPECT_EQ(calcContext().angleUnit, UNIT_RADIANS) << Narrow(name);
        EXPECT_EQ(Apply(name, {z}).value, fromDegrees) << Narrow(name);
    }
    calcContext().angleUnit = UNIT_DEGREES;
    Apply(u"sinh", {z});
    Apply(u"exp", {z});
    EXPECT_EQ(calcContext().angleUnit, UNIT_DEGREES);
    Apply(u"asin", {2.0});  // The result is complex.
    EXPECT_EQ(calcContext().angleUnit, UNIT_RADIANS);
}

TEST_F(DoubleOperatorTest, PowersAndTheirLike) {
    const Complex i(0, 1);
    const struct {
        std::u16string_view name;
        Complex left, right, value;
    } rows[] = {{u"^", 2, 10, 1024},
                {u"^", 2, -2, 0.25},
                {u"^", -2, 11, -2048},
                {u"^", 0, 0, 1},
                {u"^", i, 0, 1},
                {u"^", kNotANumber, 0, 1},
                {u"^", 0, 2, 0},
                {u"^", 0, {2, 1}, 0},
                {u"^", 10, 132, 1e132},
                {u"^", 10, -400, 0},
                {u"^", i, 2, -1},  // Imaginary noise is cleared.
                {u"^", i, i, std::exp(-std::numbers::pi / 2)},
                {u"^", {1, 2}, {0.5, -1}, std::pow(Complex(1, 2), Complex(0.5, -1))},
                {u"root", 3, 8, 2},
                {u"root", -2, 4, 0.5},
                {u"root", 2, {0, 2}, {1, 1}},
                {u"iroot", 8, 3, 2},
                {u"iroot", {0, 2}, 2, {1, 1}},
                {u"iexp", 2, 3, 2000},
                {u"iexp", i, -2, {0, 0.01}},
                {u"iexp", 2, i, 2.0 * std::pow(Complex(10), i)}};
    for (const auto& row : rows) {
        const Outcome outcome = Apply(row.name, {row.left, row.right});
        EXPECT_EQ(outcome.error, 0) << Narrow(row.name) << row.left << row.right;
        EXPECT_LT(std::abs(outcome.value - row.value), 1e-14 * std::max(1.0, std::abs(row.value)))
            << Narrow(row.name) << row.left << row.right << " is " << outcome.value;
    }
    // Values that are not drawn.
    EXPECT_TRUE(std::isnan(Apply(u"^", {-8.0, 1.0 / 3}).value.real()));
    EXPECT_TRUE(std::isnan(Apply(u"^", {kNotANumber, 2.0}).value.real()));
    EXPECT_EQ(Apply(u"^", {-8.0, 1.0 / 3}).error, 0);

    EXPECT_EQ(Apply(u"!", {0.0}).value, 1.0);
    EXPECT_EQ(Apply(u"!", {5.0}).value, 120.0);
    EXPECT_NEAR(Apply(u"!", {170.0}).value.real() / std::tgamma(171.0), 1.0, 1e-13);
    EXPECT_EQ(Apply(u"%", {12.0}).value, 0.12);
    EXPECT_EQ(Apply(u"-", {0.0}).value.real(), 0.0);
    EXPECT_FALSE(std::signbit(Apply(u"-", {0.0}).value.real()));
    EXPECT_FALSE(std::signbit(Apply(u"-", {-i * 0.0}).value.imag()));
}

TEST_F(DoubleOperatorTest, IntegerRowsUseTheWordSize) {
    const struct {
        std::u16string_view name;
        double left, right, value8, value16;
    } rows[] = {{u"and", 300, 255, 44, 44},      {u"or", 256, 1, 257, 257},    {u"xor", 5, -1, -6, -6},
                {u"nand", 300, 255, 211, 65491}, {u"nor", 256, 1, 254, 65278}, {u"mod", -7, 3, 1, 1},
                {u"shl", 255, 4, 240, 4080},     {u"shr", 255, -4, 240, 4080}, {u"rtl", 129, 1, 3, 258},
                {u"rtr", 1, 1, 128, 32768}};
    for (const auto& row : rows) {
        calcContext().wordSize = 8;
        EXPECT_EQ(Apply(row.name, {row.left, row.right}).value, row.value8) << Narrow(row.name);
        calcContext().wordSize = 16;
        EXPECT_EQ(Apply(row.name, {row.left, row.right}).value, row.value16) << Narrow(row.name);
    }
    EXPECT_EQ(Apply(u"not", {0.0}).value, 65535.0);
    EXPECT_EQ(Apply(u"cpl", {1.0}).value, 65535.0);
}

TEST_F(DoubleOperatorTest, RealFormsGiveTheSameBits) {
    constexpr double kHalfTurn = std::numbers::pi;
    std::vector<double> samples = {0.0, -0.0, 0.5, 1.0, -1.0, 2.0, 3.0, -3.0, 30.0, 45.0, 90.0, 100.0};
    samples.insert(samples.end(), {180.0, 170.0, 171.0, 1e-300, 1e300, 1e-13, kHalfTurn, kHalfTurn / 2});
    samples.insert(samples.end(), {kInfinity, -kInfinity, kNotANumber});
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> wide(-20, 20);
    for (int n = 0; n < 200; ++n) samples.push_back(n % 2 == 0 ? wide(random) : std::floor(wide(random)));
    int taken = 0;
    for (const std::int32_t unit : {UNIT_DEGREES, UNIT_RADIANS, UNIT_GRADS}) {
        for (const OperatorRow<DComplex>& row : DoubleOperatorTable().Rows()) {
            ASSERT_TRUE(row.operands == 1 ? row.realOfOne != nullptr : row.realOfTwo != nullptr);
            for (const double x : samples) {
                for (const double y : row.operands == 2 ? samples : std::vector<double>{0.0}) {
                    calcContext().angleUnit = unit;
                    const double value = row.operands == 2 ? row.realOfTwo(x, y) : row.realOfOne(x);
                    if (std::isnan(value)) continue;
                    EXPECT_EQ(calcContext().angleUnit, unit);
                    ++taken;
                    const Outcome outcome =
                        row.operands == 2 ? Apply(row.name, {x, y}) : Apply(row.name, {x});
                    ASSERT_EQ(outcome.error, 0) << Narrow(row.name) << " " << x << " " << y;
                    const bool same = std::bit_cast<std::uint64_t>(value) ==
                                      std::bit_cast<std::uint64_t>(outcome.value.real());
                    ASSERT_TRUE(same) << Narrow(row.name) << " " << x << " " << y << ": " << value << " and "
                                      << outcome.value;
                    ASSERT_EQ(outcome.value.imag(), 0.0);
                }
            }
        }
    }
    EXPECT_GT(taken, 1000000);
}

double ReadBack(double value, int decimals) {
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return std::strtod(text, nullptr);
}

TEST_F(DoubleOperatorTest, RoundingEqualsWritingAndReading) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> mantissa(1, 2);
    std::uniform_int_distribution<int> exponent(-60, 20);
    const auto check = [](double value) {
        return std::bit_cast<std::uint64_t>(RoundTo12Decimals(value)) ==
               std::bit_cast<std::uint64_t>(ReadBack(value, 12));
    };
    for (int n = 0; n < 1000000; ++n) {
        const double value = std::ldexp(mantissa(random), n % 2 == 0 ? -1 : exponent(random));
        ASSERT_TRUE(check(n % 3 == 0 ? -value : value)) << value;
    }
    // Ties, which binary fractions alone can be, and their neighbours.
    for (int n = 0; n < 200000; ++n) {
        const double tie =
            std::ldexp(static_cast<double>(2 * (random() >> 24U) + 1), -13 - static_cast<int>(n % 30));
        for (const double value : {tie, std::nextafter(tie, 0.0), std::nextafter(tie, kInfinity)}) {
            ASSERT_TRUE(check(value)) << value;
        }
    }
    for (const double value : {0.0, -0.0, 5e-13, -4e-13, 8191.9999999999991, 8192.0, 8192.0000000000018,
                               1e300, kInfinity, -kInfinity, 5e-324}) {
        EXPECT_TRUE(check(value)) << value;
    }
    EXPECT_TRUE(std::isnan(RoundTo12Decimals(kNotANumber)));
}

TEST_F(DoubleOperatorTest, WholeNumbersAreToldByTheirText) {
    std::mt19937_64 random(6);
    int whole = 0;
    for (int n = 0; n < 500000; ++n) {
        const auto base = static_cast<double>(random() % (n % 2 == 0 ? 20 : 5000));
        const double away = std::ldexp(static_cast<double>(random() % 4096), -55 - static_cast<int>(n % 3));
        const double value = std::fabs(n % 5 == 0 ? base + away * 1e6 : base + (n % 3 == 0 ? -away : away));
        const double rounded = ReadBack(value, 0);
        const double expected = ReadBack(value, 13) == rounded ? rounded : -1.0;
        ASSERT_EQ(WholeAt13Decimals(value), expected) << value;
        whole += expected >= 0 ? 1 : 0;
    }
    EXPECT_GT(whole, 100000);
    EXPECT_LT(whole, 450000);
    EXPECT_EQ(WholeAt13Decimals(kInfinity), -1.0);
    EXPECT_EQ(WholeAt13Decimals(kNotANumber), -1.0);
}

TEST_F(DoubleOperatorTest, WholePowersAreThoseOfTheLibrary) {
    const OperatorRow<DComplex>* power = DoubleOperatorTable().Find(u"^");
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> mantissa(-2, 2);
    constexpr std::array<RealFunction, 3> kPowers = {RealWholePower<2>, RealWholePower<3>, RealWholePower<4>};
    for (int n = 0; n < 3000000; ++n) {
        const double x = n % 4 == 0 ? std::ldexp(mantissa(random), static_cast<int>(random() % 210) - 105)
                                    : mantissa(random);
        volatile double exponent = n % 3 + 2;  // Keeps the compiler from multiplying on its own.
        const double expected = power->realOfTwo(x, exponent);
        ASSERT_EQ(kPowers[static_cast<std::size_t>(n % 3)](x), expected) << x << '^' << exponent;
        ASSERT_EQ(std::pow(x, exponent), expected) << x << '^' << exponent;
    }
}

// Random expressions over the operators that text can name.
class Shapes {
  public:
    explicit Shapes(unsigned seed) : random_(seed) {}

    std::u16string Expression(int depth) {
        if (depth == 0 || Below(5) == 0)
            return Below(2) == 0 ? u"x" : Pick({u"2", u"0.5", u"3", u"pi", u"0"});
        switch (Below(4)) {
            case 0:
                return Pick({u"sin",  u"cos",  u"tan",  u"ctan",  u"sec",   u"csc",   u"asin", u"acos",
                             u"atan", u"ln",   u"log",  u"exp",   u"sqrt",  u"abs",   u"sinh", u"cosh",
                             u"tanh", u"csch", u"sech", u"ctanh", u"asinh", u"acosh", u"atanh"}) +
                       u"(" + Expression(depth - 1) + u")";
            case 1: return u"(-" + Expression(depth - 1) + u")" + Pick({u"", u"%", u"!"});
            default:
                return u"(" + Expression(depth - 1) +
                       Pick({u"+", u"-", u"*", u"/", u"^", u"^2+", u" root ", u" iroot ", u" iexp ", u" mod ",
                             u" and "}) +
                       Expression(depth - 1) + u")";
        }
    }

  private:
    unsigned Below(unsigned n) { return static_cast<unsigned>(random_()) % n; }
    std::u16string Pick(std::initializer_list<std::u16string_view> words) {
        return std::u16string(words.begin()[Below(static_cast<unsigned>(words.size()))]);
    }

    std::mt19937 random_;
};

// An "i" in the text keeps the evaluator out of the lane of plain doubles.
TEST_F(DoubleOperatorTest, TheLaneGivesWhatTheWalkGives) {
    Shapes shapes(3);
    int values = 0;
    for (int n = 0; n < 20000; ++n) {
        const std::u16string text = shapes.Expression(4);
        SetUp();
        DoubleSampler sampler(text, u"x", 10);
        for (const double x : {-1.5, 0.0, 2.0}) {
            SetUp();
            const auto sampled = sampler.At(x);
            const CalcContext inLane = calcContext();
            SetUp();
            const auto walked = EvalToDouble(u"(" + text + u")+0*i", u"x", x, 10);
            ASSERT_EQ(inLane.calcError, calcContext().calcError) << Narrow(text) << " at " << x;
            ASSERT_EQ(inLane.angleUnit, calcContext().angleUnit) << Narrow(text) << " at " << x;
            ASSERT_EQ(sampled.has_value(), walked.has_value());
            if (!walked || std::isnan(walked->re)) continue;
            ASSERT_EQ(sampled->re, walked->re) << Narrow(text) << " at " << x;
            ASSERT_TRUE(sampled->im == walked->im || std::isnan(walked->im)) << Narrow(text) << " at " << x;
            ++values;
        }
    }
    EXPECT_GT(values, 10000);
}

TEST_F(DoubleOperatorTest, BlocksGiveWhatPointsGiveAndRangesHoldIt) {
    Shapes shapes(4);
    constexpr std::size_t kPoints = 67;
    int inBlocks = 0;
    int inRanges = 0;
    for (int n = 0; n < 6000; ++n) {
        const std::u16string text = shapes.Expression(4);
        SetUp();
        DoubleSampler sampler(text, u"x", 10);
        std::array<double, kPoints> x;
        std::array<double, kPoints> y;
        const double step = n % 2 == 0 ? 0.0625 : 0.001;
        for (std::size_t i = 0; i < kPoints; ++i) x[i] = (static_cast<double>(i) - 20.0) * step;
        const std::size_t count = sampler.RealValues(x, y);
        const auto range = sampler.RangeOver({x.front(), x.back()});
        for (std::size_t i = 0; i < kPoints; ++i) {
            SetUp();
            const auto value = sampler.At(x[i]);
            if (i < count) {
                ASSERT_TRUE(value.has_value());
                ASSERT_EQ(value->re, y[i]) << Narrow(text) << " at " << x[i];
                ASSERT_EQ(value->im, 0.0);
                ++inBlocks;
            }
            // The logarithm of a negative zero is infinite and complex.
            if (!range || !value || !std::isfinite(value->re)) continue;
            if (!range->IsBounded()) continue;
            ASSERT_TRUE(value->im == 0.0 && range->Contains(value->re)) << Narrow(text) << " at " << x[i];
            ++inRanges;
        }
    }
    EXPECT_GT(inBlocks, 100000);
    EXPECT_GT(inRanges, 20000);
}

TEST_F(DoubleOperatorTest, ASamplerKeepsItsFailure) {
    DoubleSampler sampler(u"x+", u"x", 10);
    EXPECT_EQ(calcContext().calcError, -1);
    ClearCalcError();
    EXPECT_FALSE(sampler.At(1.0));
    EXPECT_EQ(calcContext().calcError, -1);
}

}  // namespace
}  // namespace quorix
