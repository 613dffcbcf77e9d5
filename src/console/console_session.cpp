#include "console/console_session.h"

#include <algorithm>

#include "engine/evaluate.h"
#include "engine/number_locale.h"
#include "engine/variable_store.h"
#include "frontends/engine_text.h"
#include "platform/utf8.h"

namespace quorix {
namespace {

constexpr std::string_view kOverlengthString = "Overlength string";

// In the European locale a comma is the decimal sign, as it is shown, and a semicolon parts arguments.
void TakeTerminalSigns(std::u16string& text, std::u16string_view numberLocale) {
    if (SignsOf(numberLocale).decimal != kDisplayComma) return;
    std::ranges::replace(text, u',', kDisplayComma);
    std::ranges::replace(text, u';', u',');
}

}  // namespace

bool ConsoleSession::Evaluate(std::string_view line, std::string& output) {
    const ResultSettings& settings = options_.result;
    std::u16string displayText = FromUtf8(line);
    TakeTerminalSigns(displayText, settings.numberLocale);
    const int radix = RadixOf(settings.radixId);
    const std::optional<std::u16string> engineText = ToEngineText(displayText, settings.numberLocale, radix);
    if (!engineText) {
        output += kOverlengthString;
        return false;
    }
    ClearCalcError();
    SetAngleUnit(options_.angleUnit);
    calcContext().wordSize = BitsOf(settings.wordId);
    const CalcValue value = EvaluateExpression(*engineText, EvaluationMode::number, radix);
    const bool succeeded = calcContext().calcError == 0;
    if (succeeded) SetVariableComplex(SLOT_LAST_RESULT, value.number);
    ResultText result = ComposeResult(value, settings);
    std::ranges::replace(result.text, kDisplayComma, u',');  // The window's painter does the same.
    output += ToUtf8(result.text);
    return succeeded;
}

}  // namespace quorix
