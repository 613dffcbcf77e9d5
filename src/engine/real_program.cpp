#include "engine/real_program.h"

#include <array>
#include <cmath>
#include <numbers>

#include "engine/double_arithmetic_operators.h"
#include "engine/double_power_operators.h"
#include "engine/number_grammar.h"

namespace quorix {
namespace {

// Deeper expressions take the complex way.
constexpr std::int32_t kLaneDepth = 64;
// Place of the bound variable among the values.
constexpr std::uint32_t kBoundValue = 0;

}  // namespace

DoubleNumber DoubleNumber::FromText(std::u16string_view text) {
    return {NumberToDouble(text)};
}

void RealProgram::Build(const DoubleExpression& expression) {
    instructions_.clear();
    values_.assign(1, 0.0);
    lastOperator_ = {};
    depth_ = 0;
    bases_.Clear();
    for (const ResolvedToken<DComplex>& token : expression.Tokens()) {
        if (!Append(token, expression)) {
            instructions_.clear();
            return;
        }
    }
}

bool RealProgram::Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression) {
    switch (token.kind) {
        case ResolvedKind::operation: return AppendOperation(*token.row);
        case ResolvedKind::open:
            return bases_.Depth() < static_cast<std::size_t>(kLaneDepth) && bases_.Open(depth_);
        case ResolvedKind::close: bases_.Close(); return true;
        case ResolvedKind::number: return AppendConstant(expression.NumberAt(token.index).value);
        case ResolvedKind::bound: return AppendPush(kBoundValue);
        case ResolvedKind::pi: return AppendConstant(std::numbers::pi);
        case ResolvedKind::e: return AppendConstant(std::numbers::e);
        default: return false;
    }
}

bool RealProgram::AppendOperation(const OperatorRow<DComplex>& row) {
    const std::int32_t available = depth_ - bases_.Innermost();
    if (row.realOfTwo != nullptr && available >= 2) {
        AppendBinary(row.realOfTwo);
    } else if (row.realOfOne != nullptr && available >= 1) {
        AppendFunction(row.realOfOne);
    } else {
        return false;
    }
    lastOperator_ = row.name;
    return true;
}

void RealProgram::AppendFunction(RealFunction function) {
    Instruction instruction;
    instruction.code = function == RealNegate ? Code::negate : Code::callOne;
    instruction.function = function;
    instructions_.push_back(instruction);
}

// A value that was pushed just now becomes the right operand of the operation itself.
void RealProgram::AppendBinary(RealOperation operation) {
    --depth_;
    const Code code = CodeOf(operation);
    if (instructions_.back().code != Code::push) {
        Instruction instruction;
        instruction.code = code;
        instruction.operation = operation;
        instructions_.push_back(instruction);
        return;
    }
    Instruction& last = instructions_.back();
    const bool isSquare = operation == RealPower && last.value != kBoundValue && values_[last.value] == 2.0;
    last.code = isSquare ? Code::square
                         : static_cast<Code>(static_cast<int>(code) + static_cast<int>(Code::addValue) -
                                             static_cast<int>(Code::add));
    last.operation = operation;
}

bool RealProgram::AppendConstant(double constant) {
    values_.push_back(constant);
    return AppendPush(static_cast<std::uint32_t>(values_.size() - 1));
}

bool RealProgram::AppendPush(std::uint32_t value) {
    if (depth_ >= kLaneDepth) return false;
    Instruction instruction;
    instruction.value = value;
    instructions_.push_back(instruction);
    ++depth_;
    return true;
}

// The four operations are done in place; everything else is called.
RealProgram::Code RealProgram::CodeOf(RealOperation operation) {
    if (operation == RealAdd) return Code::add;
    if (operation == RealSubtract) return Code::subtract;
    if (operation == RealMultiply) return Code::multiply;
    if (operation == RealDivide) return Code::divide;
    return Code::callTwo;
}

// The last operand is held in `last`, the others below it in the array. The first push stores a value that is
// never read, so that the first operand lies at index 2 once there is a second. A not-a-number of an operator
// that is called ends the lane.
bool RealProgram::Run(double boundValue, double& result) {
    std::array<double, kLaneDepth + 3> stack;
    double* below = stack.data();
    double last = 0.0;
    values_[kBoundValue] = boundValue;
    const double* const values = values_.data();
    for (const Instruction& instruction : instructions_) {
        switch (instruction.code) {
            case Code::push:
                *++below = last;
                last = values[instruction.value];
                break;
            case Code::add: last = *below-- + last; break;
            case Code::subtract: last = *below-- - last; break;
            case Code::multiply: last = *below-- * last; break;
            case Code::divide:
                if (last == 0.0) return false;
                last = *below-- / last;
                break;
            case Code::callTwo:
                last = instruction.operation(*below--, last);
                if (std::isnan(last)) return false;
                break;
            case Code::addValue: last += values[instruction.value]; break;
            case Code::subtractValue: last -= values[instruction.value]; break;
            case Code::multiplyValue: last *= values[instruction.value]; break;
            case Code::divideValue:
                if (values[instruction.value] == 0.0) return false;
                last /= values[instruction.value];
                break;
            case Code::callTwoValue:
                last = instruction.operation(last, values[instruction.value]);
                if (std::isnan(last)) return false;
                break;
            case Code::negate: last = 0.0 - last; break;
            case Code::square:
                last = RealSquare(last);
                if (std::isnan(last)) return false;
                break;
            case Code::callOne:
                last = instruction.function(last);
                if (std::isnan(last)) return false;
                break;
        }
    }
    result = depth_ == 1 ? last : stack[2];
    return true;
}

}  // namespace quorix
