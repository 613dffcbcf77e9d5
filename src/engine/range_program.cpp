#include "engine/range_program.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quorix {
namespace {

// Deeper expressions have no ranges.
constexpr std::int32_t kDepth = 64;

}  // namespace

void RangeProgram::Build(const DoubleExpression& expression) {
    instructions_.clear();
    depth_ = 0;
    bases_.Clear();
    const bool isWhole = std::ranges::all_of(expression.Tokens(),
                                             [&](const auto& token) { return Append(token, expression); });
    if (!isWhole || depth_ != 1) instructions_.clear();
}

bool RangeProgram::Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression) {
    const auto constant = [this](double value) { return AppendOperand({.constant = {value, value}}); };
    switch (token.kind) {
        case ResolvedKind::operation: return AppendOperator(*token.row);
        case ResolvedKind::open:
            return bases_.Depth() < static_cast<std::size_t>(kDepth) && bases_.Open(depth_);
        case ResolvedKind::close: bases_.Close(); return true;
        case ResolvedKind::number: return constant(expression.NumberAt(token.index).value);
        case ResolvedKind::bound: return AppendOperand({.constant = {}, .isBoundVariable = true});
        case ResolvedKind::pi: return constant(std::numbers::pi);
        case ResolvedKind::e: return constant(std::numbers::e);
        default: return false;
    }
}

bool RangeProgram::AppendOperand(const Instruction& instruction) {
    if (depth_ >= kDepth) return false;
    instructions_.push_back(instruction);
    ++depth_;
    return true;
}

// The number of operands at hand decides between the two forms of a name, as in the real program.
bool RangeProgram::AppendOperator(const OperatorRow<DComplex>& row) {
    const std::int32_t available = depth_ - bases_.Innermost();
    Instruction instruction;
    if (row.realOfTwo != nullptr && available >= 2) {
        instruction.operation = FindRangeOperation(row.name);
        --depth_;
    } else if (row.realOfOne != nullptr && available >= 1) {
        instruction.function = FindRangeFunction(row.name);
    }
    if (instruction.operation == nullptr && instruction.function == nullptr) return false;
    instructions_.push_back(instruction);
    return true;
}

std::optional<ValueRange> RangeProgram::Over(const ValueRange& x) const {
    std::array<ValueRange, kDepth> stack;
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
