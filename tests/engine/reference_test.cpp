// Evaluations beside an independent computation, and the compiled walk beside the walk over the postfix text.

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>

#include "engine/complex_operator_table.h"
#include "engine/double_operator_table.h"
#include "engine/euler_number.h"
#include "engine/eval_complex.h"
#include "engine/eval_double.h"
#include "engine/number_grammar.h"
#include "engine/postfix_compiler.h"
#include "engine/tokeniser.h"
#include "numerics/constants.h"
#include "support/engine_fixture.h"
#include "support/mpfr_number.h"

namespace quorix {
namespace {

using ReferenceTest = EngineTest;

// Writes a random expression by the grammar of sums, products and signed factors, and computes it on the way
// in long doubles. Not usable when a difference has cancelled or a divisor vanishes.
class Generator {
  public:
    explicit Generator(unsigned seed) : random_(seed) {}

    long double Sum(int depth, std::string& text) { return Chain(depth, text, "+-", &Generator::Product); }
    [[nodiscard]] bool IsUsable() const { return usable_; }

  private:
    using Operand = long double (Generator::*)(int, std::string&);

    unsigned Below(unsigned n) { return static_cast<unsigned>(random_()) % n; }

    long double Chain(int depth, std::string& text, std::string_view signs, Operand operand) {
        long double value = (this->*operand)(depth, text);
        for (unsigned terms = Below(3); terms > 0; --terms) {
            const char sign = signs[Below(2)];
            text += Below(4) == 0 ? std::string(" ") + sign + " " : std::string(1, sign);
            const long double left = value;
            const long double right = (this->*operand)(depth, text);
            switch (sign) {
                case '+': value = left + right; break;
                case '-': value = left - right; break;
                case '*': value = left * right; break;
                default: value = left / right;
            }
            if (signs == "+-" && std::fabs(value) < 1e-3L * std::fabs(left)) usable_ = false;
        }
        return value;
    }
    long double Product(int depth, std::string& text) { return Chain(depth, text, "*/", &Generator::Factor); }
    long double Factor(int depth, std::string& text) {
        if (depth <= 0 || Below(2) == 0) return Number(text);
        const bool negative = Below(3) == 0;
        text += negative ? "(-" : "(";
        const long double value = negative ? -Factor(depth - 1, text) : Sum(depth - 1, text);
        text += ")";
        return value;
    }
    long double Number(std::string& text) {
        std::string number = std::to_string(1 + Below(9999));
        if (Below(2) == 0) number += "." + std::to_string(random_());
        if (Below(8) == 0) number += (Below(2) == 0 ? "e" : "E") + std::to_string(Below(30));
        text += number;
        return std::strtold(number.c_str(), nullptr);
    }

    std::mt19937 random_;
    bool usable_ = true;
};

// The core's own accuracy is judged elsewhere; this is about what belongs to which operator.
TEST_F(ReferenceTest, FourFunctionsAreOrderedAsElsewhere) {
    int compared = 0;
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        Generator generator(seed);
        std::string text;
        const auto expected = static_cast<double>(generator.Sum(4, text));
        if (!generator.IsUsable() || text.size() > 4000 || !(std::fabs(expected) < 1e300)) continue;
        ClearCalcError();
        const auto value = EvalToComplex(Wide(text), {}, nullptr, 10);
        ASSERT_TRUE(value) << text;
        EXPECT_NEAR(qtoe(value->re), expected, 1e-10 * std::fabs(expected)) << text;
        EXPECT_TRUE(value->im.IsZero()) << text;
        ++compared;
    }
    EXPECT_GT(compared, 1000);
}

TEST_F(ReferenceTest, TheConstantEHasAllItsBits) {
    MpfrNumber e(constants::kOne);
    mpfr_exp(e.Get(), e.Get(), MPFR_RNDN);
    EXPECT_EQ(e.ToQReal(), EulerNumber());
}

// What the two evaluators differ in, for the walk below.
template <class Value>
struct Lane;

template <>
struct Lane<QComplex> {
    static const OperatorTable<QComplex>& Table() { return ComplexOperatorTable(); }
    static bool Number(std::u16string_view token, QComplex& value) {
        ClearCalcError();
        asctoq(Narrow(token), value.re);
        if (NumericErrorFlag() != NUMERIC_OVERFLOW) return true;
        calcContext().calcError = -56;
        return false;
    }
    static bool Word(std::u16string_view token, QComplex& value) {
        ClearCalcError();
        if (token == u"pi") return value.re = constants::kPi, true;
        if (token == u"e") return value.re = EulerNumber(), true;
        if (token == u"i") return value.im = constants::kOne, true;
        const int slot = FindVariable(token);
        if (slot < 0 || Variable(slot).kind == KIND_MATRIX) return false;
        value = Variable(slot).number;
        return true;
    }
    static QComplex Bound() { return {Real("0.7"), {}}; }
};

template <>
struct Lane<DComplex> {
    static const OperatorTable<DComplex>& Table() { return DoubleOperatorTable(); }
    static bool Number(std::u16string_view token, DComplex& value) {
        value.re = std::strtod(Narrow(token).c_str(), nullptr);
        return true;
    }
    static bool Word(std::u16string_view token, DComplex& value) {
        if (token == u"pi") return value.re = 3.141592653589793, true;
        if (token == u"e") return value.re = std::exp(1.0), true;
        return token == u"i" ? (value.im = 1.0, true) : false;
    }
    static DComplex Bound() { return {0.7, 0.0}; }
};

// The evaluators as they are told: postfix text cut at its blanks, operators by linear search.
template <class Value>
std::optional<Value> WalkText(std::u16string text, int radix) {
    std::int32_t& error = calcContext().calcError;
    if (!TokeniseExpression(text, radix, u"x") || !CompileToPostfix(text)) {
        error = -1;
        return std::nullopt;
    }
    std::vector<Value> entries(1024);
    OperandStack<Value> stack{entries};
    std::vector<std::int32_t> bases;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find(u' ', at);
        const std::u16string token = text.substr(at, end - at);
        at = end + 1;
        const OperatorRow<Value>* row = nullptr;
        for (const auto& candidate : Lane<Value>::Table().Rows()) {
            if (row == nullptr && candidate.name == token) row = &candidate;
        }
        if (row != nullptr) {
            row->function(stack, bases.empty() ? 0 : bases.back());
        } else if (token == u"(") {
            bases.push_back(stack.depth);
        } else if (token == u")") {
            bases.pop_back();
        } else {
            Value value{};
            const bool isNumber = IsNumber(token);
            if (!isNumber && token == u"x") {
                ClearCalcError();
                value = Lane<Value>::Bound();
            } else if (!(isNumber ? Lane<Value>::Number(token, value) : Lane<Value>::Word(token, value))) {
                if (error == 0) error = -1;
            }
            if (error == 0) stack.Push(value);
        }
        if (error != 0) return std::nullopt;
    }
    return entries[0];
}

// Operands and operators in turn make valid texts; soup of pieces makes the rest.
std::string RandomText(std::mt19937& random, int radix) {
    static constexpr std::string_view kOperands[] = {"1",       "2.5", "7",       "0",        "12e3", "x",
                                                     "pi",      "e",   "i",       "[VA]",     "(-3)", "(x-1)",
                                                     "(1+2*x)", "0e5", "cosh(x)", "(cosh(i))"};
    static constexpr std::string_view kPieces[] = {
        "1",   "2.5",    "12e3", "+",    "-",      "*",  "/",  "(",     ")",     " ",     "x",
        "pi",  "[VA]",   "[VB]", "sin ", "abs(",   "^",  "!",  "%",     " exp ", " mod ", "1.2.3",
        "0e5", "1e5100", "(-",   ")*(",  "/cosh(", "FF", "10", " and ", "iroot"};
    std::string text;
    const bool alternating = random() % 3 != 0;
    const std::size_t length = 1 + random() % 12;
    for (std::size_t i = 0; i < length; ++i) {
        if (!alternating) {
            text += kPieces[random() % std::size(kPieces)];
        } else {
            if (i > 0) text += "+-*/"[random() % 4];
            text += radix == 10 ? std::string(kOperands[random() % std::size(kOperands)])
                                : std::to_string(random() % 2);
        }
    }
    return text;
}

bool SameBits(const QComplex& a, const QComplex& b) {
    return a == b;
}
bool SameBits(const DComplex& a, const DComplex& b) {
    return std::memcmp(&a.re, &b.re, sizeof a.re) == 0 && std::memcmp(&a.im, &b.im, sizeof a.im) == 0;
}

template <class Value, class Evaluate>
int CompareWalks(Evaluate evaluate) {
    std::mt19937 random(20);
    int valid = 0;
    for (int i = 0; i < 20000; ++i) {
        const int radix = i % 4 == 0 ? 16 : i % 9 == 0 ? 2 : 10;
        const std::u16string text = Wide(RandomText(random, radix));
        ClearCalcError();
        const std::optional<Value> expected = WalkText<Value>(text, radix);
        const std::int32_t expectedError = calcContext().calcError;
        ClearCalcError();
        const std::optional<Value> actual = evaluate(text, radix);
        EXPECT_EQ(calcContext().calcError, expectedError) << Narrow(text) << " radix " << radix;
        EXPECT_EQ(actual.has_value(), expected.has_value()) << Narrow(text) << " radix " << radix;
        if (!actual || !expected) continue;
        EXPECT_TRUE(SameBits(*actual, *expected)) << Narrow(text) << " radix " << radix;
        ++valid;
    }
    return valid;
}

TEST_F(ReferenceTest, CompiledTokensGiveWhatThePostfixTextGives) {
    SetVariableComplex(2, {Real("1.5"), Real("-2")});
    const QReal bound = Lane<QComplex>::Bound().re;
    EXPECT_GT(CompareWalks<QComplex>([&bound](std::u16string_view text, int radix) {
                  return EvalToComplex(text, u"X", &bound, radix);
              }),
              8000);
    EXPECT_GT(CompareWalks<DComplex>(
                  [](std::u16string_view text, int radix) { return EvalToDouble(text, u"X", 0.7, radix); }),
              6000);
}

}  // namespace
}  // namespace quorix
