#include "numerics/tangent_fraction.h"

#include <cmath>

namespace quorix {

using limbs::kLimbBits;
using limbs::Mantissa;

// The numerators grow to at most the product of the odd numbers times 1 + 1/3 + ..., below twice it. The
// start is scaled by that, so that no step overflows. Bits cut at the start do not count: an error of a level
// enters the value divided by the squares of the odd numbers before it, while only their first powers scale
// it up.
TangentFraction HyperbolicTangentFraction(const Mantissa& z, int levels) {
    double bits = 1;
    for (int k = 1; k <= levels; ++k) bits += std::log2(2 * k - 1);
    const int scale = static_cast<int>(std::ceil(bits));
    const int last = 2 * levels - 1;
    const auto power = [](int exponent, limbs::Limb factor) {
        const int bit = 6 * kLimbBits - exponent;
        Mantissa m{};
        m[static_cast<std::size_t>(bit / kLimbBits)] = limbs::Limb{1} << bit % kLimbBits;
        limbs::MultiplyShort(m, factor);
        return m;
    };
    // The denominator's place takes the next numerator, and the two change roles.
    std::array<Mantissa, 2> parts{power(scale, static_cast<limbs::Limb>(last)), power(scale, 1)};
    std::size_t numerator = 0;
    for (int m = last - 2; m > 0; m -= 2) {
        limbs::AddProduct(parts[1 - numerator], z, static_cast<limbs::Limb>(m), parts[numerator]);
        numerator = 1 - numerator;
    }
    return {parts[numerator], parts[1 - numerator]};
}

}  // namespace quorix
