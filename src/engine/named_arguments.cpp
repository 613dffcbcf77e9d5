#include "engine/named_arguments.h"

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/eval_complex.h"
#include "engine/named_functions.h"
#include "engine/text_fold.h"
#include "numerics/qcore.h"

namespace quorix {

QReal EvaluateRealText(std::u16string_view text, int radix) {
    std::u16string expanded(text);
    if (!ExpandNamedFunctions(expanded, radix)) {
        return {};
    }
    const std::optional<QComplex> value = EvalToComplex(expanded, {}, nullptr, radix);
    if (!value) {
        return {};
    }
    if (!value->im.IsZero()) {
        calcContext().calcError = ERROR_COMPLEX_UNSUPPORTED;
        return {};
    }
    return value->re;
}

std::u16string_view NamedArguments::Text() {
    if (calcContext().calcError != 0) {
        return {};
    }
    const auto argument = NextArgument(text_, position_);
    if (!argument) {
        calcContext().calcError = ERROR_PARENTHESIS;
        return {};
    }
    return TrimBlanks(*argument);
}

std::u16string NamedArguments::ExpandedText() {
    std::u16string text(Text());
    ExpandNamedFunctions(text, 10);
    return text;
}

QReal NamedArguments::Value(int radix) {
    const std::u16string_view text = Text();
    return calcContext().calcError == 0 ? EvaluateRealText(text, radix) : QReal{};
}

double NamedArguments::Double() {
    const QReal value = Value();
    return calcContext().calcError == 0 ? qtoe(value) : 0.0;
}

bool NamedArguments::HasMore() const {
    std::size_t position = position_;
    return NextArgument(text_, position).has_value();
}

std::optional<QReal> NamedArguments::OptionalValue() {
    if (!HasMore()) {
        return std::nullopt;
    }
    return Value();
}

double NamedArguments::OptionalDouble(double fallback) {
    return HasMore() ? Double() : fallback;
}

}  // namespace quorix
