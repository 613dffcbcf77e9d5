#pragma once

// Polynomials in extended precision, by which roots are judged.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "numerics/qreal.h"

namespace quorix {

/// Coefficients, highest power first.
using ExtendedPolynomial = std::vector<QReal>;

/// Real value of an expression; nothing when it fails or has an imaginary part. calcError is cleared before
/// and after.
std::optional<QReal> ExtendedValue(std::u16string_view text);
/// Values of coefficient texts; nothing when one has none.
std::optional<ExtendedPolynomial> MakePolynomial(const std::vector<std::u16string>& coefficients);

/// Whether |p(x)| <= |p^(k)(x) / k!| h^k for some k from 1 to the degree, h = 1e-12 max(1, |x|): then a root
/// of multiplicity k lies within about h. (Derived here from Taylor's expansion about x.) False for a
/// constant.
bool IsRootOf(const ExtendedPolynomial& polynomial, const QReal& x);

}  // namespace quorix
