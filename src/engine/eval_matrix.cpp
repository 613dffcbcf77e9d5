#include "engine/eval_matrix.h"

#include <cmath>

#include "engine/compiled_expression.h"
#include "engine/number_grammar.h"
#include "engine/rewrite_solve.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

OperatorTable<CalcValue>& MatrixOperatorTable() {
    static OperatorTable<CalcValue> table;
    return table;
}

struct MatrixWorkspace {
    TokenList list;
    std::vector<Token> postfix;
    std::vector<Token> operators;
    std::vector<CalcValue> entries = std::vector<CalcValue>(static_cast<std::size_t>(kEvaluatorStackDepth));
    BaseStack bases;
};

// Numbers have double precision here, and what follows a number in its token is ignored.
void PushNumber(std::u16string_view number, OperandStack<CalcValue>& stack) {
    const double parsed = NumberToDouble(number);
    if (!std::isfinite(parsed)) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
        return;
    }
    CalcValue value;
    etoq(parsed, value.number.re);
    stack.Push(value);
}

void PushVariable(std::u16string_view name, OperandStack<CalcValue>& stack) {
    const int slot = FindVariable(name);
    if (slot < 0) {
        calcContext().calcError = ERROR_SYNTAX;
    } else {
        stack.Push(Variable(slot));
    }
}

void Walk(MatrixWorkspace& workspace, OperandStack<CalcValue>& stack) {
    const CalcContext& context = calcContext();
    workspace.bases.Clear();
    for (const Token& token : workspace.postfix) {
        const std::u16string_view word = workspace.list.TextOf(token);
        if (const OperatorRow<CalcValue>* row = MatrixOperatorTable().Find(word)) {
            row->function(stack, workspace.bases.Innermost());
        } else if (token.syntax.role == TokenRole::open) {
            workspace.bases.Open(stack.depth);
        } else if (token.syntax.role == TokenRole::close) {
            workspace.bases.Close();
        } else if (const std::size_t length = NumberPrefixLength(word); length > 0) {
            PushNumber(word.substr(0, length), stack);
        } else {
            PushVariable(word, stack);
        }
        if (context.calcError != 0) return;
    }
}

// A number result has a real part only.
void TakeResult(CalcValue& entry, CalcValue& value) {
    if (entry.kind == KIND_MATRIX) {
        value = std::move(entry);
    } else {
        value.Clear();
        value.number.re = entry.number.re;
    }
}

}  // namespace

void SetMatrixOperators(std::span<const OperatorRow<CalcValue>> rows) {
    MatrixOperatorTable() = OperatorTable<CalcValue>(rows);
}

bool EvalToMatrix(std::u16string_view text, CalcValue& value) {
    CalcContext& context = calcContext();
    if (context.calcError != 0) return false;
    if (text.size() > kMaxExpressionLength) {
        context.calcError = ERROR_SYNTAX;
        return false;
    }
    std::u16string rewritten(text);
    RewriteSolve(rewritten);
    const WorkspaceLease<MatrixWorkspace> workspace;
    if (!TokeniseToList(rewritten, 10, {}, workspace->list) ||
        !OrderPostfix(workspace->list, workspace->postfix, workspace->operators)) {
        context.calcError = ERROR_SYNTAX;
        return false;
    }
    OperandStack<CalcValue> stack{workspace->entries};
    Walk(*workspace, stack);
    const bool succeeded = context.calcError == 0;
    if (succeeded) TakeResult(workspace->entries[0], value);
    for (CalcValue& entry : workspace->entries) entry.Clear();
    return succeeded;
}

}  // namespace quorix
