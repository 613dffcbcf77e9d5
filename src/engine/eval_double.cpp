#include "engine/eval_double.h"

#include <cmath>
#include <numbers>

#include "engine/compiled_expression.h"
#include "engine/double_operator_table.h"
#include "engine/number_grammar.h"
#include "engine/repeat_registers.h"

namespace quorix {
namespace {

struct DoubleNumber {
    double value = 0.0;

    static DoubleNumber FromText(std::u16string_view text) { return {NumberToDouble(text)}; }
};

using DoubleWorkspace = EvaluatorWorkspace<DComplex, DoubleNumber>;

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

std::optional<DComplex> Run(DoubleWorkspace& workspace, double boundValue) {
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

}  // namespace

std::optional<DComplex> EvalToDouble(std::u16string_view text, std::u16string_view boundName,
                                     double boundValue, int radix) {
    if (calcContext().calcError != 0) return std::nullopt;
    const WorkspaceLease<DoubleWorkspace> workspace;
    if (!workspace->expression.Prepare(text, boundName, radix, DoubleOperatorTable())) return std::nullopt;
    return Run(*workspace, boundValue);
}

}  // namespace quorix
