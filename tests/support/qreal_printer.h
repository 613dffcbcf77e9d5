#pragma once

// How numbers of the core look in a failing test, and their distance in units of the last place.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <ostream>
#include <string_view>

#include "numerics/qcore.h"
#include "numerics/qreal.h"

namespace quorix {

inline QReal Q(std::string_view text) {
    QReal a;
    asctoq(text, a);
    return a;
}

/// " 3.14...E0 [4102 C90F DAA2 ...]": 30 decimals, then exponent and mantissa words in hexadecimal.
inline void PrintTo(const QReal& a, std::ostream* out) {
    *out << qtoasc(a, 30) << " [";
    for (std::size_t i = 0; i < QReal::kWords; ++i) {
        std::array<char, 8> word{};
        std::snprintf(word.data(), word.size(), i == 0 ? "%04X" : " %04X", a.words[i]);
        *out << word.data();
    }
    *out << ']';
}

inline void PrintTo(const QComplex& a, std::ostream* out) {
    PrintTo(a.re, out);
    *out << " + i ";
    PrintTo(a.im, out);
}

/// Distance in units of the last place of `expected`, as a double; 0 for equal values.
inline double UlpDistance(const QReal& actual, const QReal& expected) {
    QReal difference;
    qsub(expected, actual, difference);
    qabs(difference);
    if (difference.IsZero()) return 0;
    if (expected.IsZero()) return HUGE_VAL;
    std::int32_t exponent;
    qfrexp(difference, exponent, difference);
    return std::ldexp(qtoe(difference), exponent + QReal::kExponentOfOne - 1 - expected.words[1] + 336);
}

inline ::testing::AssertionResult WithinUlps(const char* actualText, const char* expectedText,
                                             const char* limitText, const QReal& actual,
                                             const QReal& expected, double limit) {
    const double distance = UlpDistance(actual, expected);
    if (distance <= limit) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << actualText << " is " << distance << " ulps from " << expectedText << ", more than " << limitText
           << "\n  " << ::testing::PrintToString(actual) << "\n  " << ::testing::PrintToString(expected);
}

}  // namespace quorix

#define EXPECT_ULPS(actual, expected, limit) \
    EXPECT_PRED_FORMAT3(::quorix::WithinUlps, actual, expected, limit)
