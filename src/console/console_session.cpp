#include "console/console_session.h"

#include <algorithm>

#include "engine/evaluate.h"
#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "engine/variable_store.h"
#include "frontends/engine_text.h"
#include "matrix/matrix_literal.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

constexpr std::string_view kOverlengthString = "Overlength string";

// In the European locale a comma is the decimal sign, as it is shown, and a semicolon parts arguments.
void TakeTerminalSigns(std::u16string& text, char16_t decimalSign) {
    if (decimalSign != u',') return;
    std::ranges::replace(text, u',', kDisplayComma);
    std::ranges::replace(text, u';', u',');
}

// "1 2 3" and the like, and not an expression whose value is to be the list: the "e" of exponents is the only
// letter of numbers.
bool LooksLikeList(std::u16string_view text) {
    return std::ranges::none_of(text, [](char16_t c) { return IsAsciiLetter(c) && FoldLower(c) != u'e'; });
}

void Store(int slot, const CalcValue& value) {
    if (value.kind == KIND_MATRIX) {
        SetVariableMatrix(slot, value.rows, value.cols, value.data);
    } else {
        SetVariableComplex(slot, value.number);
    }
}

}  // namespace

bool ConsoleSession::Evaluate(std::string_view line, std::string& output) {
    ClearCalcError();
    error_.clear();
    SetAngleUnit(options_.angleUnit);
    calcContext().wordSize = BitsOf(options_.result.wordId);
    const std::u16string text = FromUtf8(line);
    const std::optional<Assignment> assignment = FindAssignment(text);
    const std::optional<CalcValue> value = assignment ? Assign(*assignment) : Compute(text);
    if (!error_.empty()) {
        output += error_;
        return false;
    }
    if (value) Store(SLOT_LAST_RESULT, *value);
    AppendValue(value.value_or(CalcValue{}), output);
    return value.has_value();
}

std::optional<CalcValue> ConsoleSession::Compute(std::u16string_view displayText) {
    const ResultSettings& settings = options_.result;
    std::u16string text(displayText);
    TakeTerminalSigns(text, DecimalSign());
    const int radix = RadixOf(settings.radixId);
    const std::optional<std::u16string> engineText = ToEngineText(text, settings.numberLocale, radix);
    if (!engineText) {
        error_ = kOverlengthString;
        return std::nullopt;
    }
    const bool isMatrix = radix == 10 && IsMatrixExpression(*engineText);
    CalcValue value =
        EvaluateExpression(*engineText, isMatrix ? EvaluationMode::matrix : EvaluationMode::number, radix);
    if (calcContext().calcError != 0) return std::nullopt;
    return value;
}

std::optional<std::u16string> ConsoleSession::EngineText(std::string_view text) const {
    std::u16string wide = FromUtf8(text);
    TakeTerminalSigns(wide, DecimalSign());
    return ToEngineText(wide, options_.result.numberLocale, 10);
}

std::optional<CalcValue> ConsoleSession::Assign(const Assignment& assignment) {
    if (assignment.slot < 0) {
        error_ = ToUtf8(assignment.name) + " cannot be set; variables are [VA] to [VZ], and LIST";
        return std::nullopt;
    }
    std::optional<CalcValue> value = ValueToAssign(assignment);
    if (value) Store(assignment.slot, *value);
    return value;
}

std::optional<CalcValue> ConsoleSession::ValueToAssign(const Assignment& assignment) {
    const bool isList = assignment.slot == SLOT_LIST;
    if (IsMatrixLiteral(assignment.value) || (isList && LooksLikeList(assignment.value))) {
        ParsedMatrix parsed = isList ? ParseList(assignment.value, DecimalSign())
                                     : ParseMatrixLiteral(assignment.value, DecimalSign());
        error_ = std::move(parsed.error);
        if (!error_.empty()) return std::nullopt;
        return std::move(parsed.value);
    }
    std::optional<CalcValue> value = Compute(assignment.value);
    if (value && isList && (value->kind != KIND_MATRIX || value->cols != 1)) {
        error_ = "A list is a matrix of one column";
        return std::nullopt;
    }
    return value;
}

void ConsoleSession::AppendValue(const CalcValue& value, std::string& output) const {
    if (value.kind == KIND_MATRIX) {
        output += MatrixText(value, DecimalSign());
        return;
    }
    ResultText result = ComposeResult(value, options_.result);
    std::ranges::replace(result.text, kDisplayComma, u',');  // The window's painter does the same.
    output += ToUtf8(result.text);
}

char16_t ConsoleSession::DecimalSign() const {
    return SignsOf(options_.result.numberLocale).decimal == kDisplayComma ? u',' : u'.';
}

}  // namespace quorix
