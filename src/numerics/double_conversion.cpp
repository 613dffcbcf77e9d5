#include <bit>

#include "numerics/qcore.h"
#include "numerics/range.h"
#include "numerics/unpacked.h"

namespace quorix {
namespace {

using limbs::kLimbs;
using limbs::Limb;

// Difference of the exponent words of equal numbers in the two formats.
constexpr int kExponentOffset = 15617;
constexpr int kFractionBits = 52;
constexpr int kInfiniteExponent = 0x7FF;
constexpr Limb kFractionMask = (Limb{1} << kFractionBits) - 1;
constexpr Limb kLargestDouble = 0x7FEFFFFFFFFFFFFF;

}  // namespace

void etoq(double d, QReal& a) {
    const auto bits = std::bit_cast<Limb>(d);
    const int biased = static_cast<int>(bits >> kFractionBits & kInfiniteExponent);
    const Limb hidden = biased == 0 ? 0 : Limb{1} << kFractionBits;
    Unpacked result;
    result.sign = (bits & limbs::kTopBit) != 0 ? QReal::kNegative : 0;
    result.exponent = (biased == 0 ? 1 : biased) + kExponentOffset;
    result.mantissa[kLimbs - 1] = (hidden | (bits & kFractionMask)) << (63 - kFractionBits);
    if (!result.IsZero()) result.exponent -= limbs::Normalise(result.mantissa);
    StoreInRange(result, a);
}

double qtoe(const QReal& a) {
    const Limb sign = a.IsNegative() ? limbs::kTopBit : 0;
    const int exponent = a.words[1] - kExponentOffset;
    // The smallest subnormal is 2^-51 of the smallest normal number; half of it may still round up.
    if (a.IsZero() || exponent < -kFractionBits) return std::bit_cast<double>(sign);
    const limbs::Mantissa m = limbs::Load(a);
    const Limb rest = m[4] | m[3] | m[2] | m[1] | m[0];
    // Bits that the fraction and the hidden bit do not take; below exponent 1 they are fewer.
    const int dropped = 63 - kFractionBits + (exponent > 0 ? 0 : 1 - exponent);
    Limb kept = 0;
    Limb lost = m[5];
    if (dropped < 64) {
        kept = m[5] >> dropped;
        lost = m[5] << (64 - dropped);
    }
    const bool isTie = lost == limbs::kTopBit && rest == 0;
    if (lost > limbs::kTopBit || (lost == limbs::kTopBit && (!isTie || (kept & 1) != 0))) ++kept;
    // A carry out of the fraction raises the exponent field by itself; the hidden bit does so too.
    if (exponent > kInfiniteExponent ||
        (exponent > 0 && (static_cast<Limb>(exponent - 1) << kFractionBits) + kept > kLargestDouble)) {
        mtherr("qtoe", NUMERIC_OVERFLOW);
        return std::bit_cast<double>(sign | kLargestDouble);
    }
    if (exponent > 0) kept += static_cast<Limb>(exponent - 1) << kFractionBits;
    return std::bit_cast<double>(sign | kept);
}

}  // namespace quorix
