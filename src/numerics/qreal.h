#pragma once

// The extended-precision number formats. Everything the user reads is computed in them.

#include <array>
#include <cstdint>

namespace quorix {

/// Extended-precision real: value = ±0.m · 2^(exponent - 16639), 336 mantissa bits (about 101 decimal
/// digits).
///
/// word 0: sign, 0 or 65535. word 1: biased exponent, 0 means zero. word 2: overflow word, 0 in a stored
/// number. words 3 to 23: mantissa, most significant word first, top bit of word 3 set in a normalised
/// number. There is no infinity and no not-a-number: overflow gives the largest finite pattern.
struct QReal {
    static constexpr std::size_t kWords = 24;
    static constexpr std::uint16_t kNegative = 0xFFFF;
    static constexpr std::uint16_t kExponentOfOne = 16640;
    static constexpr std::uint16_t kLargestExponent = 33280;

    std::array<std::uint16_t, kWords> words{};

    /// Zero is judged by the exponent word alone.
    [[nodiscard]] constexpr bool IsZero() const { return words[1] == 0; }
    [[nodiscard]] constexpr bool IsNegative() const { return words[0] != 0; }
    /// Same words, which tells +0 from -0; use qcmp for the order of values.
    friend constexpr bool operator==(const QReal&, const QReal&) = default;
};

/// Complex number of two extended reals; a real number has an imaginary part of 24 zero words.
struct QComplex {
    QReal re;
    QReal im;
    friend constexpr bool operator==(const QComplex&, const QComplex&) = default;
};

/// Complex number of two doubles: the value of the fast evaluator under graphs and solvers.
struct DComplex {
    double re = 0.0;
    double im = 0.0;
};

}  // namespace quorix
