#pragma once

// Lines that give a variable its value: "[VA]=1.5", "LIST=1 2 3".

#include <optional>
#include <string>
#include <string_view>

namespace quorix {

struct Assignment {
    /// Slot of the variable, or -1 when the name is none that can be set.
    int slot;
    /// The name as it is written.
    std::u16string_view name;
    /// What stands behind the "=".
    std::u16string_view value;
};

/// Nothing when the line does not begin with a name in brackets, or with LIST, and an "=".
std::optional<Assignment> FindAssignment(std::u16string_view line);

/// Whether an expression in engine notation is for the evaluator of matrices: it names a variable that holds
/// a matrix, or one of the operators that only matrices have.
bool IsMatrixExpression(std::u16string_view engineText);

}  // namespace quorix
