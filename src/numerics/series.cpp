#include "numerics/series.h"

namespace quorix {

using limbs::kLimbs;
using limbs::Mantissa;

const std::array<Mantissa, kOddReciprocals>& OddReciprocals() {
    static const auto table = [] {
        std::array<Mantissa, kOddReciprocals> reciprocals{};
        for (std::size_t k = 1; k < reciprocals.size(); ++k) {
            // The remainder 1 stands for the one that is divided.
            limbs::DivideShort(reciprocals[k], static_cast<std::uint32_t>(2 * k + 1), 1);
        }
        return reciprocals;
    }();
    return table;
}

const std::array<Mantissa, kSineCoefficients>& SineCoefficients() {
    static const auto table = [] {
        std::array<Mantissa, kSineCoefficients> coefficients{};
        limbs::DivideShort(coefficients[1], 3, 2);
        for (std::size_t k = 2; k < coefficients.size(); ++k) {
            coefficients[k] = coefficients[k - 1];
            // 4 / (2k (2k + 1)) = 2 / (k (2k + 1)); the divisor comes first so that nothing overflows.
            limbs::DivideShort(coefficients[k], static_cast<std::uint32_t>(k * (2 * k + 1)));
            limbs::ShiftLeft(coefficients[k], 1);
        }
        return coefficients;
    }();
    return table;
}

}  // namespace quorix
