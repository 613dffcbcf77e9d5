#include "engine/evaluate.h"

#include <optional>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/eval_complex.h"
#include "engine/eval_matrix.h"
#include "engine/named_functions.h"
#include "engine/token_list.h"
#include "engine/variable_store.h"

namespace quorix {
namespace {

void EvaluateNumber(std::u16string_view text, int radix, CalcValue& record) {
    std::u16string expanded(text);
    if (!ExpandNamedFunctions(expanded, radix)) return;
    const QComplex number = EvalToComplex(expanded, {}, nullptr, radix).value_or(QComplex{});
    record.kind = number.im.IsZero() ? KIND_REAL : KIND_COMPLEX;
    record.number = number;
}

}  // namespace

CalcValue EvaluateExpression(std::u16string_view text, EvaluationMode mode, int radix) {
    CalcContext& context = calcContext();
    CalcValue& record = Variable(SLOT_SCRATCH);
    if (context.calcError != 0) return record;
    record.Clear();
    if (text.size() > kMaxExpressionLength) {
        context.calcError = ERROR_SYNTAX;
    } else if (mode == EvaluationMode::matrix) {
        EvalToMatrix(text, record);
    } else {
        EvaluateNumber(text, radix, record);
    }
    return record;
}

}  // namespace quorix
