#include "engine/range_program.h"

#include <array>
#include <cmath>

namespace quorix {
void RangeProgram::Build(std::span<const RealStep> steps) {
    instructions_.clear();
    for (const RealStep& step : steps) {
        Instruction instruction;
        switch (step.kind) {
            case RealStepKind::boundVariable: instruction.isBoundVariable = true; break;
            case RealStepKind::constant: instruction.constant = {step.constant, step.constant}; break;
            case RealStepKind::ofOne: instruction.function = FindRangeFunction(step.row->name); break;
            case RealStepKind::ofTwo: instruction.operation = FindRangeOperation(step.row->name); break;
        }
        if (step.row != nullptr && instruction.function == nullptr && instruction.operation == nullptr) {
            instructions_.clear();
            return;
        }
        instructions_.push_back(instruction);
    }
}

std::optional<ValueRange> RangeProgram::Over(const ValueRange& x) const {
    std::array<ValueRange, kRealDepth> stack;
    std::size_t depth = 0;
    bool leavesReals = false;
    for (const Instruction& at : instructions_) {
        if (at.function == nullptr && at.operation == nullptr) {
            stack[depth++] = at.isBoundVariable ? x : at.constant;
            continue;
        }
        if (at.operation != nullptr) --depth;
        ValueRange& last = stack[depth - 1];
        const std::optional<ValueRange> result =
            at.function != nullptr ? at.function(last) : at.operation(last, stack[depth]);
        // Where an operand may be unbounded, that matters more than that some of its values fail.
        const bool isBounded = last.IsBounded() && (at.operation == nullptr || stack[depth].IsBounded());
        if (!result && isBounded) return std::nullopt;
        leavesReals = leavesReals || !result;
        // An endpoint that is no number says nothing.
        const bool isTold = result && !std::isnan(result->least) && !std::isnan(result->greatest);
        last = isTold ? *result : ValueRange{};
    }
    if (leavesReals && stack[0].IsBounded()) return std::nullopt;
    return stack[0];
}

}  // namespace quorix
