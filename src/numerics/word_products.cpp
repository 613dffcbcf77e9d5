#include "numerics/word_products.h"

#include <algorithm>

namespace quorix {
namespace {

// Mantissa words and the guard word.
constexpr std::size_t kWords = 22;

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

limbs::Mantissa ProductByWords(const limbs::Mantissa& a, const limbs::Mantissa& b) {
    return ToLimbs(MultiplyWords(ToWords(a), ToWords(b), kWords));
}

// With x an approximation of 1/(4d), a step is x' = 2x - 4 d x^2.
limbs::Mantissa QuarterQuotientByWords(const limbs::Mantissa& dividend, const limbs::Mantissa& divisor) {
    const Words d = ToWords(divisor);
    Words x{};
    x[0] = (std::uint32_t{1} << 30) / d[0];
    for (std::size_t length = 1; length < kWords;) {
        length = std::min(2 * length, kWords);
        const Words t = MultiplyWords(MultiplyWords(x, x, length), d, length);
        std::int64_t borrow = 0;
        for (std::size_t k = length; k-- > 0;) {
            borrow += 2 * std::int64_t{x[k]} - 4 * std::int64_t{t[k]};
            x[k] = static_cast<std::uint32_t>(borrow & 0xFFFF);
            borrow >>= 16;
        }
    }
    return ToLimbs(MultiplyWords(x, ToWords(dividend), kWords));
}

}  // namespace quorix
