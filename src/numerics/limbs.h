#pragma once

// Mantissas as six 64-bit limbs: the form in which the core computes. Internal to the number core and its
// functions.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "numerics/qreal.h"

namespace quorix::limbs {

using Limb = std::uint64_t;
__extension__ typedef unsigned __int128 DoubleLimb;

inline constexpr std::size_t kLimbs = 6;
inline constexpr int kLimbBits = 64;

/// A mantissa as a binary fraction of 384 bits, limb 5 the most significant. Limb 0 holds word 23 in its top
/// 16 bits, the guard word in the next 16, and finer bits below.
using Mantissa = std::array<Limb, kLimbs>;

/// One unit of word 23, and half of it: the top bit of the guard word.
inline constexpr Limb kUnit = Limb{1} << 48;
inline constexpr Limb kHalfUnit = kUnit >> 1;
/// Bits of limb 0 that a register of 25 words can hold.
inline constexpr Limb kGuardMask = ~Limb{0xFFFFFFFF};
inline constexpr Limb kTopBit = Limb{1} << 63;

/// a + b + carry; carry becomes the carry out.
[[gnu::always_inline]] inline Limb AddWithCarry(Limb a, Limb b, unsigned char& carry) {
#if defined(__x86_64__)
    unsigned long long sum;
    carry = _addcarry_u64(carry, a, b, &sum);
    return sum;
#else
    const DoubleLimb sum = DoubleLimb{a} + b + carry;
    carry = static_cast<unsigned char>(sum >> kLimbBits);
    return static_cast<Limb>(sum);
#endif
}

/// a - b - borrow; borrow becomes the borrow out.
[[gnu::always_inline]] inline Limb SubtractWithBorrow(Limb a, Limb b, unsigned char& borrow) {
#if defined(__x86_64__)
    unsigned long long difference;
    borrow = _subborrow_u64(borrow, a, b, &difference);
    return difference;
#else
    const DoubleLimb difference = DoubleLimb{a} - b - borrow;
    borrow = static_cast<unsigned char>(difference >> kLimbBits) & 1;
    return static_cast<Limb>(difference);
#endif
}

inline DoubleLimb Product(Limb a, Limb b) {
    return DoubleLimb{a} * b;
}

inline Limb High(DoubleLimb a) {
    return static_cast<Limb>(a >> kLimbBits);
}

inline Limb Low(DoubleLimb a) {
    return static_cast<Limb>(a);
}

/// Sum of the limbs of one column, and the carry into the next.
struct Column {
    DoubleLimb sum = 0;

    void Add(Limb limb) { sum += limb; }
    /// Gives the column's limb and moves to the next column.
    Limb Next() {
        const Limb result = Low(sum);
        sum >>= kLimbBits;
        return result;
    }
};

/// Calls f with the constants 0 to N - 1. Constant indices keep the limbs in registers, which loops do not.
template <std::size_t N, class F>
inline void Unrolled(F&& f) {
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        (f(std::integral_constant<std::size_t, I>{}), ...);
    }
    (std::make_index_sequence<N>{});
}

/// The four 16-bit lanes of a limb in the opposite order.
inline Limb ReverseLanes(Limb limb) {
    limb = std::rotl(limb, 32);
    constexpr Limb kLowLanes = 0x0000FFFF0000FFFF;
    return (limb & kLowLanes) << 16 | (limb >> 16 & kLowLanes);
}

#if defined(__SSE2__)

/// Reverses the lanes in both halves of eight words.
inline __m128i ReverseLanes(__m128i words) {
    return _mm_shufflehi_epi16(_mm_shufflelo_epi16(words, 0x1B), 0x1B);
}

inline Limb LowHalf(__m128i a) {
    return static_cast<Limb>(_mm_cvtsi128_si64(a));
}

inline Mantissa Load(const QReal& a) {
    const auto* words = a.words.data();
    const __m128i first = ReverseLanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(words + 3)));
    const __m128i second = ReverseLanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(words + 11)));
    const __m128i third = ReverseLanes(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(words + 19)));
    return {Limb{words[23]} << 48,
            LowHalf(third),
            LowHalf(_mm_unpackhi_epi64(second, second)),
            LowHalf(second),
            LowHalf(_mm_unpackhi_epi64(first, first)),
            LowHalf(first)};
}

/// Stores words 3 to 23 and drops what lies below them.
inline void Store(const Mantissa& m, QReal& a) {
    auto* words = a.words.data();
    const auto pair = [](Limb low, Limb high) {
        return ReverseLanes(_mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low)));
    };
    _mm_storeu_si128(reinterpret_cast<__m128i*>(words + 3), pair(m[5], m[4]));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(words + 11), pair(m[3], m[2]));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(words + 19), pair(m[1], 0));
    words[23] = static_cast<std::uint16_t>(m[0] >> 48);
}

#else

inline Mantissa Load(const QReal& a) {
    Mantissa m;
    for (std::size_t i = 0; i + 1 < kLimbs; ++i) {
        const std::uint16_t* words = &a.words[3 + 4 * i];
        m[kLimbs - 1 - i] = Limb{words[0]} << 48 | Limb{words[1]} << 32 | Limb{words[2]} << 16 | words[3];
    }
    m[0] = Limb{a.words[23]} << 48;
    return m;
}

/// Stores words 3 to 23 and drops what lies below them.
inline void Store(const Mantissa& m, QReal& a) {
    for (std::size_t i = 0; i + 1 < kLimbs; ++i) {
        std::uint16_t* words = &a.words[3 + 4 * i];
        for (std::size_t k = 0; k < 4; ++k)
            words[k] = static_cast<std::uint16_t>(m[kLimbs - 1 - i] >> (48 - 16 * k));
    }
    a.words[23] = static_cast<std::uint16_t>(m[0] >> 48);
}

#endif

/// m >> count for 0 <= count < 64; bits below limb 0 are lost.
inline void ShiftRight(Mantissa& m, unsigned count) {
    // Two plain shifts are faster than the double shift of one instruction, which processors do in many
    // steps.
    Unrolled<kLimbs - 1>([&](auto i) { m[i] = m[i] >> count | m[i + 1] << 1 << (kLimbBits - 1 - count); });
    m[kLimbs - 1] >>= count;
}

/// m >> count for 0 <= count < 384; bits below limb 0 are lost.
inline Mantissa ShiftedRight(const Mantissa& m, unsigned count) {
    std::array<Limb, 2 * kLimbs> wide{};
    std::copy(m.begin(), m.end(), wide.begin());
    Mantissa result;
    std::copy_n(wide.begin() + count / kLimbBits, kLimbs, result.begin());
    ShiftRight(result, count % kLimbBits);
    return result;
}

/// m << count for 0 <= count < 64.
inline void ShiftLeft(Mantissa& m, unsigned count) {
    Unrolled<kLimbs - 1>([&](auto k) {
        constexpr std::size_t i = kLimbs - 1 - k;
        m[i] = m[i] << count | m[i - 1] >> 1 >> (kLimbBits - 1 - count);
    });
    m[0] <<= count;
}

/// Shifts the top bit of a non-zero mantissa into place and gives the number of places.
inline int Normalise(Mantissa& m) {
    int places = 0;
    while (m[kLimbs - 1] == 0) {
        Unrolled<kLimbs - 1>([&](auto i) { m[kLimbs - 1 - i] = m[kLimbs - 2 - i]; });
        m[0] = 0;
        places += kLimbBits;
    }
    const int bits = std::countl_zero(m[kLimbs - 1]);
    ShiftLeft(m, static_cast<unsigned>(bits));
    return places + bits;
}

inline bool IsZero(const Mantissa& m) {
    return (m[0] | m[1] | m[2] | m[3] | m[4] | m[5]) == 0;
}

/// m += b; gives the carry out.
inline unsigned char Add(Mantissa& m, const Mantissa& b) {
    unsigned char carry = 0;
    Unrolled<kLimbs>([&](auto i) { m[i] = AddWithCarry(m[i], b[i], carry); });
    return carry;
}

/// m -= b; gives the borrow out.
inline unsigned char Subtract(Mantissa& m, const Mantissa& b) {
    unsigned char borrow = 0;
    Unrolled<kLimbs>([&](auto i) { m[i] = SubtractWithBorrow(m[i], b[i], borrow); });
    return borrow;
}

/// m = 1 - m as a fraction: what a borrow of Subtract left becomes the magnitude of the difference.
inline void Negate(Mantissa& m) {
    unsigned char borrow = 0;
    Unrolled<kLimbs>([&](auto i) { m[i] = SubtractWithBorrow(0, m[i], borrow); });
}

/// Limbs 6 to 11 of a product: the sum of products(i, j) of limbs i and j with i + j >= 6 and of what the
/// columns below bring into limb 6 and higher.
template <class Products>
[[gnu::always_inline]] inline Mantissa UpperLimbs(DoubleLimb fromBelow, Products&& products) {
    Mantissa result;
    Limb low = Low(fromBelow), middle = High(fromBelow), high = 0;
    Unrolled<kLimbs - 1>([&](auto k) {
        Unrolled<kLimbs - 1 - k>([&](auto n) {
            constexpr std::integral_constant<std::size_t, kLimbs - 1 - n> i;
            constexpr std::integral_constant<std::size_t, 1 + k + n> j;
            const DoubleLimb product = products(i, j);
            unsigned char carry = 0;
            low = AddWithCarry(low, Low(product), carry);
            middle = AddWithCarry(middle, High(product), carry);
            high = AddWithCarry(high, 0, carry);
        });
        result[k] = low;
        low = middle;
        middle = high;
        high = 0;
    });
    result[kLimbs - 1] = low;
    return result;
}

/// The upper half of a product, too small by less than 12 units of limb 0: of the products of the column
/// below it only the upper limbs are added.
inline Mantissa InlineUpperProduct(const Mantissa& a, const Mantissa& b) {
    DoubleLimb fromBelow = 0;
    Unrolled<kLimbs>([&](auto i) { fromBelow += High(Product(a[i], b[kLimbs - 1 - i])); });
    return UpperLimbs(fromBelow, [&](auto i, auto j) { return Product(a[i], b[j]); });
}

/// The same out of line.
Mantissa UpperProduct(const Mantissa& a, const Mantissa& b);

/// Steps of Horner's rule and of a continued fraction, out of line and in place: within a loop the compiler
/// keeps carries in memory, and copies of limbs just written wait for each other. m = c + m * factor; m = c -
/// m * factor; m = whole * n + m * factor.
void AddProduct(Mantissa& m, const Mantissa& factor, const Mantissa& c);
void SubtractProduct(Mantissa& m, const Mantissa& factor, const Mantissa& c);
void AddProduct(Mantissa& m, const Mantissa& factor, Limb whole, const Mantissa& n);

/// m = m * factor + addend; gives the limb that leaves at the top.
inline Limb MultiplyShort(Mantissa& m, Limb factor, Limb addend = 0) {
    Limb carry = addend;
    Unrolled<kLimbs>([&](auto i) {
        const DoubleLimb product = Product(m[i], factor) + carry;
        m[i] = Low(product);
        carry = High(product);
    });
    return carry;
}

/// m = floor((remainder * 2^384 + m) / divisor); gives the new remainder. The old one is below the divisor.
inline Limb DivideShort(Mantissa& m, std::uint32_t divisor, Limb remainder = 0) {
    for (std::size_t i = kLimbs; i-- > 0;) {
        const Limb upper = remainder << 32 | m[i] >> 32;
        const Limb lower = upper % divisor << 32 | (m[i] & 0xFFFFFFFF);
        m[i] = upper / divisor << 32 | lower / divisor;
        remainder = lower % divisor;
    }
    return remainder;
}

/// Adds half a unit of word 23 to a normalised mantissa and clears what lies below the unit: halves go
/// upward. Gives 1 if the mantissa became one and was brought back to one half, which raises the exponent.
inline int RoundHalfUp(Mantissa& m) {
    unsigned char carry = 0;
    m[0] = AddWithCarry(m[0], kHalfUnit, carry) & ~(kUnit - 1);
    Unrolled<kLimbs - 1>([&](auto i) { m[i + 1] = AddWithCarry(m[i + 1], 0, carry); });
    if (carry != 0) m[kLimbs - 1] = kTopBit;
    return carry;
}

}  // namespace quorix::limbs
