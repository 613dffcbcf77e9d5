#pragma once

// What the rows of the complex operator table share.

#include "engine/operator_table.h"
#include "engine/repeat_registers.h"
#include "numerics/qcore.h"

namespace quorix {

/// The double nearest to 1e-64 as an extended real: a part of a complex number below it counts as zero.
inline constexpr QReal kTiny = [] {
    QReal tiny;  // 1.50FFD44F4A73D hexadecimal, times 2^-213.
    tiny.words[1] = QReal::kExponentOfOne - 213;
    tiny.words[3] = 0xA87F;
    tiny.words[4] = 0xEA27;
    tiny.words[5] = 0xA539;
    tiny.words[6] = 0xE800;
    return tiny;
}();

/// Whether the magnitude of `part` is below kTiny.
inline bool IsBelowTiny(const QReal& part) {
    if (part.words[1] != kTiny.words[1]) return part.words[1] < kTiny.words[1];
    for (std::size_t i = 3; i < QReal::kWords; ++i) {
        if (part.words[i] != kTiny.words[i]) return part.words[i] < kTiny.words[i];
    }
    return false;
}

/// Turns a recorded numeric error into -56.
inline void FoldNumericError() {
    if (NumericErrorFlag() != NUMERIC_OK) calcContext().calcError = ERROR_INVALID_PARAMETER;
}

/// Keeps the right operand of a binary operator for the repeat of "=".
inline void KeepRightOperand(const QComplex& right) {
    repeatRegisters().right = right;
}

}  // namespace quorix
