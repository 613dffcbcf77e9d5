#include "equations/equation_solver.h"

#include <gtest/gtest.h>

#include <array>

#include "engine/calc_context.h"
#include "equations/closed_form.h"
#include "equations/coefficient_line.h"
#include "equations/exact_root.h"
#include "equations/extended_polynomial.h"
#include "equations/simultaneous.h"
#include "equations/surd.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : " ") + line;
    return text;
}

struct Row {
    const char* line;
    std::string shown;
};

void ExpectSolutions(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(Joined(SolveEquationCommand(FromUtf8(row.line))), row.shown) << row.line;
        EXPECT_EQ(calcContext().calcError, 0) << row.line;
    }
}

TEST(EquationSolver, ExactRootsOfDegreesOneAndTwo) {
    ExpectSolutions({
        {"-2 3", R"(X={\frac{3}{2}}=1.5)"},
        {"0 1 2", "X=-2=-2"},
        {"1 -3 2", "X_1=1=1 X_2=2=2"},
        {"2 -3 1", R"(X_1={\frac{1}{2}}=0.5 X_2=1=1)"},
        {"1 0 -2", R"(X_1={-\sqrt{2}}=-1.414213562373 X_2={\sqrt{2}}=1.414213562373)"},
        {"1 -2 -1", R"(X_1={1-\sqrt{2}}=-0.414213562373 X_2={1+\sqrt{2}}=2.414213562373)"},
        {"-3 0 1",
         R"(X_1={\frac{{\sqrt{3}}}{{3}}}=0.57735026919 X_2={\frac{{\sqrt{3}}}{{-3}}}=-0.57735026919)"},
        {"1 0 0", "X_1=0=0 X_2=0=0"},
    });
}

TEST(EquationSolver, DecimalRootsWhereNoExactOneIsFound) {
    ExpectSolutions({
        // Rationals that are too large, a discriminant just above a square, and a sum that cancels.
        {"1 -100000000000 1", "X_1=100000000000 X_2=0.00000000001"},
        {"1 -2.0000000001 1", "X_1=1.00001000005 X_2=0.99999000005"},
        // Near the other root is not near enough.
        {"50000000 -100000001 50000001", "X_1=1.00000002 X_2=1"},
        {"1 1/10^10 0", "X_1=0 X_2=-0.0000000001"},
        {"1 -1e60 1e60", "X_1=999999999999999949387135297074018866963645011013410073083904 X_2=1"},
    });
}

TEST(EquationSolver, CubicsAndQuartics) {
    ExpectSolutions({
        {"1 -6 11 -6", "X_1=3 X_2=1 X_3=2"},
        {"1 3 3 1", "X_1=-1"},
        {"1 -3 3 1", "X_1=-0.2599210499"},
        {"1e100 0 0 -8e100", "X_1=2"},
        {"1 cos(0) -cos(0) -1", "X_1=1 X_2=-1 X_3=-1"},
        {"1 0 -5 0 4", "X_1=2 X_2=1 X_3=-2 X_4=-1"},
        {"1 2 3 4 0", "X_1=0 X_2=-1.6506291914"},
        {"1 -4 6 -4 1", "X_1=1"},
        {"1 4 6 4 1", "X_1=-1"},
        {"1 -10 35 -50 24", "X_1=4 X_2=3 X_3=1 X_4=2"},
        // The first intermediate value cancels to nothing.
        {"1 1 0 4 1", "X_1=-1.9325087503 X_2=-0.2471583568"},
        {"1 -8 24 -32 -65", "X_1=5 X_2=-1"},
    });
}

TEST(EquationSolver, RootsOfVeryDifferentSizesAndCloseTogether) {
    ExpectSolutions({
        {"-388/10^6 -588e9 -505/10^9 304e4 627e0",
         "X_1=-1515463917525773.1958762887 X_2=0.0023706277 X_3=-0.0021626374 X_4=-0.0002079903"},
        {"-356/10^31 0 325/10^9 -371/10^37", "X_1=-95546917706.1513974181 X_2=95546917706.1513974181 X_3=0"},
        {"1/10^40 -1e20 -1 3 0",
         "X_1=0 X_2=1" + std::string(60, '0') + " X_3=-0.0000000002 X_4=0.0000000002"},
        {"1e60 0 0 0 1/10^30", std::string(kNoRoot)},
        {"1 0 0 0 -1e160", "X_1=1" + std::string(40, '0') + " X_2=-1" + std::string(40, '0')},
        // Three of four close together, then all.
        {"70000000000 729999999999999999999999789999999978790000 "
         "-2190000000221189999999999789999999957579999999937 "
         "2190000000442380000000656929999999978789999999937000000 "
         "-730000000221190000000657000000000000000000000000000000000000",
         "X_1=-10428571428571428571428571428571.4285714286 X_2=1000000.0003 X_3=1000000 X_4=1000000.000003"},
        {"1 -0.9 0.26999999999999999999 -0.026999999999999999997",
         "X_1=0.3000000001 X_2=0.2999999999 X_3=0.3"},
        {"1 -10.40000506 40.5600394680003005 -70.3041026168015626000025 45.6976889345620313800065",
         "X_1=2.6 X_2=2.60000001 X_3=2.60000005 X_4=2.600005"},
    });
}

TEST(EquationSolver, Messages) {
    const std::string longest(126, '1');
    for (const std::string line : {"", "2", "0", "0 0", "1 2 3 4 5 6"}) {
        EXPECT_EQ(Joined(SolveEquationCommand(FromUtf8(line))), kInvalidDegree) << line;
    }
    for (const std::string& line : {std::string("pi e"), std::string("1 x"), std::string("1 (2"),
                                    std::string("1/0 2"), "1 " + longest + "1", "1 " + longest + "12"}) {
        EXPECT_EQ(Joined(SolveEquationCommand(FromUtf8(line))), kInvalidLine) << line;
    }
    EXPECT_EQ(Joined(SolveEquationCommand(FromUtf8("0." + longest.substr(2) + " -1"))), "X=9=9");
    EXPECT_EQ(Joined(SolveEquationCommand(u"1 1 1")), kNoQuadraticRoot);
    EXPECT_EQ(Joined(SolveEquationCommand(u"1 0 5 0 4")), kNoRoot);
    EXPECT_EQ(CheckedLine(u"  ./1   --2//3 4..5 /. "), u"1 -2/3 4.5");
}

TEST(EquationSolver, RootsShownAreRoots) {
    // A walk over coefficients from tiny to huge, whole, broken and irrational.
    static constexpr auto kPool =
        std::to_array<std::u16string_view>({u"0", u"1", u"-1", u"3", u"-7/3", u"0.125", u"sqrt(2)", u"-pi",
                                            u"12345.678", u"1/10^9", u"-1e9", u"2e30"});
    std::uint32_t state = 12345;
    const auto pick = [&state] {
        state = state * 1664525U + 1013904223U;
        return kPool[(state >> 16) % kPool.size()];
    };
    int shown = 0;
    for (int round = 0; round < 300; ++round) {
        std::u16string line(kPool[1 + static_cast<std::size_t>(round) % (kPool.size() - 1)]);
        const int degree = 2 + round % 3;
        for (int i = 0; i < degree; ++i) line.append(u" ").append(pick());
        const ExtendedPolynomial polynomial = *MakePolynomial(CoefficientTexts(line));
        int count = 0;
        for (int index = 0; index < 2 && degree == 2; ++index) {
            if (const auto text = ExactRootText(line, index, count)) {
                EXPECT_TRUE(IsRootOf(polynomial, *ExtendedValue(*text))) << ToUtf8(line);
                ++shown;
            }
        }
        std::array<std::u16string, 3> cubic;
        std::array<std::u16string, 4> quartic;
        if (degree == 3) {
            // An odd degree always has a real root.
            EXPECT_NE(CubicRoots(line, cubic), 0) << ToUtf8(line);
            ++shown;
        } else if (degree == 4) {
            shown += QuarticRoots(line, quartic) != 0 ? 1 : 0;
        }
    }
    EXPECT_GT(shown, 150);
}

TEST(Surds, SquaresAreTakenOut) {
    const struct {
        const char16_t* value;
        const char16_t* text;
        std::int32_t numerator;
        std::int32_t denominator;
    } rows[] = {
        {u"8", u"sqrt(2)", 2, 1},        {u"12", u"sqrt(3)", 2, 1},    {u"2 1/2", u"sqrt(5/2)", 1, 1},
        {u"1/2", u"sqrt(1/2)", 1, 1},    {u"4/3", u"sqrt(1/3)", 2, 1}, {u"7/9", u"sqrt(7)", 1, 3},
        {u"1 17/25", u"sqrt(42)", 1, 5}, {u"0", u"0", 1, 1},
    };
    for (const auto& row : rows) {
        const Surd surd = SimplifySurd(row.value);
        EXPECT_EQ(surd.text, row.text) << ToUtf8(row.value);
        EXPECT_EQ(surd.outer.numerator, row.numerator) << ToUtf8(row.value);
        EXPECT_EQ(surd.outer.denominator, row.denominator) << ToUtf8(row.value);
    }
}

TEST(Simultaneous, SolvesOrSaysWhyNot) {
    const struct {
        std::vector<std::u16string> equations;
        const char* shown;
    } rows[] = {
        {{u"1 1 2", u" 1  -1 0 "}, "X_1=1=1 X_2=1=1"},
        {{u"3 1 1", u"1 -1 0"}, R"(X_1=\frac{1}{4}=0.25 X_2=\frac{1}{4}=0.25)"},
        {{u"2 0 -7", u"0 sqrt(4) 20"}, R"(X_1=-3 \frac{1}{2}=-3.5 X_2=10=10)"},
        {{u"1 1 2", u"1 1 2"}, "Cannot solved"},
        {{u"1 0 1", u"0 1/10^11 1"}, "Cannot solved"},
        // Twice the first row is the last; the determinant is rounding.
        {{u"1e5/3 1e5/7 9 1", u"1 2e5/9 3 4", u"2e5/3 2e5/7 18 3"}, "Cannot solved"},
        {{u"1e7 1/10^7 2", u"1e7 -1/10^7 0"}, R"(X_1=\frac{1}{10000000}=0 X_2=10000000=10000000)"},
        {{u"1 1 2", u"1 1"}, "Equations have not the same number of parameters!"},
        {{u"1 1 2"}, "Number of equations and number of variables are not the same."},
        {{}, "Number of equations and number of variables are not the same."},
    };
    for (const auto& row : rows) {
        const SystemSolution solution = SolveSimultaneous(row.equations);
        EXPECT_EQ(std::string(solution.message) + Joined(solution.lines), row.shown);
    }
    // Thirty equations: ones everywhere, two on the diagonal, so every unknown is 1.
    std::vector<std::u16string> large(30);
    for (std::size_t row = 0; row < large.size(); ++row) {
        for (std::size_t col = 0; col < large.size(); ++col) large[row] += row == col ? u"2 " : u"1 ";
        large[row] += u"31";
    }
    const SystemSolution solution = SolveSimultaneous(large);
    ASSERT_EQ(solution.lines.size(), 30U);
    EXPECT_EQ(solution.lines[29], "X_{30}=1=1");
}

}  // namespace
}  // namespace quorix
