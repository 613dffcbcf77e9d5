// Every code that calculation raises, through the doors that its callers use.

#include <algorithm>
#include <set>

#include "engine/eval_double.h"
#include "engine/eval_matrix.h"
#include "engine/radix_conversion.h"
#include "matrix/matrix_operators.h"
#include "support/engine_fixture.h"

namespace quorix {
namespace {

class ErrorCodesTest : public EngineTest {
  protected:
    void SetUp() override {
        EngineTest::SetUp();
        SetMatrixOperators(MatrixOperatorTable());
        Store(2, 2, 2, {1, 2, 3, 4});
        Store(3, 2, 2, {1, 2, 2, 4});
        Store(4, 2, 3, {1, 2, 3, 4, 5, 6});
        Store(5, 2, 2, {0, 0, 0, 0});
    }
    void TearDown() override { SetMatrixOperators({}); }
    static void Store(int slot, std::uint16_t rows, std::uint16_t cols, std::vector<double> data) {
        SetVariableMatrix(slot, rows, cols, data);
    }
    /// `texts` are parted by blanks.
    template <class Run>
    void Expect(std::int32_t code, std::string_view texts, Run run) {
        for (std::size_t at = 0; at < texts.size();) {
            const std::size_t end = std::min(texts.find(' ', at), texts.size());
            ClearCalcError();
            SetAngleUnit(UNIT_RADIANS);
            run(Wide(texts.substr(at, end - at)));
            EXPECT_EQ(calcContext().calcError, code) << texts.substr(at, end - at);
            seen_.insert(calcContext().calcError);
            at = end + 1;
        }
    }

    std::set<std::int32_t> seen_;
};

struct Refusals {
    std::int32_t code;
    std::string_view texts;
};

constexpr Refusals kNumbers[] = {
    {-1, "1+ 1+*2 nosuch(1) 1.2.3 gcd(1,1+) fnSum(x+,x,1,2) csch(1) [VA]+1"},
    {-4, "gm(X)"},
    {-5, "7~mod~0 fnInt(1/x,x,-1,1)"},
    {-7, "fib(1024)"},
    {-8, "gcd(5) gcd gcd(1,2 gcd() gcd(,) RT(2) RT(,8) fnInt(x,x,0) fnSum(x,x) sln(1,2"},
    {-10, "fnInt(sin(1000*x)*x,x,0,100)"},
    {-11, "gcd(1.5,3) gcd(3000000000,3) ncr(5,5) ncr(2,5) npr(5.5,2)"},
    {-12, "fnRoot(x^2+1,x,0,2) rate(10,100,100,100,12) fnRoot(x^3,x,-1,2)"},
    {-35, "lcm(1.5,3)"},
    {-41, "fnSum(x,x,10,1) fnSum(x,x,1,2,5) fnSum(x,x,1,5,0) fnProduct(x,x,1,5,-1)"},
    {-50, "ncr(5,0) npr(5,0)"},
    {-51, "sln(1,1,0) fv(1,0,1,1,1)"},
    {-53, "fib(-1) fib(1.5) not(1.5) 5.5~and~3 5~shl~0.5"},
    {-54, "gcd(1,i) cpl(i) fnSum(i*x,x,1,2) i% (1+i)! (1+i)~and~3 fnRoot(i*x,x,1,2)"},
    {-55, "fnDeriv(sqrt(-(x^2)),x,0)"},
    {-56, "1/0 0/0 1e5100 1+0e5 tan(pi/2) (0-1)! 1501! 0^(-1) log(0) fnEval(1/x,x,0) fnDeriv(1/x,x,0)"},
};

// Infinity and what is no number come from literals beyond the doubles.
constexpr Refusals kDoubles[] = {
    {-1, "1.2.3 [VA] y 1+"},
    {-2, "acos(1e400) acos(1e400-1e400)"},
    {-3, "asin(1e400) asin(i*1e400)"},
    {-4, "sqrt(1e400-1e400)"},
    {-5, "1/0 x/(x-1.5) i/0 7~mod~0"},
    {-7, "171! (-1)! 1e400! 10^133 (-10)^133 0.1^(-133) 0^(-1) (10*i)^133"},
    {-13, "asinh(1e400-1e400)"},
    {-14, "acosh(1e400-1e400)"},
    {-15, "atanh(1e400) atanh(1e400-1e400)"},
    {-16, "acoth(0)"},
    {-17, "atan(1e400-1e400)"},
    {-18, "acot(i*1e400)"},
    {-19, "sin(1e400)"},
    {-20, "cos(1e400)"},
    {-21, "tan(1e400) tan(pi/2) tan(-1.5*pi) tan(8.5*pi)"},
    {-22, "ctan(1e400)"},
    {-23, "sinh(i*1e400)"},
    {-24, "cosh(1e400-1e400)"},
    {-25, "tanh(1e400-1e400)"},
    {-26, "ctanh(i*1e400)"},
    {-27, "sec(pi/2) sec(1e400)"},
    {-28, "csc(0) csc(pi) csc(-3*pi)"},
    {-29, "sech(1e400-1e400)"},
    {-30, "csch(i*1e400)"},
    {-31, "asec(0)"},
    {-32, "acsc(0)"},
    {-33, "asech(1e400-1e400)"},
    {-34, "acsch(i*1e400)"},
    {-53, "2.5! (-0.5)! (1e400-1e400)! 5.5~and~3 5~rtl~0.5"},
    {-54, "(5+i)! i% (5+i)~and~3 5~mod~(3+i) (5.5+i)~shl~3"},
    {-57, "abs(1e400-1e400) abs(i*1e400)"},
};

constexpr Refusals kMatrices[] = {
    {-1, "eigl(3) eigl([VC]) eigv([VC]) orth(2) sin(1) [VA]* nosuch solve([VA]) solve([VA],[VC] pi"},
    {-5, "inv(0) 1/0"},
    {-10, "[VA]+[VC] [VA]+1 1+[VA]"},
    {-38, "[VC]*[VA] solve([VA],trans([VC]))"},
    {-39, "inv([VC]) inv([VB]) [VA]/[VB] solve([VB],[VA]) inv([VD])"},
    {-42, "diag([VA]) diag([VC]) diag(1)"},
    {-43, "rank(3) tri(2)"},
    {-44, "det([VC]) det(3)"},
    {-45, "trans(3)"},
    {-46, "[VA]-[VC] 1-[VA] [VA]-1"},
    {-47, "eigv([VD])"},
    {-48, "orth([VB]) orth([VD])"},
    {-56, "1e999 [VA]*1e400"},
};

TEST_F(ErrorCodesTest, EachIsRaisedAndKeptThroughItsDoor) {
    const auto number = [](std::u16string text) {
        std::replace(text.begin(), text.end(), u'~', u' ');
        EvaluateExpression(text, EvaluationMode::number, 10);
    };
    Store(SLOT_LIST, 2, 1, {-1, 4});
    for (const auto& [code, texts] : kNumbers) Expect(code, texts, number);
    Store(SLOT_LIST, 1, 1, {7});
    Expect(-5, "ssd(X)", number);
    Store(SLOT_LIST, 1, 2, {7, 8});
    Expect(-49, "sum(X) gm() median() Nsin(3)", number);
    ClearVariable(SLOT_LIST);
    Expect(-49, "sum(X) avg() md() N()", number);
    for (const auto& [code, texts] : kDoubles) {
        Expect(code, texts, [](std::u16string text) {
            std::replace(text.begin(), text.end(), u'~', u' ');
            EXPECT_FALSE(EvalToDouble(text, u"x", 1.5, 10));
        });
    }
    for (const auto& [code, texts] : kMatrices) {
        Expect(code, texts, [](const std::u16string& text) {
            EXPECT_EQ(EvaluateExpression(text, EvaluationMode::matrix, 10).kind, KIND_REAL);
        });
    }
    Expect(-40, " ", [](const std::u16string&) { ConvertExpressionRadix(u"", 10, 16); });
    // Nothing raises the others: some stand in the table alone, -52 belongs to macros.
    for (const std::int32_t unused : {-6, -9, -36, -37, -52}) EXPECT_TRUE(seen_.insert(unused).second);
    EXPECT_EQ(seen_.size(), 57U);
}

}  // namespace
}  // namespace quorix
