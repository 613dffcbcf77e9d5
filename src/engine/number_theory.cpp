#include "engine/number_theory.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <random>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/integer_operations.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr double kFibonacciEnd = 1024;

QReal FromDouble(double value) {
    QReal number;
    etoq(value, number);
    return number;
}

std::optional<std::int32_t> ExactInteger(double value) {
    if (!(value >= -2147483648.0 && value <= 2147483647.0) || value != std::trunc(value)) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(value);
}

/// The next argument as a 32-bit integer; `code` when it is none.
std::int64_t NextInteger(NamedArguments& arguments, std::int32_t code) {
    const double value = arguments.Double();
    const auto integer = ExactInteger(value);
    if (calcContext().calcError == 0 && !integer) {
        calcContext().calcError = code;
    }
    return integer.value_or(0);
}

/// Folds all arguments, two at least.
template <class Combine>
double FoldIntegers(NamedArguments& arguments, std::int32_t code, Combine combine) {
    double result = static_cast<double>(NextInteger(arguments, code));
    do {
        const auto next = static_cast<double>(NextInteger(arguments, code));
        result = combine(std::fabs(result), std::fabs(next));
    } while (calcContext().calcError == 0 && arguments.HasMore());
    return result;
}

/// Of non-negative whole doubles, by remainders.
double GcdOf(double a, double b) {
    while (b != 0.0) {
        a = std::fmod(a, b);
        std::swap(a, b);
    }
    return a;
}

double LcmOf(double a, double b) {
    const double divisor = GcdOf(a, b);
    return divisor == 0.0 ? 0.0 : a * b / divisor;
}

/// Product first · (first + 1) · ... · last.
QReal ProductBetween(std::int64_t first, std::int64_t last) {
    QReal product = constants::kOne;
    QReal factor;
    for (std::int64_t n = first; n <= last && NumericErrorFlag() == NUMERIC_OK; ++n) {
        ltoq(static_cast<std::int32_t>(n), factor);
        qmul(factor, product, product);
    }
    return product;
}

/// n and r of ncr and npr; calcError tells whether they are allowed.
std::pair<std::int64_t, std::int64_t> ChoiceArguments(NamedArguments& arguments) {
    const std::int64_t n = NextInteger(arguments, ERROR_NOT_INTEGER);
    const std::int64_t r = NextInteger(arguments, ERROR_NOT_INTEGER);
    if (calcContext().calcError == 0 && n <= r) {
        calcContext().calcError = ERROR_NOT_INTEGER;
    } else if (calcContext().calcError == 0 && r <= 0) {
        calcContext().calcError = ERROR_COMBINATION;
    }
    return {n, r};
}

void FoldNumericFailure() {
    if (NumericErrorFlag() != NUMERIC_OK && calcContext().calcError == 0) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
    }
}

std::function<std::uint64_t()>& RandomClock() {
    static std::function<std::uint64_t()> clock = [] {
        using namespace std::chrono;
        return static_cast<std::uint64_t>(
            duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    };
    return clock;
}

}  // namespace

void SetRandomClock(std::function<std::uint64_t()> clock) {
    RandomClock() = std::move(clock);
}

QReal CallGcd(NamedArguments& arguments) {
    return FromDouble(FoldIntegers(arguments, ERROR_NOT_INTEGER, GcdOf));
}

QReal CallLcm(NamedArguments& arguments) {
    return FromDouble(FoldIntegers(arguments, ERROR_LCM, LcmOf));
}

QReal CallFibonacci(NamedArguments& arguments) {
    const double index = arguments.Double();
    if (calcContext().calcError != 0) {
        return {};
    }
    if (index < 0.0 || index != std::trunc(index)) {
        calcContext().calcError = ERROR_INTEGER_TYPE;
        return {};
    }
    if (index >= kFibonacciEnd) {
        calcContext().calcError = ERROR_OUT_OF_RANGE;
        return {};
    }
    double before = 1.0;
    double current = 0.0;
    for (int n = 0; n < static_cast<int>(index); ++n) {
        before += current;
        std::swap(before, current);
    }
    return FromDouble(current);
}

QReal CallRandom(NamedArguments& arguments) {
    const QReal a = arguments.Value();
    const QReal b = arguments.Value();
    if (calcContext().calcError != 0) {
        return {};
    }
    // Seeded anew at each call: two calls in one tick give the same number. This is intended.
    std::minstd_rand generator(static_cast<std::minstd_rand::result_type>(RandomClock()()));
    const double x = std::fabs(std::sin(static_cast<double>(generator() & 0x7FFF)));
    const bool ordered = qcmp(a, b) <= 0;
    const QReal& low = ordered ? a : b;
    const QReal& high = ordered ? b : a;
    QReal span;
    qsub(low, high, span);
    QReal result;
    qmul(FromDouble(x), span, result);
    qadd(low, result, result);
    return result;
}

QReal CallPermutations(NamedArguments& arguments) {
    const auto [n, r] = ChoiceArguments(arguments);
    if (calcContext().calcError != 0) {
        return {};
    }
    const QReal result = ProductBetween(n - r + 1, n);
    FoldNumericFailure();
    return result;
}

QReal CallCombinations(NamedArguments& arguments) {
    const auto [n, r] = ChoiceArguments(arguments);
    if (calcContext().calcError != 0) {
        return {};
    }
    const std::int64_t fewer = std::min(r, n - r);
    const QReal numerator = ProductBetween(n - fewer + 1, n);
    const QReal denominator = ProductBetween(2, fewer);
    QReal result;
    qdiv(denominator, numerator, result);
    FoldNumericFailure();
    return result;
}

QReal CallComplement(NamedArguments& arguments, int radix, Complement complement) {
    const double value = qtoe(arguments.Value(radix));
    if (calcContext().calcError != 0) {
        return {};
    }
    constexpr double kEnd = 9223372036854775808.0;
    if (!(value >= -kEnd && value < kEnd) || value != std::trunc(value)) {
        calcContext().calcError = ERROR_INTEGER_TYPE;
        return {};
    }
    const auto operation = complement == Complement::ones ? IntegerNot : IntegerNegate;
    return FromDouble(operation(value, calcContext().wordSize).value);
}

}  // namespace quorix
