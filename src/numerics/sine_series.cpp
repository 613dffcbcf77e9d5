#include "numerics/sine_series.h"

#include "numerics/series.h"

namespace quorix {

using limbs::Mantissa;

namespace {

constexpr int kNegligibleBits = 388;

// Leading zero bits of a coefficient.
int LeadingZeros(const Mantissa& coefficient) {
    int bits = 0;
    std::size_t limb = limbs::kLimbs - 1;
    for (; limb > 0 && coefficient[limb] == 0; --limb) bits += limbs::kLimbBits;
    return bits + std::countl_zero(coefficient[limb]);
}

// c(1) -+ w (c(2) -+ w (c(3) -+ ...)) up to c(last).
template <SeriesSigns kSigns>
Mantissa Horner(const Mantissa& w, std::size_t last) {
    const auto& coefficients = SineCoefficients();
    Mantissa sum = coefficients[last];
    for (std::size_t k = last - 1; k > 0; --k) {
        if constexpr (kSigns == SeriesSigns::kAlternating) {
            limbs::SubtractProduct(sum, w, coefficients[k]);
        } else {
            limbs::AddProduct(sum, w, coefficients[k]);
        }
    }
    return sum;
}

}  // namespace

// In w = z/4 with the coefficients 4^k/(2k + 1)!. The terms from the first negligible one on are left out.
Wide SineSeries(const Wide& z, SeriesSigns signs) {
    if (z.IsZero()) return {};
    const Wide quarter = Scaled(z, -2);
    const Mantissa w = ToFraction(quarter);
    std::size_t last = kSineCoefficients - 1;
    while (last > 1 && LeadingZeros(SineCoefficients()[last]) - static_cast<int>(last) * quarter.exponent >
                           kNegligibleBits) {
        --last;
    }
    const Mantissa sum = signs == SeriesSigns::kAlternating ? Horner<SeriesSigns::kAlternating>(w, last)
                                                            : Horner<SeriesSigns::kPositive>(w, last);
    return FromFraction(sum) * quarter;
}

}  // namespace quorix
