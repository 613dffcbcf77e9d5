#pragma once

// The door into calculation for text: an expression in the engine's notation to a value.

#include <string_view>

#include "engine/calc_value.h"

namespace quorix {

enum class EvaluationMode { number = 0, matrix = 1 };

/// text: engine notation, at most 4095 characters. radix: 2, 8, 10 or 16.
/// On failure calcContext().calcError holds the code and the value is not meaningful.
CalcValue EvaluateExpression(std::u16string_view text, EvaluationMode mode, int radix);

}  // namespace quorix
