#include "engine/real_program.h"

#include <array>
#include <numbers>

#include "engine/double_arithmetic_operators.h"
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
    const bool takesOne = row.operands == 1 || (available == 1 && row.realOfOne != nullptr);
    if (available < (takesOne ? 1 : 2)) return false;
    const RealOperator operation = takesOne && row.operands == 2 ? row.realOfOne : row.real;
    if (operation == nullptr) return false;
    const auto pops = static_cast<std::uint8_t>(takesOne ? 0 : 1);
    const Code code = CodeOf(operation);
    if (code != Code::call && instructions_.back().code == Code::push) {
        // A value that was pushed just now becomes the right operand of the operation itself.
        Instruction& last = instructions_.back();
        last.code = static_cast<Code>(static_cast<int>(code) + static_cast<int>(Code::addValue) -
                                      static_cast<int>(Code::add));
    } else {
        instructions_.push_back({code, pops, 0, operation});
    }
    depth_ -= pops;
    lastOperator_ = row.name;
    return true;
}

bool RealProgram::AppendConstant(double constant) {
    values_.push_back(constant);
    return AppendPush(static_cast<std::uint32_t>(values_.size() - 1));
}

bool RealProgram::AppendPush(std::uint32_t value) {
    if (depth_ >= kLaneDepth) return false;
    instructions_.push_back({Code::push, 0, value, nullptr});
    ++depth_;
    return true;
}

// The four operations are done in place; everything else is called.
RealProgram::Code RealProgram::CodeOf(RealOperator operation) {
    if (operation == RealAdd) return Code::add;
    if (operation == RealSubtract) return Code::subtract;
    if (operation == RealMultiply) return Code::multiply;
    if (operation == RealDivide) return Code::divide;
    return Code::call;
}

// The last operand is held in `last`, the others below it in the array. The first push stores a value that is
// never read, so that the first operand lies at index 2 once there is a second.
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
            case Code::addValue: last += values[instruction.value]; break;
            case Code::subtractValue: last -= values[instruction.value]; break;
            case Code::multiplyValue: last *= values[instruction.value]; break;
            case Code::divideValue:
                if (values[instruction.value] == 0.0) return false;
                last /= values[instruction.value];
                break;
            case Code::call:
                below[1] = last;
                if (!instruction.operation(below + 1)) return false;
                below -= instruction.pops;
                last = below[1];
                break;
        }
    }
    result = depth_ == 1 ? last : stack[2];
    return true;
}

}  // namespace quorix
