#include "engine/series_functions.h"

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/paste_number.h"
#include "engine/token_list.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

/// Whether `step` leads from `from` to `to` and is no longer than the span.
bool StepFits(const QReal& from, const QReal& to, const QReal& step) {
    QReal span;
    qsub(from, to, span);
    const int direction = qcmp(to, from);
    if (direction == 0) {
        return true;
    }
    if (qcmp(step, constants::kZero) != direction) {
        return false;
    }
    return direction > 0 ? qcmp(step, span) <= 0 : qcmp(step, span) >= 0;
}

}  // namespace

std::u16string TermText(std::u16string_view expression, std::u16string_view variable,
                        std::u16string_view value) {
    std::u16string text(expression);
    if (variable.empty()) {
        return text;
    }
    // Word boundaries are not looked at: an "x" also changes the "x" of "exp". This is intended.
    for (std::size_t at = text.find(variable); at != text.npos && text.size() <= kMaxExpressionLength;
         at = text.find(variable, at + value.size())) {
        text.replace(at, variable.size(), value);
    }
    return text;
}

QReal CallSeries(NamedArguments& arguments, Series series) {
    const std::u16string expression(arguments.Text());
    const std::u16string variable(arguments.Text());
    const QReal from = arguments.Value();
    const QReal to = arguments.Value();
    const QReal step = arguments.OptionalValue().value_or(constants::kOne);
    if (calcContext().calcError != 0) {
        return {};
    }
    if (!StepFits(from, to, step)) {
        calcContext().calcError = ERROR_SERIES_STEP;
        return {};
    }
    const int direction = qcmp(to, from);
    QReal result = series == Series::sum ? constants::kZero : constants::kOne;
    QReal value = from;
    do {
        const std::u16string text = TermText(expression, variable, PastedTermValue(value));
        if (text.size() > kMaxExpressionLength) {
            calcContext().calcError = ERROR_PARENTHESIS;
            return {};
        }
        const QReal term = EvaluateRealText(text, 10);
        if (calcContext().calcError != 0) {
            return {};
        }
        if (series == Series::sum) {
            qadd(term, result, result);
        } else {
            qmul(term, result, result);
        }
        const QReal before = value;
        qadd(step, value, value);
        if (value == before) {
            break;  // the step is lost in the size of the value
        }
    } while (direction != 0 && qcmp(value, to) != direction);
    if (NumericErrorFlag() != NUMERIC_OK) {
        calcContext().calcError = ERROR_INVALID_PARAMETER;
    }
    return result;
}

}  // namespace quorix
