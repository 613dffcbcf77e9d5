#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "engine/calc_value.h"

namespace quorix {

inline constexpr int kVariableCount = 30;
/// Slots with a fixed role; the others are the user's.
enum VariableSlot : int { SLOT_SCRATCH = 0, SLOT_LAST_RESULT = 1, SLOT_FIRST_USER = 2, SLOT_LIST = 29 };

/// Upper-case names in slot order: VVV VRE VA..VV VX VY VZ VW VLRE LIST.
std::span<const std::u16string_view> VariableNames();
/// Slot of a name without regard to case, or -1.
int FindVariable(std::u16string_view name);
/// A slot's record. slot: 0 to 29. An unset variable reads as the real zero.
CalcValue& Variable(int slot);
/// Stores the real part of value as KIND_REAL.
void SetVariableNumber(int slot, const QComplex& value);
/// Stores a complex number as it stands: KIND_COMPLEX when the imaginary part compares unequal to zero.
void SetVariableComplex(int slot, const QComplex& value);
/// data: rows · cols doubles, row by row; copied.
void SetVariableMatrix(int slot, std::uint16_t rows, std::uint16_t cols, std::span<const double> data);
void ClearVariable(int slot);
void ClearAllVariables();

}  // namespace quorix
