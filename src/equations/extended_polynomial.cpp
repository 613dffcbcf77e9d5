#include "equations/extended_polynomial.h"

#include "engine/calc_context.h"
#include "engine/complex_operands.h"
#include "engine/eval_complex.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

constexpr double kRelativeDistance = 1e-12;

QReal Magnitude(QReal x) {
    qabs(x);
    return x;
}

/// Divides by (X - x) where the coefficients stand: the remainder is the last of them.
void DivideByRoot(std::vector<QReal>& coefficients, std::size_t count, const QReal& x) {
    for (std::size_t i = 1; i < count; ++i) {
        QReal carried;
        qmul(coefficients[i - 1], x, carried);
        qadd(coefficients[i], carried, coefficients[i]);
    }
}

}  // namespace

std::optional<QReal> ExtendedValue(std::u16string_view text) {
    ClearCalcError();
    const std::optional<QComplex> value = EvalToComplex(text, {}, nullptr, 10);
    ClearCalcError();
    if (!value || !IsBelowTiny(value->im)) return std::nullopt;
    return value->re;
}

std::optional<ExtendedPolynomial> MakePolynomial(const std::vector<std::u16string>& coefficients) {
    ExtendedPolynomial polynomial;
    for (const std::u16string& text : coefficients) {
        const std::optional<QReal> value = ExtendedValue(text);
        if (!value) return std::nullopt;
        polynomial.push_back(*value);
    }
    return polynomial;
}

bool IsRootOf(const ExtendedPolynomial& polynomial, const QReal& x) {
    QReal distance;
    etoq(kRelativeDistance, distance);
    if (const QReal magnitude = Magnitude(x); qcmp(magnitude, constants::kOne) > 0) {
        qmul(distance, magnitude, distance);
    }
    // Each division leaves the next Taylor coefficient at x as its remainder.
    std::vector<QReal> quotient = polynomial;
    DivideByRoot(quotient, quotient.size(), x);
    const QReal value = Magnitude(quotient.back());
    QReal power = distance;
    for (std::size_t k = 1; k < polynomial.size(); ++k) {
        const std::size_t count = polynomial.size() - k;
        DivideByRoot(quotient, count, x);
        QReal bound;
        qmul(Magnitude(quotient[count - 1]), power, bound);
        if (qcmp(value, bound) <= 0) return true;
        qmul(power, distance, power);
    }
    return false;
}

}  // namespace quorix
