// The core on limbs against the core word by word: every word of every result, and every report.

#include <gtest/gtest.h>

#include <functional>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "plain_core.h"
#include "support/qreal_printer.h"
#include "support/qreal_random.h"

namespace quorix {
namespace {

using Binary = void (*)(const QReal&, const QReal&, QReal&);

struct Outcome {
    QReal result;
    int code = 0;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out) {
    PrintTo(outcome.result, out);
    *out << " code " << outcome.code;
}

// The target holds `before`, whose sign an overflow may keep.
Outcome Apply(Binary operation, const QReal& a, const QReal& b, const QReal& before) {
    Outcome outcome{before};
    ClearNumericError();
    operation(a, b, outcome.result);
    outcome.code = NumericErrorFlag();
    return outcome;
}

struct Pair {
    const char* name;
    Binary fast, plain;
};

constexpr Pair kArithmetic[] = {
    {"qadd", qadd, plain::Add},
    {"qsub", qsub, plain::Subtract},
    {"qmul", qmul, plain::Multiply},
    {"qdiv", qdiv, plain::Divide},
    {"qmuli", [](const QReal& a, const QReal& b, QReal& c) { qmuli(a, b, c); }, plain::MultiplyShort}};

void ExpectSame(const QReal& a, const QReal& b) {
    for (const Pair& pair : kArithmetic) {
        const Outcome expected = Apply(pair.plain, a, b, b);
        ASSERT_EQ(Apply(pair.fast, a, b, b), expected)
            << pair.name << "\n  " << testing::PrintToString(a) << "\n  " << testing::PrintToString(b);
        // Results laid over either operand.
        Outcome over{a};
        ClearNumericError();
        pair.fast(over.result, b, over.result);
        ASSERT_EQ(over.result, Apply(pair.plain, a, b, a).result) << pair.name << " over its first operand";
        over.result = b;
        pair.fast(a, over.result, over.result);
        ASSERT_EQ(over.result, expected.result) << pair.name << " over its second operand";
    }
    ASSERT_EQ(qcmp(a, b), plain::Compare(a, b)) << testing::PrintToString(a) << testing::PrintToString(b);
}

TEST(PlainCore, ArithmeticOfPatternsIsTheSame) {
    QRealRandom random(1);
    for (int i = 0; i < 40000 && !testing::Test::HasFatalFailure(); ++i) {
        const int centre = random.Integer(0, 3) == 0 ? random.Integer(400, 32880) : QReal::kExponentOfOne;
        const QReal a = random.Number(centre - 3, centre + 3);
        const int spread = random.Integer(0, 1) == 0 ? 3 : 400;
        ExpectSame(a, random.Number(centre - spread, centre + spread));
        ExpectSame(a, random.Near(a));
    }
}

TEST(PlainCore, ArithmeticAtTheEndsOfTheRangeIsTheSame) {
    QRealRandom random(2);
    QReal infinity;
    qinfin(infinity);
    QReal negativeZero;
    qneg(negativeZero);
    const QReal special[] = {QReal{}, negativeZero, constants::kOne, infinity};
    for (const QReal& a : special) {
        for (const QReal& b : special) ExpectSame(a, b);
    }
    for (int i = 0; i < 20000 && !testing::Test::HasFatalFailure(); ++i) {
        const QReal low = random.Number(1, 340),
                    high = random.Number(QReal::kLargestExponent - 2, QReal::kLargestExponent);
        ExpectSame(low, random.Number(1, 340));
        ExpectSame(low, random.Number(16300, 16980));
        ExpectSame(high, random.Number(QReal::kLargestExponent - 3, QReal::kLargestExponent));
        ExpectSame(high, random.Number(16637, 16643));
        ExpectSame(i % 2 == 0 ? low : high, special[i % 4]);
        ExpectSame(special[i % 4], i % 2 == 0 ? high : low);
        ExpectSame(low, high);
    }
}

TEST(PlainCore, FactorialsAreProductsFactorByFactor) {
    QReal expected = constants::kOne, actual;
    for (int n = 0; n <= 1500; ++n) {
        QReal factor;
        ltoq(n, factor);
        if (n > 1) plain::Multiply(factor, QReal(expected), expected);
        qfactorial(static_cast<std::uint16_t>(n), actual);
        ASSERT_EQ(actual, expected) << n;
    }
    ClearNumericError();
    qfactorial(2000, actual);
    EXPECT_EQ(NumericErrorFlag(), NUMERIC_OVERFLOW);
}

// Products and quotients of dense mantissas reach the places near the half where only the words decide.
TEST(PlainCore, RoundingNearTheHalfIsTheSame) {
    QRealRandom random(3);
    for (int i = 0; i < 150000; ++i) {
        const QReal a = random.Dense(16640, 16640), b = random.Dense(16640, 16640);
        for (const Pair& pair : {kArithmetic[2], kArithmetic[3]}) {
            ASSERT_EQ(Apply(pair.fast, a, b, {}), Apply(pair.plain, a, b, {}))
                << pair.name << "\n  " << testing::PrintToString(a) << "\n  " << testing::PrintToString(b);
        }
    }
}

// A product n * d plus or minus half a unit, divided by d, lies as near to the half as can be.
TEST(PlainCore, QuotientsBuiltToTieAreTheSame) {
    QRealRandom random(4);
    for (int i = 0; i < 40000; ++i) {
        const QReal d = random.Number(16640, 16640);
        QReal quotient = random.Dense(16640, 16640), numerator;
        qmul(d, quotient, numerator);
        ASSERT_EQ(Apply(qdiv, d, numerator, {}), Apply(plain::Divide, d, numerator, {}))
            << testing::PrintToString(d);
        // A short quotient and a half: exact ties of the product.
        QReal odd = random.Number(16640, 16640), shortFactor;
        odd.words[23] |= 1;
        ltoq(2 * random.Integer(1, 3000) + 1, shortFactor);
        ASSERT_EQ(Apply(qmul, odd, shortFactor, {}), Apply(plain::Multiply, odd, shortFactor, {}));
        qmul(odd, shortFactor, numerator);
        ASSERT_EQ(Apply(qdiv, shortFactor, odd, {}), Apply(plain::Divide, shortFactor, odd, {}));
    }
}

TEST(PlainCore, ConversionsAreTheSame) {
    QRealRandom random(5);
    for (int i = 0; i < 60000; ++i) {
        const int spread = i % 3 == 0 ? 40 : i % 3 == 1 ? 1100 : 16600;
        const QReal a = random.Number(16640 - spread, 16640 + spread);
        QReal fast, plain;
        std::int32_t n, m;
        qifrac(a, n, fast);
        plain::SplitInteger(a, m, plain);
        ASSERT_EQ(fast, plain) << testing::PrintToString(a);
        ASSERT_EQ(n, m) << testing::PrintToString(a);
        qfloor(a, fast);
        plain::Floor(a, plain);
        ASSERT_EQ(fast, plain) << testing::PrintToString(a);
        qround(a, fast);
        plain::Round(a, plain);
        ASSERT_EQ(fast, plain) << testing::PrintToString(a);
        ClearNumericError();
        const double d = qtoe(a);
        const int code = NumericErrorFlag();
        ClearNumericError();
        ASSERT_EQ(std::bit_cast<std::uint64_t>(d), std::bit_cast<std::uint64_t>(plain::ToDouble(a)))
            << testing::PrintToString(a);
        ASSERT_EQ(code, NumericErrorFlag());
        etoq(d, fast);
        plain::FromDouble(d, plain);
        ASSERT_EQ(fast, plain) << d;
        const std::int32_t integer = random.Integer(-2147483647 - 1, 2147483647) >> random.Integer(0, 31);
        ltoq(integer, fast);
        plain::FromInteger(integer, plain);
        ASSERT_EQ(fast, plain) << integer;
    }
}

void ExpectSameText(const QReal& a, int digits) {
    ASSERT_EQ(qtoasc(a, digits), plain::ToText(a, digits)) << testing::PrintToString(a);
    ASSERT_EQ(qtoplain(a, digits), plain::ToPositionalText(a, digits)) << testing::PrintToString(a);
}

TEST(PlainCore, DecimalTextIsTheSame) {
    QRealRandom random(6);
    for (int i = 0; i < 12000 && !testing::Test::HasFatalFailure(); ++i) {
        const int spread = i % 3 == 0 ? 16600 : i % 3 == 1 ? 500 : 40;
        ExpectSameText(random.Number(16640 - spread, 16640 + spread), random.Integer(-1, 101));
    }
    // Powers of ten, their neighbours and their halves.
    for (int e = -5000; e <= 5000 && !testing::Test::HasFatalFailure(); e += e < -150 || e > 150 ? 97 : 1) {
        QReal power, other;
        asctoq("1E" + std::to_string(e), power);
        for (int k = 0; k < 6; ++k)
            ExpectSameText(k == 0 ? power : random.Near(power), random.Integer(0, 99));
        qmul(constants::kHalf, power, other);
        for (int n = 0; n < 8; ++n) ExpectSameText(other, n);
    }
}

TEST(PlainCore, ReadingTextIsTheSame) {
    QRealRandom random(7);
    const auto read = [](auto reader, const std::string& text) {
        Outcome outcome;
        ClearNumericError();
        const bool wellFormed = reader(text, outcome.result);
        outcome.code = NumericErrorFlag() + (wellFormed ? 0 : 100);
        return outcome;
    };
    for (int i = 0; i < 30000; ++i) {
        std::string text;
        for (int n = random.Integer(0, 110); n > 0; --n)
            text += static_cast<char>('0' + random.Integer(0, 9));
        if (i % 2 == 0)
            text.insert(static_cast<std::size_t>(random.Integer(0, static_cast<int>(text.size()))), 1, '.');
        if (i % 3 == 0) text.insert(0, 1, i % 2 == 0 ? '-' : '+');
        const int range = i % 4 == 0 ? 9000 : i % 4 == 1 ? 5020 : 160;
        if (i % 5 != 0)
            text +=
                (i % 7 == 0 ? "e+" : "E") + std::to_string(random.Integer(i % 7 == 0 ? 0 : -range, range));
        // Some damage here and there.
        constexpr std::string_view kNoise = " .eE+-x\n\r0";
        for (int n = random.Integer(-3, 2); n > 0; --n) {
            const auto place = static_cast<std::size_t>(random.Integer(0, static_cast<int>(text.size())));
            text.insert(place, 1, kNoise[static_cast<std::size_t>(random.Integer(0, 9))]);
        }
        ASSERT_EQ(read(asctoq, text), read(plain::FromText, text)) << text;
    }
}

TEST(PlainCore, ComplexArithmeticIsTheSame) {
    QRealRandom random(8);
    const auto run = [](auto operation, const QComplex& a, const QComplex& b) {
        QComplex result;
        ClearNumericError();
        operation(a, b, result);
        return std::pair(result, NumericErrorFlag());
    };
    for (int i = 0; i < 30000; ++i) {
        const int spread = i % 2 == 0 ? 5 : 16639;
        const auto part = [&] {
            return random.Integer(0, 7) == 0 ? QReal{} : random.Number(16640 - spread, 16640 + spread);
        };
        const QComplex a{part(), part()}, b{part(), part()};
        ASSERT_EQ(run(qcmul, a, b), run(plain::ComplexMultiply, a, b))
            << testing::PrintToString(a) << testing::PrintToString(b);
        ASSERT_EQ(run(qcdiv, a, b), run(plain::ComplexDivide, a, b))
            << testing::PrintToString(a) << testing::PrintToString(b);
        QComplex over = a;
        qcdiv(over, b, over);
        ASSERT_EQ(over, run(qcdiv, a, b).first);
        over = b;
        qcmul(a, over, over);
        ASSERT_EQ(over, run(qcmul, a, b).first);
    }
}

}  // namespace
}  // namespace quorix
