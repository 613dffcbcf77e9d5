#pragma once

// Numbers opened into sign, exponent and limbs. Chains of operations stay in this form; every operation gives
// the bits of its namesake in qcore.h, with an exponent that knows no bounds. Internal to the number core.

#include "numerics/limbs.h"
#include "numerics/qreal.h"

namespace quorix {

struct Unpacked {
    std::uint16_t sign = 0;      ///< 0 or 65535
    int exponent = 0;            ///< exponent word, not bounded here
    limbs::Mantissa mantissa{};  ///< normalised, guard bits clear; all zero for zero

    [[nodiscard]] bool IsZero() const { return mantissa[limbs::kLimbs - 1] == 0; }
};

inline Unpacked Unpack(const QReal& a) {
    if (a.IsZero()) return {};
    return {a.words[0], a.words[1], limbs::Load(a)};
}

inline Unpacked Negated(Unpacked a) {
    if (!a.IsZero()) a.sign = static_cast<std::uint16_t>(~a.sign);
    return a;
}

/// Writes the number if its exponent lies in range, and zero if it is too small. Too large a number is
/// reported under `name`; the largest magnitude takes the number's sign.
void Pack(const Unpacked& a, const char* name, QReal& result);

Unpacked Add(const Unpacked& a, const Unpacked& b);
Unpacked Multiply(const Unpacked& a, const Unpacked& b);
/// The divisor is not zero.
Unpacked Divide(const Unpacked& dividend, const Unpacked& divisor);

}  // namespace quorix
