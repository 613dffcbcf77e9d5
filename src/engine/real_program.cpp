#include "engine/real_program.h"

#include <algorithm>
#include <array>
#include <numbers>
#include <type_traits>

#include "engine/double_arithmetic_operators.h"
#include "engine/double_power_operators.h"
#include "engine/number_grammar.h"

namespace quorix {
namespace {

// Deeper expressions take the complex way.
constexpr std::int32_t kLaneDepth = 64;

using Instruction = RealProgram::Instruction;
using Handler = RealProgram::Handler;

inline double GoOn(const Instruction* at, double* below, double last, double x) {
    ++at;
    return at->handler(at, below, last, x);
}

double Finish(const Instruction* /*at*/, double* /*below*/, double last, double /*x*/) {
    return last;
}

// The first push stores a value that is never read.
double PushBound(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, x, x);
}
double PushConstant(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, at->constant, x);
}

// Functions of the last operand, of the bound variable and of a constant, the latter two pushed by the way.
// Those that are short are done in place, the others called.
template <auto function>
double Apply(const Instruction* at, double operand) {
    if constexpr (std::is_null_pointer_v<decltype(function)>) {
        return at->function(operand);
    } else {
        return function(operand);
    }
}
template <auto function>
double OfLast(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<function>(at, last), x);
}
template <auto function>
double OfBound(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, Apply<function>(at, x), x);
}
template <auto function>
double OfConstant(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, Apply<function>(at, at->constant), x);
}

struct FunctionHandlers {
    RealFunction function;
    Handler ofLast, ofBound, ofConstant;
};
template <auto function>
constexpr FunctionHandlers HandlersOfFunction() {
    return {function, OfLast<function>, OfBound<function>, OfConstant<function>};
}
// The row without a function calls the instruction's.
constexpr auto kFunctionHandlers = std::to_array<FunctionHandlers>(
    {HandlersOfFunction<RealNegate>(), HandlersOfFunction<RealSquare>(), HandlersOfFunction<nullptr>()});

// Operations whose right operand is the last one, the bound variable or a constant.
template <auto operation>
double Apply(const Instruction* at, double left, double right) {
    if constexpr (std::is_null_pointer_v<decltype(operation)>) {
        return at->operation(left, right);
    } else {
        return operation(left, right);
    }
}
template <auto operation>
double ByLast(const Instruction* at, double* below, double last, double x) {
    const double left = *below;
    return GoOn(at, below - 1, Apply<operation>(at, left, last), x);
}
template <auto operation>
double ByBound(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<operation>(at, last, x), x);
}
template <auto operation>
double ByConstant(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<operation>(at, last, at->constant), x);
}

struct OperationHandlers {
    RealOperation operation;
    Handler byLast, byBound, byConstant;
};
template <auto operation>
constexpr OperationHandlers HandlersOfOperation() {
    return {operation, ByLast<operation>, ByBound<operation>, ByConstant<operation>};
}
constexpr auto kOperationHandlers = std::to_array<OperationHandlers>(
    {HandlersOfOperation<RealAdd>(), HandlersOfOperation<RealSubtract>(), HandlersOfOperation<RealMultiply>(),
     HandlersOfOperation<RealDivide>(), HandlersOfOperation<nullptr>()});

}  // namespace

DoubleNumber DoubleNumber::FromText(std::u16string_view text) {
    return {NumberToDouble(text)};
}

void RealProgram::Build(const DoubleExpression& expression) {
    instructions_.clear();
    lastOperator_ = {};
    depth_ = 0;
    pushed_ = Pushed::nothing;
    bases_.Clear();
    if (AppendAll(expression) && depth_ == 1) {
        instructions_.push_back({Finish});
    } else {
        instructions_.clear();
    }
}

bool RealProgram::AppendAll(const DoubleExpression& expression) {
    return std::ranges::all_of(expression.Tokens(),
                               [&](const auto& token) { return Append(token, expression); });
}

bool RealProgram::Append(const ResolvedToken<DComplex>& token, const DoubleExpression& expression) {
    switch (token.kind) {
        case ResolvedKind::operation: return AppendOperation(*token.row);
        case ResolvedKind::open:
            return bases_.Depth() < static_cast<std::size_t>(kLaneDepth) && bases_.Open(depth_);
        case ResolvedKind::close: bases_.Close(); return true;
        case ResolvedKind::number:
            return AppendPush(Pushed::constant, expression.NumberAt(token.index).value);
        case ResolvedKind::bound: return AppendPush(Pushed::boundVariable, 0.0);
        case ResolvedKind::pi: return AppendPush(Pushed::constant, std::numbers::pi);
        case ResolvedKind::e: return AppendPush(Pushed::constant, std::numbers::e);
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
    const FunctionHandlers& handlers = *std::ranges::find_if(kFunctionHandlers, [function](const auto& row) {
        return row.function == function || row.function == nullptr;
    });
    if (pushed_ == Pushed::nothing) {
        instructions_.push_back({handlers.ofLast});
    } else {
        instructions_.back().handler = pushed_ == Pushed::constant ? handlers.ofConstant : handlers.ofBound;
    }
    instructions_.back().function = function;
    pushed_ = Pushed::nothing;
}

void RealProgram::AppendBinary(RealOperation operation) {
    --depth_;
    if (operation == RealPower && pushed_ == Pushed::constant && instructions_.back().constant == 2.0) {
        instructions_.pop_back();
        pushed_ = Pushed::nothing;
        AppendFunction(RealSquare);
        return;
    }
    const OperationHandlers& handlers = *std::ranges::find_if(
        kOperationHandlers,
        [operation](const auto& row) { return row.operation == operation || row.operation == nullptr; });
    if (pushed_ == Pushed::nothing) {
        instructions_.push_back({handlers.byLast});
    } else {
        instructions_.back().handler = pushed_ == Pushed::constant ? handlers.byConstant : handlers.byBound;
    }
    instructions_.back().operation = operation;
    pushed_ = Pushed::nothing;
}

bool RealProgram::AppendPush(Pushed pushed, double constant) {
    if (depth_ >= kLaneDepth) return false;
    instructions_.push_back({pushed == Pushed::constant ? PushConstant : PushBound, constant});
    pushed_ = pushed;
    ++depth_;
    return true;
}

double RealProgram::Run(double x) const {
    std::array<double, kLaneDepth + 2> stack;
    const Instruction* first = instructions_.data();
    return first->handler(first, stack.data(), 0.0, x);
}

}  // namespace quorix
