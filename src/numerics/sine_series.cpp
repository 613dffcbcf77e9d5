#include "numerics/sine_series.h"

#include "numerics/series.h"

namespace quorix {

using limbs::Mantissa;

// By Horner's rule in w = z/4 with the coefficients 4^k/(2k + 1)!. The terms from the first one below 2^-388
// on are left out.
Wide SineSeries(const Wide& z, SeriesSigns signs) {
    if (z.IsZero()) return {};
    const auto& coefficients = SineCoefficients();
    const Wide quarter = Scaled(z, -2);
    const Mantissa w = ToFraction(quarter);
    std::size_t k = kSineCoefficients - 1;
    const auto coefficientBits = [&](std::size_t i) {
        int bits = 0;
        std::size_t limb = limbs::kLimbs - 1;
        for (; limb > 0 && coefficients[i][limb] == 0; --limb) bits += limbs::kLimbBits;
        return bits + std::countl_zero(coefficients[i][limb]);
    };
    while (k > 1 && coefficientBits(k) - static_cast<int>(k) * quarter.exponent > 388) --k;
    Mantissa sum = coefficients[k];
    while (--k > 0) {
        const Mantissa product = limbs::UpperProduct(sum, w);
        sum = coefficients[k];
        if (signs == SeriesSigns::kAlternating) {
            limbs::Subtract(sum, product);
        } else {
            limbs::Add(sum, product);
        }
    }
    return FromFraction(sum) * quarter;
}

}  // namespace quorix
