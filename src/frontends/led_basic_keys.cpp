// The key-by-key calculators: keys of the modes "Basic-Standard" and "Basic-RPN".

#include "engine/calc_context.h"
#include "engine/error_table.h"
#include "engine/format_value.h"
#include "engine/key_engine.h"
#include "engine/number_locale.h"
#include "engine/result_text.h"
#include "frontends/basic_key_tokens.h"
#include "frontends/display_symbols.h"
#include "frontends/led_display.h"
#include "frontends/memory_text.h"
#include "numerics/qcore.h"

namespace quorix {

namespace {

/// An imaginary part below this counts as none.
constexpr double kTiny = 1e-64;
/// Significant digits with which a popped value is sent back.
constexpr int kPoppedDigits = 64;
constexpr std::u16string_view kComplexRefused = u"Invalid parameter(s)";

bool HasImaginaryPart(const QComplex& value) {
    QReal magnitude = value.im;
    qabs(magnitude);
    QReal tiny;
    etoq(kTiny, tiny);
    return qcmp(magnitude, tiny) >= 0;
}

std::u16string PoppedText(const QComplex& value) {
    FormatSettings settings;
    settings.digits = kPoppedDigits;
    const FormattedValue text = FormatValue(value.re, settings);
    std::u16string joined = text.mantissa + text.exponent;
    std::erase(joined, u' ');
    return joined;
}

struct OperatorSign {
    std::int32_t code;
    char16_t sign;
};

constexpr OperatorSign kOperatorSigns[] = {
    {KEY_PLUS, u'+'},
    {KEY_DIVIDE, symbols::kDivide},
    {KEY_MULTIPLY, symbols::kMultiply},
    {KEY_MINUS, symbols::kMinus},
};

}  // namespace

void CLedDisplay::SendToken(std::u16string_view token, bool isDigit) {
    const std::int32_t radixId = isDigit ? base_ : std::int32_t{RADIX_DEC};
    basicValue_ =
        settings_.inputMode == kModeRpn ? KeyEngineRpn(token, radixId) : KeyEngineStandard(token, radixId);
}

void CLedDisplay::SendTokens(std::int32_t code) {
    const BasicKeyTokens* row = FindBasicKeyTokens(code);
    if (row == nullptr) {
        return;
    }
    const auto& tokens = settings_.inputMode == kModeRpn ? row->rpn : row->standard;
    // The digits of x squared and its like are whole numbers, whatever the base.
    const char16_t first = tokens[0].front();
    const bool isDigitKey =
        tokens[0].size() == 1 && ((first >= u'0' && first <= u'9') || (first >= u'A' && first <= u'F'));
    std::u16string popped;
    for (const std::u16string_view token : tokens) {
        if (token.empty()) {
            break;
        }
        if (token == kPoppedValue) {
            SendToken(popped, false);
            continue;
        }
        SendToken(token, isDigitKey);
        if (token == u"Pop") {
            popped = PoppedText(basicValue_);
        }
    }
}

void CLedDisplay::ShowBasicText(std::u16string_view text) {
    EditedLine().Clear();
    EditedLine().InsertCharacters(text);
    EditedLine().ResetPositions();
    resultText_ = text;
}

void CLedDisplay::ShowBasicValue(const QComplex& value, std::int32_t formatId, bool typing) {
    if (HasImaginaryPart(value)) {
        ShowBasicText(kComplexRefused);
        resultIsValue_ = false;
        return;
    }
    if (calcContext().calcError != 0) {
        ShowBasicText(ErrorMessageFor(calcContext().calcError));
        resultIsValue_ = false;
        return;
    }
    if (typing) {
        FormatSettings settings;
        settings.radixId = base_;
        settings.wordId = wordSize_;
        settings.typedFractionDigits =
            KeyEngineEntryState() == ENTRY_FRACTION ? KeyEngineFractionDigits() : -1;
        FormattedValue shown = FormatValue(value.re, settings);
        ApplySeparators(shown.mantissa, settings_.numberLocale, base_);
        ShowBasicText(shown.mantissa + shown.exponent);
    } else {
        CalcValue result;
        result.number.re = value.re;
        ShowBasicText(ComposeResult(result, {.radixId = base_,
                                             .wordId = wordSize_,
                                             .formatId = formatId,
                                             .fixDigits = settings_.fixDigits,
                                             .fractionLimit = settings_.fractionLimit,
                                             .numberLocale = settings_.numberLocale})
                          .text);
    }
    resultIsValue_ = true;
}

void CLedDisplay::ReformatBasicValue() {
    EditedLine().Clear();
    ShowBasicValue(basicValue_, FORMAT_NORM, true);
}

void CLedDisplay::StoreBasicLine() {
    if (resultIsValue_) {
        std::u16string text = GetLine();
        if (text.find(u'/') != std::u16string::npos) {
            const FormattedValue shown = FormatValue(basicValue_.re, FormatSettings{});
            CurrentMemory() = MemoryTextOf(shown.mantissa + shown.exponent, u"English (US)", base_);
        } else {
            CurrentMemory() = MemoryTextOf(text, settings_.numberLocale, base_);
        }
    }
    if (settings_.inputMode == kModeRpn) {
        KeyEngineRpn(u"(", RADIX_DEC);
    }
}

void CLedDisplay::EnterValue(const QComplex& value) {
    ClearLine();
    KeyEngineSetEntryState(ENTRY_NONE);
    KeyEnginePush(value);
    basicValue_ = value;
    ShowBasicValue(value, FORMAT_NORM, true);
    Invalidate();
}

void CLedDisplay::RecallInBasic() {
    EnterValue(MemoryValue(CurrentMemory(), base_));
}

void CLedDisplay::FinishBasicKey(std::int32_t code) {
    if (!HasImaginaryPart(basicValue_)) {
        KeyEngineClearImaginary();
    }
    const bool equals = code == KEY_EQUALS && settings_.inputMode == kModeBasic;
    if (equals) {
        HideToolTip();
    }
    ShowBasicValue(basicValue_, equals ? format_ : std::int32_t{FORMAT_NORM}, !equals);
}

void CLedDisplay::BasicKey(std::int32_t code) {
    const bool standard = settings_.inputMode == kModeBasic;
    if ((code == KEY_LEFT || code == KEY_RIGHT) && standard) {
        CursorKey(code);
        return;
    }
    if (MemoryKey(code)) {
        return;
    }
    if (code == KEY_STORE) {
        StoreBasicLine();
        return;
    }
    if (code == KEY_RECALL) {
        RecallInBasic();
        return;
    }
    const BasicKeyTokens* row = FindBasicKeyTokens(code);
    if (row == nullptr || (standard ? row->standard : row->rpn)[0].empty()) {
        return;
    }
    if (standard) {
        for (const auto& [operatorCode, sign] : kOperatorSigns) {
            if (operatorCode == code) {
                pendingOperator_ = sign;
            }
        }
    }
    ClearLine();
    SendTokens(code);
    if (code == KEY_EQUALS) {
        const std::int32_t failure = calcContext().calcError;
        if (failure != 0) {
            KeyEngineReset();
        } else {
            KeyEngineSetResult(basicValue_);
        }
    }
    FinishBasicKey(code);
}

}  // namespace quorix
