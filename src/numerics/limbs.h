#pragma once

// Mantissas as six 64-bit limbs: the form in which the core computes. Internal to the number core and its
// functions.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

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
inline Limb AddWithCarry(Limb a, Limb b, unsigned char& carry) {
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
inline Limb SubtractWithBorrow(Limb a, Limb b, unsigned char& borrow) {
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

/// Sum of products of one column, three limbs long.
struct Column {
    Limb low = 0, middle = 0, high = 0;

    void Add(DoubleLimb product) {
        unsigned char carry = 0;
        low = AddWithCarry(low, Low(product), carry);
        middle = AddWithCarry(middle, High(product), carry);
        high += carry;
    }
    void AddLimb(Limb limb) {
        unsigned char carry = 0;
        low = AddWithCarry(low, limb, carry);
        middle = AddWithCarry(middle, 0, carry);
        high += carry;
    }
    /// Gives the lowest limb and moves to the next column.
    Limb Next() {
        const Limb result = low;
        low = middle;
        middle = high;
        high = 0;
        return result;
    }
};

/// The four 16-bit lanes of a limb in the opposite order.
inline Limb ReverseLanes(Limb limb) {
    limb = std::rotl(limb, 32);
    constexpr Limb kLowLanes = 0x0000FFFF0000FFFF;
    return (limb & kLowLanes) << 16 | (limb >> 16 & kLowLanes);
}

inline void Load(const QReal& a, Mantissa& m) {
    for (std::size_t i = 0; i + 1 < kLimbs; ++i) {
        const std::uint16_t* words = &a.words[3 + 4 * i];
        if constexpr (std::endian::native == std::endian::little) {
            Limb limb;
            std::memcpy(&limb, words, sizeof limb);
            m[kLimbs - 1 - i] = ReverseLanes(limb);
        } else {
            m[kLimbs - 1 - i] = Limb{words[0]} << 48 | Limb{words[1]} << 32 | Limb{words[2]} << 16 | words[3];
        }
    }
    m[0] = Limb{a.words[23]} << 48;
}

/// Stores words 3 to 23 and drops what lies below them.
inline void Store(const Mantissa& m, QReal& a) {
    for (std::size_t i = 0; i + 1 < kLimbs; ++i) {
        std::uint16_t* words = &a.words[3 + 4 * i];
        const Limb limb = m[kLimbs - 1 - i];
        if constexpr (std::endian::native == std::endian::little) {
            const Limb reversed = ReverseLanes(limb);
            std::memcpy(words, &reversed, sizeof reversed);
        } else {
            for (std::size_t k = 0; k < 4; ++k) words[k] = static_cast<std::uint16_t>(limb >> (48 - 16 * k));
        }
    }
    a.words[23] = static_cast<std::uint16_t>(m[0] >> 48);
}

/// m >> count for 0 <= count < 384; bits below limb 0 are lost.
inline void ShiftRight(Mantissa& m, unsigned count) {
    std::array<Limb, 2 * kLimbs + 1> wide{};
    for (std::size_t i = 0; i < kLimbs; ++i) wide[i] = m[i];
    const Limb* source = &wide[count / kLimbBits];
    const unsigned bits = count % kLimbBits;
    for (std::size_t i = 0; i < kLimbs; ++i) {
        m[i] = Low((DoubleLimb{source[i + 1]} << kLimbBits | source[i]) >> bits);
    }
}

inline void ShiftRightOne(Mantissa& m) {
    for (std::size_t i = 0; i + 1 < kLimbs; ++i) m[i] = m[i] >> 1 | m[i + 1] << 63;
    m[kLimbs - 1] >>= 1;
}

/// m << count for 0 <= count < 64.
inline void ShiftLeft(Mantissa& m, unsigned count) {
    for (std::size_t i = kLimbs - 1; i > 0; --i) {
        m[i] = High((DoubleLimb{m[i]} << kLimbBits | m[i - 1]) << count);
    }
    m[0] <<= count;
}

/// Shifts the top bit of a non-zero mantissa into place and gives the number of places.
inline int Normalise(Mantissa& m) {
    int places = 0;
    while (m[kLimbs - 1] == 0) {
        for (std::size_t i = kLimbs - 1; i > 0; --i) m[i] = m[i - 1];
        m[0] = 0;
        places += kLimbBits;
    }
    const int bits = std::countl_zero(m[kLimbs - 1]);
    if (bits != 0) ShiftLeft(m, static_cast<unsigned>(bits));
    return places + bits;
}

inline bool IsZero(const Mantissa& m) {
    return (m[0] | m[1] | m[2] | m[3] | m[4] | m[5]) == 0;
}

/// m += b; gives the carry out.
inline unsigned char Add(Mantissa& m, const Mantissa& b) {
    unsigned char carry = 0;
    for (std::size_t i = 0; i < kLimbs; ++i) m[i] = AddWithCarry(m[i], b[i], carry);
    return carry;
}

/// m -= b; gives the borrow out.
inline unsigned char Subtract(Mantissa& m, const Mantissa& b) {
    unsigned char borrow = 0;
    for (std::size_t i = 0; i < kLimbs; ++i) m[i] = SubtractWithBorrow(m[i], b[i], borrow);
    return borrow;
}

/// m = 1 - m as a fraction: what a borrow of Subtract left becomes the magnitude of the difference.
inline void Negate(Mantissa& m) {
    unsigned char borrow = 0;
    for (Limb& limb : m) limb = SubtractWithBorrow(0, limb, borrow);
}

/// m = m * factor + addend; gives the limb that leaves at the top.
inline Limb MultiplyShort(Mantissa& m, Limb factor, Limb addend = 0) {
    Limb carry = addend;
    for (Limb& limb : m) {
        const DoubleLimb product = Product(limb, factor) + carry;
        limb = Low(product);
        carry = High(product);
    }
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
    for (std::size_t i = 1; i < kLimbs && carry != 0; ++i) m[i] = AddWithCarry(m[i], 0, carry);
    if (carry != 0) m[kLimbs - 1] = kTopBit;
    return carry;
}

}  // namespace quorix::limbs
