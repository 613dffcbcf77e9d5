#include "frontends/equals.h"

#include "engine/calc_context.h"
#include "engine/error_table.h"
#include "engine/evaluate.h"
#include "engine/variable_store.h"
#include "frontends/base_conversion.h"
#include "frontends/categories.h"
#include "frontends/engine_text.h"
#include "numerics/constants.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

constexpr std::size_t kBufferLength = 4096;

std::u16string UpperCase(std::u16string_view text) {
    std::u16string upper(text);
    for (char16_t& c : upper) {
        if (c >= u'a' && c <= u'z') {
            c = static_cast<char16_t>(c - u'a' + u'A');
        }
    }
    return upper;
}

}  // namespace

ResultSettings EqualsPath::SettingsNow() const {
    const CalculatorSettings& settings = display_.Settings();
    return {.radixId = display_.GetBase(),
            .wordId = display_.GetWordSize(),
            .formatId = display_.GetFormat(),
            .fixDigits = settings.fixDigits,
            .fractionLimit = settings.fractionLimit,
            .numberLocale = settings.numberLocale};
}

void EqualsPath::Run(int category) {
    if (!display_.Settings().IsStringMode()) {
        display_.Key(KEY_EQUALS);
        return;
    }
    const std::size_t length = display_.GetLine().size();
    // A text that fills the buffer to the last element counts as empty; this is intended.
    if (length == 0 || length == kBufferLength) {
        display_.SetResultText(kEmptyString);
    } else if (length > kBufferLength) {
        display_.SetResultText(kOverlengthString);
    } else {
        const WaitCursorScope wait(waitCursor_);
        Evaluate(category);
    }
}

void EqualsPath::Evaluate(int category) {
    ClearCalcError();
    std::u16string line = display_.GetLine();
    if (hooks_.expandMacros && !hooks_.expandMacros(line)) {
        ShowMessage(ErrorMessageFor(calcContext().calcError), category);
        return;
    }
    if (category == CATEGORY_BASE_CONVERSION) {
        const bool callsMacros = line != display_.GetLine();
        NormaliseLine(display_);
        display_.Key(KEY_NORM);
        if (!callsMacros) {
            line = display_.GetLine();
        }
    }
    const int radix = category == CATEGORY_MATRIX ? 10 : RadixOf(display_.GetBase());
    const auto text = ToEngineText(line, display_.Settings().numberLocale, radix);
    if (!text) {
        ShowMessage(kOverlengthString, category);
        return;
    }
    SetAngleUnit(display_.GetAngle() - ANGLE_DEG);
    calcContext().wordSize = BitsOf(display_.GetWordSize());
    const auto mode = category == CATEGORY_MATRIX ? EvaluationMode::matrix : EvaluationMode::number;
    const CalcValue value = EvaluateExpression(*text, mode, radix);
    if (calcContext().calcError != 0) {
        ShowMessage(ErrorMessageFor(calcContext().calcError), category);
    } else if (value.kind == KIND_MATRIX) {
        display_.Key(KEY_EQUALS);
        if (hooks_.takeMatrix) {
            display_.SetResultText(hooks_.takeMatrix(value));
        }
    } else {
        ShowValue(value, category);
    }
}

void EqualsPath::ShowValue(const CalcValue& value, int category) {
    if (category != CATEGORY_MATRIX) {
        SetVariableComplex(SLOT_LAST_RESULT, value.number);
    }
    const std::int32_t angle = calcContext().angleUnit + ANGLE_DEG;
    const ResultText shown = ComposeResult(value, SettingsNow());
    display_.Key(KEY_EQUALS);
    const bool equals = display_.ShowsEquals();
    if (angle != display_.GetAngle()) {
        display_.Key(angle);
    }
    if (shown.formatId != display_.GetFormat()) {
        display_.Key(shown.formatId);
    }
    display_.SetShowEquals(equals);
    const std::u16string text = category == CATEGORY_BASE_CONVERSION ? UpperCase(shown.text) : shown.text;
    display_.ShowResult(text, value.number);
}

void EqualsPath::ShowMessage(std::u16string_view message, int category) {
    display_.Key(KEY_EQUALS);
    display_.SetResultText(category == CATEGORY_BASE_CONVERSION ? UpperCase(message)
                                                                : std::u16string(message));
}

void EqualsPath::FormatChanged() {
    if (display_.GetResultText().empty() || !display_.ResultIsValue()) {
        return;
    }
    CalcValue value;
    value.number = display_.LastValue();
    if (qcmp(value.number.im, constants::kZero) != 0) {
        // A complex result is always shown in SCI.
        display_.Key(KEY_SCI);
        return;
    }
    const ResultText shown = ComposeResult(value, SettingsNow());
    if (shown.formatId != display_.GetFormat()) {
        display_.Key(shown.formatId);
    }
    display_.ShowResult(shown.text, value.number);
}

}  // namespace quorix
