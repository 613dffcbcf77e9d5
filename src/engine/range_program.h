#pragma once

// An expression over a range of its bound variable instead of at a point (interval arithmetic).

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/range_operators.h"
#include "engine/real_program.h"

namespace quorix {

class RangeProgram {
  public:
    /// An expression that fails by its form, or has an operator whose ranges are not known, gives an unusable
    /// program.
    void Build(const DoubleExpression& expression);
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

    bool Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression);
    bool AppendOperator(const OperatorRow<DComplex>& row);
    bool AppendOperand(const Instruction& instruction);

    std::vector<Instruction> instructions_;
    std::int32_t depth_ = 0;
    BaseStack bases_;
};

}  // namespace quorix
