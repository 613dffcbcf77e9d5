#include "engine/eval_double.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/double_operator_table.h"
#include "engine/range_program.h"
#include "engine/real_program.h"
#include "engine/repeat_registers.h"

namespace quorix {
namespace {

struct DoubleWorkspace : EvaluatorWorkspace<DComplex, DoubleNumber> {
    RealProgram real;
    unsigned realVersion = 0;
};

void PushValue(const ResolvedToken<DComplex>& token, const DoubleWorkspace& workspace, double boundValue,
               OperandStack<DComplex>& stack) {
    switch (token.kind) {
        case ResolvedKind::number: stack.Push({workspace.expression.NumberAt(token.index).value, 0.0}); break;
        case ResolvedKind::bound: stack.Push({boundValue, 0.0}); break;
        case ResolvedKind::pi: stack.Push({std::numbers::pi, 0.0}); break;
        case ResolvedKind::e: stack.Push({std::numbers::e, 0.0}); break;
        case ResolvedKind::i: stack.Push({0.0, 1.0}); break;
        default: calcContext().calcError = ERROR_SYNTAX; break;
    }
}

std::optional<DComplex> Walk(DoubleWorkspace& workspace, double boundValue) {
    const CalcContext& context = calcContext();
    OperandStack<DComplex> stack{workspace.entries};
    workspace.bases.Clear();
    for (const ResolvedToken<DComplex>& token : workspace.expression.Tokens()) {
        switch (token.kind) {
            case ResolvedKind::operation:
                repeatRegisters().lastOperator = token.row->name;
                token.row->function(stack, workspace.bases.Innermost());
                break;
            case ResolvedKind::open: workspace.bases.Open(stack.depth); break;
            case ResolvedKind::close: workspace.bases.Close(); break;
            default: PushValue(token, workspace, boundValue, stack); break;
        }
        if (context.calcError != 0) return std::nullopt;
    }
    return stack.depth > 0 ? stack.entries[0] : DComplex{};
}

bool HasFastLane(DoubleWorkspace& workspace) {
    if (workspace.realVersion != workspace.expression.Version()) {
        workspace.realVersion = workspace.expression.Version();
        workspace.real.Build(RealSteps(workspace.expression));
    }
    return workspace.real.IsUsable();
}

void KeepLastOperator(const RealProgram& program) {
    if (!program.LastOperator().empty()) repeatRegisters().lastOperator = program.LastOperator();
}

// The fast lane first; where it must be left, the whole expression is walked again.
std::optional<DComplex> Run(DoubleWorkspace& workspace, double boundValue) {
    if (!HasFastLane(workspace)) return Walk(workspace, boundValue);
    const double value = workspace.real.Run(boundValue);
    if (std::isnan(value)) return Walk(workspace, boundValue);
    KeepLastOperator(workspace.real);
    return DComplex{value, 0.0};
}

}  // namespace

std::optional<DComplex> EvalToDouble(std::u16string_view text, std::u16string_view boundName,
                                     double boundValue, int radix) {
    if (calcContext().calcError != 0) return std::nullopt;
    const WorkspaceLease<DoubleWorkspace> workspace;
    if (!workspace->expression.Prepare(text, boundName, radix, DoubleOperatorTable())) return std::nullopt;
    return Run(*workspace, boundValue);
}

struct DoubleSampler::Workspace : DoubleWorkspace {
    bool isCompiled = false;
    RangeProgram ranges;
};

DoubleSampler::DoubleSampler(std::u16string_view text, std::u16string_view boundName, int radix)
    : workspace_(std::make_unique<Workspace>()) {
    workspace_->isCompiled = calcContext().calcError == 0 &&
                             workspace_->expression.Prepare(text, boundName, radix, DoubleOperatorTable());
    if (workspace_->isCompiled) workspace_->ranges.Build(RealSteps(workspace_->expression));
}

DoubleSampler::~DoubleSampler() = default;

std::optional<DComplex> DoubleSampler::At(double boundValue) {
    CalcContext& context = calcContext();
    if (context.calcError != 0) return std::nullopt;
    if (!workspace_->isCompiled) {
        context.calcError = ERROR_SYNTAX;
        return std::nullopt;
    }
    return Run(*workspace_, boundValue);
}

std::size_t DoubleSampler::RealValues(std::span<const double> x, std::span<double> y) {
    if (calcContext().calcError != 0 || !workspace_->isCompiled || !HasFastLane(*workspace_)) return 0;
    const RealProgram& program = workspace_->real;
    std::size_t stored = 0;
    while (stored < x.size()) {
        const std::size_t count = std::min(RealProgram::kBlock, x.size() - stored);
        const std::span<double> block = y.subspan(stored, count);
        program.RunBlock(x.subspan(stored, count), block);
        const auto isNone = [](double value) { return std::isnan(value); };
        const auto good = static_cast<std::size_t>(std::ranges::find_if(block, isNone) - block.begin());
        stored += good;
        if (good < count) break;
    }
    if (stored > 0) KeepLastOperator(program);
    return stored;
}

bool DoubleSampler::HasRanges() const {
    return workspace_->ranges.IsUsable();
}

std::optional<ValueRange> DoubleSampler::RangeOver(const ValueRange& x) {
    return HasRanges() ? workspace_->ranges.Over(x) : std::nullopt;
}

}  // namespace quorix
