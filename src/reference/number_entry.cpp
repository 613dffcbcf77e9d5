#include "reference/number_entry.h"

#include "engine/calc_context.h"
#include "engine/error_table.h"
#include "engine/format_value.h"
#include "engine/identifiers.h"
#include "engine/key_engine.h"
#include "engine/number_locale.h"

namespace quorix {

namespace {

bool IsEntering() {
    const EntryState state = KeyEngineEntryState();
    return state == ENTRY_INTEGER || state == ENTRY_FRACTION;
}

}  // namespace

void NumberEntry::Send(std::u16string_view token) {
    ClearCalcError();
    KeyEngineStandard(token, RADIX_DEC);
}

void NumberEntry::Clear() {
    Send(u".");
    Send(u".");
}

void NumberEntry::Enter(std::string_view plain) {
    if (IsEntering()) {
        Send(u"Pop");
    }
    const bool negative = plain.starts_with('-');
    plain.remove_prefix(negative ? 1 : 0);
    if (plain.find_first_not_of("0123456789.") != plain.npos) {
        Send(std::u16string(plain.begin(), plain.end()));
    } else {
        for (const char c : plain) {
            Send(c == '.' ? std::u16string(u"..") : std::u16string(1, static_cast<char16_t>(c)));
        }
    }
    if (negative) {
        Send(u"NEG");
    }
}

void NumberEntry::Backspace(std::string_view plain) {
    plain = plain.substr(0, plain.empty() ? 0 : plain.size() - 1);
    // An exponent that has lost its digits goes as a whole.
    while (!plain.empty() && plain.find_last_of("eE+-") == plain.size() - 1) {
        plain.remove_suffix(1);
    }
    if (KeyEngineEntryState() != ENTRY_OPERATOR) {
        Send(u"Pop");
    }
    Enter(plain.empty() ? "0" : plain);
}

EntryText NumberEntry::Shown(std::u16string_view numberLocale) {
    if (const std::int32_t error = calcContext().calcError; error != 0) {
        ClearCalcError();
        KeyEngineReset();
        return {std::u16string(ErrorMessageFor(error)), false};
    }
    FormatSettings settings;
    settings.typedFractionDigits = KeyEngineEntryState() == ENTRY_FRACTION ? KeyEngineFractionDigits() : -1;
    FormattedValue shown = FormatValue(KeyEngineTop().re, settings);
    ApplySeparators(shown.mantissa, numberLocale, RADIX_DEC);
    return {shown.mantissa + shown.exponent, true};
}

}  // namespace quorix
