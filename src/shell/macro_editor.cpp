#include "shell/macro_editor.h"

#include <algorithm>

#include "engine/calc_context.h"
#include "engine/evaluate.h"
#include "frontends/engine_text.h"

namespace quorix {

namespace {

constexpr std::u16string_view kWrongMode = u"Change to String-Mode to edit";
constexpr std::u16string_view kEditing = u"macro editing ...";
constexpr std::u16string_view kValid = u"valid";
constexpr std::u16string_view kInvalid = u"invalid";
constexpr std::u16string_view kNameMissing = u"Enter a name first";

/// Values tried in place of parameters: a body that fails at one of them may be defined at another.
constexpr std::u16string_view kTrialValues[] = {u"1", u"2", u"0.5", u"3", u"0"};

/// Codes that tell of the text and not of the values in it.
constexpr std::int32_t kTextErrors[] = {-1, -8, kInvalidMacro};

}  // namespace

void MacroEditor::SetName(std::u16string_view name) {
    record_.name = name;
    std::erase_if(record_.name, [](char16_t c) { return c <= u' ' || c == u'(' || c == u')' || c == u','; });
}

std::u16string MacroEditor::Header() const {
    return record_.name + u"(" + record_.parameters + u")";
}

void MacroEditor::Choose(std::u16string_view name) {
    if (const Macro* const macro = macros_.Find(name)) {
        record_ = *macro;
    } else {
        record_ = {};
        SetName(name);
    }
    display_.SetLine(record_.expression, record_.tokenLengths);
}

bool MacroEditor::Begin(std::u16string_view userMode) {
    if (userMode != kModeString) {
        display_.SetResultText(kWrongMode);
        return false;
    }
    editing_ = true;
    display_.SetMacroEditing(true);
    display_.SetResultText(kEditing);
    return true;
}

bool MacroEditor::End() {
    std::u16string text;
    const bool empty = display_.EngineText(text) && text.empty();
    if (record_.name.empty() && !empty) {
        display_.SetResultText(kNameMissing);
        return false;
    }
    if (empty) {
        macros_.Remove(record_.name);
    } else {
        record_.expression = display_.GetLine();
        record_.tokenLengths = display_.GetTokenLengths();
        macros_.Store(record_);
    }
    editing_ = false;
    display_.SetMacroEditing(false);
    display_.SetResultText({});
    return true;
}

void MacroEditor::InsertLetter(char16_t letter) {
    const std::u16string_view token(&letter, 1);
    display_.InsertTokens(token, u"1");
    if (record_.parameters.find(letter) == std::u16string::npos) {
        if (!record_.parameters.empty()) {
            record_.parameters += u',';
        }
        record_.parameters += letter;
        ++record_.parameterCount;
    }
}

void MacroEditor::Clear() {
    display_.EraseLine();
    record_.parameters.clear();
    record_.parameterCount = 0;
}

bool MacroEditor::EvaluatesWith(std::u16string_view value) const {
    Macro trial = record_;
    trial.name = u"trial";
    trial.expression = display_.GetLine();
    MacroList withTrial = macros_;
    withTrial.Store(trial);
    std::u16string line = u"trial(";
    for (int i = 0; i < trial.parameterCount; ++i) {
        line += (i == 0 ? u"" : u",") + std::u16string(value);
    }
    line += u")";
    ClearCalcError();
    // The body first: macros that it calls are to be expanded here, as they would be in a line of their own.
    if (!ExpandMacros(withTrial, line) || !ExpandMacros(macros_, line)) {
        return false;
    }
    const auto text = ToEngineText(line, display_.Settings().numberLocale, 10);
    if (!text) {
        return false;
    }
    EvaluateExpression(*text, EvaluationMode::number, 10);
    return std::find(std::begin(kTextErrors), std::end(kTextErrors), calcContext().calcError) ==
           std::end(kTextErrors);
}

bool MacroEditor::Validate() {
    const std::int32_t angle = calcContext().angleUnit;
    const bool valid = !display_.GetLine().empty() &&
                       std::any_of(std::begin(kTrialValues), std::end(kTrialValues),
                                   [this](std::u16string_view value) { return EvaluatesWith(value); });
    ClearCalcError();
    SetAngleUnit(angle);
    display_.SetResultText(valid ? kValid : kInvalid);
    return valid;
}

}  // namespace quorix
