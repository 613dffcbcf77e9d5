#include "engine/real_program.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "engine/double_arithmetic_operators.h"
#include "engine/double_power_operators.h"

namespace quorix {
namespace {

using Instruction = RealProgram::Instruction;
using Handlers = RealProgram::Handlers;

constexpr std::size_t kBlock = RealProgram::kBlock;

inline double GoOn(const Instruction* at, double* below, double last, double x) {
    ++at;
    return at->handlers.one(at, below, last, x);
}

double Finish(const Instruction* /*at*/, double* /*below*/, double last, double /*x*/) {
    return last;
}
constexpr Handlers kFinish{Finish, nullptr};

// The first push stores a value that is never read.
double PushBound(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, x, x);
}
double PushConstant(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, at->constant, x);
}
double* PushBoundBlock(const Instruction& /*at*/, double* last, const double* x, std::size_t count) {
    return std::copy_n(x, count, last + kBlock) - count;
}
double* PushConstantBlock(const Instruction& at, double* last, const double* /*x*/, std::size_t count) {
    return std::fill_n(last + kBlock, count, at.constant) - count;
}
constexpr Handlers kPushBound{PushBound, PushBoundBlock};
constexpr Handlers kPushConstant{PushConstant, PushConstantBlock};

// Functions of the last operand, of the bound variable and of a constant, the latter two pushed by the way.
// Those that are short are done in place, the others called.
template <auto function>
double Apply(const Instruction& at, double operand) {
    if constexpr (std::is_null_pointer_v<decltype(function)>) {
        return at.function(operand);
    } else {
        return function(operand);
    }
}
template <auto function>
double OfLast(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<function>(*at, last), x);
}
template <auto function>
double OfBound(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, Apply<function>(*at, x), x);
}
template <auto function>
double OfConstant(const Instruction* at, double* below, double last, double x) {
    *++below = last;
    return GoOn(at, below, Apply<function>(*at, at->constant), x);
}
template <auto function>
double* OfLastBlock(const Instruction& at, double* last, const double* /*x*/, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) last[i] = Apply<function>(at, last[i]);
    return last;
}
template <auto function>
double* OfBoundBlock(const Instruction& at, double* last, const double* x, std::size_t count) {
    last += kBlock;
    for (std::size_t i = 0; i < count; ++i) last[i] = Apply<function>(at, x[i]);
    return last;
}
template <auto function>
double* OfConstantBlock(const Instruction& at, double* last, const double* /*x*/, std::size_t count) {
    return std::fill_n(last + kBlock, count, Apply<function>(at, at.constant)) - count;
}

struct FunctionHandlers {
    RealFunction function;
    Handlers ofLast, ofBound, ofConstant;
};
template <auto function>
constexpr FunctionHandlers HandlersOfFunction() {
    return {function,
            {OfLast<function>, OfLastBlock<function>},
            {OfBound<function>, OfBoundBlock<function>},
            {OfConstant<function>, OfConstantBlock<function>}};
}
// The row without a function calls the instruction's.
constexpr auto kFunctionHandlers = std::to_array<FunctionHandlers>(
    {HandlersOfFunction<RealNegate>(), HandlersOfFunction<RealWholePower<2>>(),
     HandlersOfFunction<RealWholePower<3>>(), HandlersOfFunction<RealWholePower<4>>(),
     HandlersOfFunction<nullptr>()});

// Operations whose right operand is the last one, the bound variable or a constant.
template <auto operation>
double Apply(const Instruction& at, double left, double right) {
    if constexpr (std::is_null_pointer_v<decltype(operation)>) {
        return at.operation(left, right);
    } else {
        return operation(left, right);
    }
}
template <auto operation>
double ByLast(const Instruction* at, double* below, double last, double x) {
    const double left = *below;
    return GoOn(at, below - 1, Apply<operation>(*at, left, last), x);
}
template <auto operation>
double ByBound(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<operation>(*at, last, x), x);
}
template <auto operation>
double ByConstant(const Instruction* at, double* below, double last, double x) {
    return GoOn(at, below, Apply<operation>(*at, last, at->constant), x);
}
template <auto operation>
double* ByLastBlock(const Instruction& at, double* last, const double* /*x*/, std::size_t count) {
    double* left = last - kBlock;
    for (std::size_t i = 0; i < count; ++i) left[i] = Apply<operation>(at, left[i], last[i]);
    return left;
}
template <auto operation>
double* ByBoundBlock(const Instruction& at, double* last, const double* x, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) last[i] = Apply<operation>(at, last[i], x[i]);
    return last;
}
template <auto operation>
double* ByConstantBlock(const Instruction& at, double* last, const double* /*x*/, std::size_t count) {
    const double right = at.constant;
    for (std::size_t i = 0; i < count; ++i) last[i] = Apply<operation>(at, last[i], right);
    return last;
}

struct OperationHandlers {
    RealOperation operation;
    Handlers byLast, byBound, byConstant;
};
template <auto operation>
constexpr OperationHandlers HandlersOfOperation() {
    return {operation,
            {ByLast<operation>, ByLastBlock<operation>},
            {ByBound<operation>, ByBoundBlock<operation>},
            {ByConstant<operation>, ByConstantBlock<operation>}};
}
constexpr auto kOperationHandlers = std::to_array<OperationHandlers>(
    {HandlersOfOperation<RealAdd>(), HandlersOfOperation<RealSubtract>(), HandlersOfOperation<RealMultiply>(),
     HandlersOfOperation<RealDivide>(), HandlersOfOperation<nullptr>()});

// Null for exponents that have no function of their own.
RealFunction WholePower(double exponent) {
    return exponent == 2.0   ? RealWholePower<2>
           : exponent == 3.0 ? RealWholePower<3>
           : exponent == 4.0 ? RealWholePower<4>
                             : nullptr;
}

}  // namespace

void RealProgram::Build(std::span<const RealStep> steps) {
    instructions_.clear();
    lastOperator_ = {};
    pushed_ = Pushed::nothing;
    for (const RealStep& step : steps) {
        switch (step.kind) {
            case RealStepKind::boundVariable: AppendPush(Pushed::boundVariable, 0.0); break;
            case RealStepKind::constant: AppendPush(Pushed::constant, step.constant); break;
            case RealStepKind::ofOne: AppendFunction(step.row->realOfOne); break;
            case RealStepKind::ofTwo: AppendBinary(step.row->realOfTwo); break;
        }
        if (step.row != nullptr) lastOperator_ = step.row->name;
    }
    if (!steps.empty()) instructions_.push_back({kFinish});
}

void RealProgram::AppendFunction(RealFunction function) {
    const FunctionHandlers& handlers = *std::ranges::find_if(kFunctionHandlers, [function](const auto& row) {
        return row.function == function || row.function == nullptr;
    });
    if (pushed_ == Pushed::nothing) {
        instructions_.push_back({handlers.ofLast});
    } else {
        instructions_.back().handlers = pushed_ == Pushed::constant ? handlers.ofConstant : handlers.ofBound;
    }
    instructions_.back().function = function;
    pushed_ = Pushed::nothing;
}

void RealProgram::AppendBinary(RealOperation operation) {
    if (operation == RealPower && pushed_ == Pushed::constant) {
        if (const RealFunction power = WholePower(instructions_.back().constant)) {
            instructions_.pop_back();
            pushed_ = Pushed::nothing;
            AppendFunction(power);
            return;
        }
    }
    const OperationHandlers& handlers = *std::ranges::find_if(
        kOperationHandlers,
        [operation](const auto& row) { return row.operation == operation || row.operation == nullptr; });
    if (pushed_ == Pushed::nothing) {
        instructions_.push_back({handlers.byLast});
    } else {
        instructions_.back().handlers = pushed_ == Pushed::constant ? handlers.byConstant : handlers.byBound;
    }
    instructions_.back().operation = operation;
    pushed_ = Pushed::nothing;
}

void RealProgram::AppendPush(Pushed pushed, double constant) {
    instructions_.push_back({pushed == Pushed::constant ? kPushConstant : kPushBound, constant});
    pushed_ = pushed;
}

double RealProgram::Run(double x) const {
    std::array<double, kRealDepth + 2> stack;
    const Instruction* first = instructions_.data();
    return first->handlers.one(first, stack.data(), 0.0, x);
}

// The columns lie one behind the other; the first is never used.
void RealProgram::RunBlock(std::span<const double> x, std::span<double> y) const {
    std::array<double, (kRealDepth + 1) * kBlock> columns;
    double* last = columns.data();
    for (const Instruction* at = instructions_.data(); at->handlers.block != nullptr; ++at) {
        last = at->handlers.block(*at, last, x.data(), x.size());
    }
    std::copy_n(last, y.size(), y.data());
}

}  // namespace quorix
