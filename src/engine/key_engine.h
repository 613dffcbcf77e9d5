#pragma once

// The key-by-key calculators: one token a key press, state kept between calls.

#include <cstdint>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// What the next digit does.
enum EntryState : std::int32_t {
    ENTRY_NONE = -1,     ///< a digit starts a number
    ENTRY_INTEGER = 0,   ///< integer digits are being entered
    ENTRY_OPERATOR = 1,  ///< an operator was just pressed; another replaces it
    ENTRY_FRACTION = 2,  ///< fraction digits are being entered
    ENTRY_CONSTANT = 3,  ///< pi is on top; a digit replaces it
};

/// Feeds one token; result normally the new top of the stack. radixId: one of the RADIX_ identifiers, read by
/// digit tokens. Failures are left in calcContext().calcError.
QComplex KeyEngineStandard(std::u16string_view token, std::int32_t radixId);
QComplex KeyEngineRpn(std::u16string_view token, std::int32_t radixId);
/// Empties stack and pending operators; the repeat registers stay.
void KeyEngineReset();
/// Leaves `value` as the only operand, no entry in progress.
void KeyEngineSetResult(const QComplex& value);

/// State that the display reads and, for recall, sets.
EntryState KeyEngineEntryState();
void KeyEngineSetEntryState(EntryState state);
int KeyEngineFractionDigits();
int KeyEngineDepth();
/// Top of the stack, zero when it is empty.
QComplex KeyEngineTop();
/// Pushes a value as an entered operand without touching the entry state; -1 in calcError when the stack is
/// full.
void KeyEnginePush(const QComplex& value);
/// Clears imaginary parts of the stack and the scratch registers.
void KeyEngineClearImaginary();

}  // namespace quorix
