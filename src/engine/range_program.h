#pragma once

// An expression over a range of its bound variable instead of at a point (interval arithmetic).

#include <optional>
#include <span>
#include <vector>

#include "engine/range_operators.h"
#include "engine/real_steps.h"

namespace quorix {

class RangeProgram {
  public:
    /// Of no steps, or with an operator whose ranges are not known, the program is unusable.
    void Build(std::span<const RealStep> steps);
    [[nodiscard]] bool IsUsable() const { return !instructions_.empty(); }
    /// Holds all values over the range, or more: the wider the range, the more. Unbounded when a pole may lie
    /// in it. Nothing where some values are not reached by real arithmetic alone, unless it is for a pole
    /// inside the expression. The program must be usable.
    [[nodiscard]] std::optional<ValueRange> Over(const ValueRange& x) const;

  private:
    /// One of the pointers is set for an operator, none for an operand.
    struct Instruction {
        ValueRange constant;
        bool isBoundVariable = false;
        RangeFunction function = nullptr;
        RangeOperation operation = nullptr;
    };

    std::vector<Instruction> instructions_;
};

}  // namespace quorix
