#pragma once

// The process-wide state of a calculation. Single-threaded by design.

#include <cstdint>

namespace quorix {

/// Values of CalcContext::angleUnit.
enum AngleUnit : std::int32_t { UNIT_DEGREES = 0, UNIT_RADIANS = 1, UNIT_GRADS = 2 };

struct CalcContext {
    /// First failure of the current calculation: 0 or a code of the error table (negative).
    std::int32_t calcError = 0;
    /// How trigonometric operators read and return angles; complex arguments switch it to radians for good.
    std::int32_t angleUnit = UNIT_DEGREES;
    /// Width of the integer operators and of radix output: 8, 16 or 32 bits.
    std::int32_t wordSize = 8;
};

/// The one context of the process.
inline CalcContext& calcContext() {
    static constinit CalcContext context;
    return context;
}

/// Sets calcError and the numeric error flag to 0.
void ClearCalcError();
/// unit: 0 degrees, 1 radians, 2 grads.
void SetAngleUnit(std::int32_t unit);

}  // namespace quorix
