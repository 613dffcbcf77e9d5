#pragma once

// What results beyond the exponent range become. Internal to the number core.

#include "numerics/qcore.h"
#include "numerics/unpacked.h"

namespace quorix {

/// Reports an overflow under `name` and writes the largest magnitude with the given sign word.
inline void Overflow(const char* name, std::uint16_t sign, QReal& result) {
    mtherr(name, NUMERIC_OVERFLOW);
    result.words[0] = sign;
    qinfin(result);
}

/// Writes a number whose exponent lies in range; one below it becomes zero. Gives false, with nothing
/// written, for one above it.
inline bool StoreInRange(const Unpacked& a, QReal& result) {
    if (a.exponent > QReal::kLargestExponent) return false;
    if (a.exponent < 1 || a.IsZero()) {
        result = QReal{};
        return true;
    }
    result.words[0] = a.sign;
    result.words[1] = static_cast<std::uint16_t>(a.exponent);
    result.words[2] = 0;
    limbs::Store(a.mantissa, result);
    return true;
}

}  // namespace quorix
