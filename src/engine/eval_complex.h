#pragma once

// The evaluator behind every result that the user reads.

#include <optional>
#include <string_view>

#include "numerics/qreal.h"

namespace quorix {

/// Value of an expression in extended precision, or nothing with a code in calcError (which is returned at
/// once when it is set on entry). text: engine notation, at most 4095 characters. radix: 2, 8, 10 or 16.
/// boundName: a word that stands for boundValue, without regard to case; empty for none. boundValue may then
/// be null.
std::optional<QComplex> EvalToComplex(std::u16string_view text, std::u16string_view boundName,
                                      const QReal* boundValue, int radix);

}  // namespace quorix
