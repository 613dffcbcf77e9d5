#include "numerics/word_products.h"

namespace quorix {
namespace {

// Mantissa words and the guard word.
constexpr std::size_t kWords = 22;

// The step before the last one of the iteration.
constexpr std::size_t kLongestWordStep = 16;

// Words from the most significant one on, each in a wider integer so that products vectorise.
using Words = std::array<std::uint32_t, kWords>;

Words ToWords(const limbs::Mantissa& m) {
    Words words{};
    for (std::size_t i = 0; i < kWords; ++i)
        words[i] = m[limbs::kLimbs - 1 - i / 4] >> (48 - 16 * (i % 4)) & 0xFFFF;
    return words;
}

limbs::Mantissa ToLimbs(const Words& words) {
    limbs::Mantissa m{};
    for (std::size_t i = 0; i < kWords; ++i)
        m[limbs::kLimbs - 1 - i / 4] |= limbs::Limb{words[i]} << (48 - 16 * (i % 4));
    return m;
}

// Columns below `length` are complete, those from there on are left out; the carries of the last one still
// count.
Words MultiplyWords(const Words& a, const Words& b, std::size_t length) {
    std::array<std::uint64_t, kWords> columns{};
    for (std::size_t i = 0; i < length; ++i) {
        const std::uint32_t factor = a[i];
        if (factor == 0) continue;
        for (std::size_t j = 0; j < length - i; ++j) columns[i + j] += std::uint64_t{factor} * b[j];
    }
    Words product{};
    std::uint64_t carry = columns[length - 1] >> 16;
    for (std::size_t k = length - 1; k > 0; --k) {
        carry += columns[k - 1];
        product[k] = carry & 0xFFFF;
        carry >>= 16;
    }
    product[0] = static_cast<std::uint32_t>(carry);
    return product;
}

}  // namespace

// The same for 22 words, by limbs. The word pairs (i, j) with i + j <= 21 are all pairs of the upper limbs
// but that of the lowest words of the limbs of the last column, and the three uppermost of each limb pair one
// column further down.
limbs::Mantissa ProductByWords(const limbs::Mantissa& a, const limbs::Mantissa& b) {
    limbs::DoubleLimb fromBelow = 0;
    limbs::Unrolled<limbs::kLimbs>([&](auto i) {
        const limbs::Limb x = a[i], y = b[5 - i];
        fromBelow += ((x >> 48) * (y >> 32) << 16) + ((x >> 32 & 0xFFFF) * (y >> 48) << 16);
    });
    limbs::Mantissa product = limbs::UpperLimbs(fromBelow, [&](auto i, auto j) {
        limbs::DoubleLimb pair = limbs::Product(a[i], b[j]);
        if constexpr (i + j == limbs::kLimbs) pair -= (a[i] & 0xFFFF) * (b[j] & 0xFFFF);
        return pair;
    });
    product[0] &= limbs::kGuardMask;
    return product;
}

// With x an approximation of 1/(4d), a step is x' = 2x - 4 d x^2. The shorter steps multiply words.
limbs::Mantissa QuarterQuotientByWords(const limbs::Mantissa& dividend, const limbs::Mantissa& divisor) {
    const Words d = ToWords(divisor);
    Words x{};
    x[0] = (std::uint32_t{1} << 30) / d[0];
    for (std::size_t length = 2; length <= kLongestWordStep; length *= 2) {
        const Words t = MultiplyWords(MultiplyWords(x, x, length), d, length);
        std::int64_t borrow = 0;
        for (std::size_t k = length; k-- > 0;) {
            borrow += 2 * std::int64_t{x[k]} - 4 * std::int64_t{t[k]};
            x[k] = static_cast<std::uint32_t>(borrow & 0xFFFF);
            borrow >>= 16;
        }
    }
    limbs::Mantissa reciprocal = ToLimbs(x);
    limbs::Mantissa t = ProductByWords(ProductByWords(reciprocal, reciprocal), divisor);
    limbs::ShiftLeft(t, 2);
    limbs::ShiftLeft(reciprocal, 1);
    limbs::Subtract(reciprocal, t);
    return ProductByWords(reciprocal, dividend);
}

}  // namespace quorix
