#include <bit>

#include "numerics/constants.h"
#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"
#include "numerics/word_products.h"

namespace quorix {
namespace {

using limbs::Limb;
using limbs::Mantissa;

constexpr int kBias = QReal::kExponentOfOne - 1;

// By the rule of the words the product lacks up to 20 units of the guard word, because word products below it
// are left out. That decides the rounding only where the guard word lies close above the half; there the
// words are multiplied.
constexpr Limb kWordsLack = Limb{44} << 32;
constexpr Limb kLimbsLack = 32;

inline bool RoundingIsClear(const Mantissa& normalised) {
    const Limb rest = (normalised[0] + limbs::kHalfUnit) & (limbs::kUnit - 1);
    return rest >= kWordsLack && rest < limbs::kUnit - kLimbsLack;
}

// Brings the top bit into place, which is at most one away.
inline int ShiftProduct(Mantissa& product) {
    if ((product[limbs::kLimbs - 1] & limbs::kTopBit) != 0) return 0;
    limbs::ShiftLeft(product, 1);
    return 1;
}

// Both operands are non-zero.
[[gnu::always_inline]] inline Unpacked MultiplyNonZero(const Unpacked& a, const Unpacked& b) {
    Unpacked result;
    result.sign = a.sign ^ b.sign;
    result.mantissa = limbs::InlineUpperProduct(a.mantissa, b.mantissa);
    int shift = ShiftProduct(result.mantissa);
    if (!RoundingIsClear(result.mantissa)) [[unlikely]] {
        result.mantissa = ProductByWords(a.mantissa, b.mantissa);
        shift = ShiftProduct(result.mantissa);
    }
    result.exponent = a.exponent + b.exponent - kBias - shift + limbs::RoundHalfUp(result.mantissa);
    return result;
}

// number *= a mantissa of one word, in the upper bits of `top`, with its exponent word. The product of one
// word and a mantissa has no part that is left out, so it is what qmul gives.
inline void MultiplyByWord(Unpacked& number, Limb top, int exponent) {
    Mantissa& mantissa = number.mantissa;
    const Limb carry = limbs::MultiplyShort(mantissa, top);
    for (std::size_t i = 0; i + 1 < limbs::kLimbs; ++i) mantissa[i] = mantissa[i + 1];
    mantissa[limbs::kLimbs - 1] = carry;
    const int shift = ShiftProduct(mantissa);
    number.exponent += exponent - kBias - shift + limbs::RoundHalfUp(mantissa);
}

}  // namespace

Unpacked Multiply(const Unpacked& a, const Unpacked& b) {
    if (a.IsZero() || b.IsZero()) return {};
    return MultiplyNonZero(a, b);
}

void qmul(const QReal& a, const QReal& b, QReal& product) {
    if (a.IsZero() || b.IsZero()) return qclear(product);
    // The sign word that the target had before is what an overflow leaves in it; that is intended.
    if (!StoreInRange(MultiplyNonZero(Unpack(a), Unpack(b)), product))
        Overflow("qmul", product.words[0], product);
}

void qmuli(const QReal& a, const QReal& b, QReal& product) {
    if (a.IsZero() || b.IsZero()) return qclear(product);
    Unpacked result = Unpack(b);
    MultiplyByWord(result, Limb{a.words[3]} << 48, a.words[1]);
    result.sign = a.words[0] ^ result.sign;
    if (!StoreInRange(result, product)) Overflow("qmuli", product.words[0], product);
}

void qfactorial(std::uint16_t n, QReal& product) {
    Unpacked result = Unpack(constants::kOne);
    for (Limb factor = 2; factor <= n; ++factor) {
        const int leading = std::countl_zero(factor);
        MultiplyByWord(result, factor << leading, kBias + 64 - leading);
    }
    Pack(result, "qfactorial", product);
}

}  // namespace quorix
