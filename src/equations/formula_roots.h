#pragma once

// The formulas of degrees 3 and 4.

#include <string>
#include <vector>

#include "equations/extended_polynomial.h"
#include "numerics/qreal.h"

namespace quorix {

/// Significant digits of values between two formulas.
inline constexpr int kRootDigits = 64;

/// The values of formulas, each with a bit in the masks, bit 0 for the first.
struct RootSet {
    std::vector<QComplex> values;
    std::vector<QComplex> companions;  ///< roots that are not shown: complex ones and repetitions
    int realMask = 0;                  ///< imaginary part below 1e-16
    int goodMask = 0;                  ///< real and a root

    [[nodiscard]] bool AllRealsAreRoots() const { return realMask == goodMask; }
};

/// A value with kRootDigits digits.
std::u16string NormText(const QReal& value);

/// Roots by the formulas, which are filled with the texts of the coefficients: as many values as the degree,
/// or the different real ones where the roots are those of a number about a centre. `polynomial` has the
/// values of the texts, four or five, the first of them not 0.
RootSet FormulaRoots(const std::vector<std::u16string>& coefficients, const ExtendedPolynomial& polynomial);

}  // namespace quorix
