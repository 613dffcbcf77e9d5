// The typed fields of the converter: keys to tokens, tokens to both fields.

#include "engine/number_locale.h"
#include "reference/converter.h"
#include "reference/number_entry.h"
#include "reference/number_text.h"

namespace quorix {

namespace {

/// A longer text takes no further character.
constexpr std::size_t kLongestTyped = 17;

}  // namespace

bool Converter::TakesTokens() {
    const std::u16string& text = SideText(ActiveSide()).value;
    // A message stands for no number; the next key begins one.
    return text.size() <= kLongestTyped || !NumberShown(text, ports_.numberLocale);
}

void Converter::Feed(std::u16string_view token) {
    if (HasSides() && (token == u"\b" || TakesTokens())) {
        Process(token);
    }
}

void Converter::Process(std::u16string_view token) {
    const bool isWholeNumber = token.size() > 1 && token.find_first_of(u"0123456789") != token.npos;
    if (token == u"\b") {
        const std::u16string& text = SideText(ActiveSide()).value;
        NumberEntry::Backspace(NumberShown(text, ports_.numberLocale)
                                   ? NormaliseNumber(text, ports_.numberLocale)
                                   : std::string());
    } else if (isWholeNumber) {
        NumberEntry::Enter(std::string(token.begin(), token.end()));
    } else {
        NumberEntry::Send(token);
    }
    ShowEntry();
}

void Converter::ShowEntry() {
    const EntryText entry = NumberEntry::Shown(ports_.numberLocale);
    SideText(ActiveSide()).value = entry.text;
    if (entry.isNumber) {
        ShowConverted(1 - ActiveSide());
    } else {
        SideText(1 - ActiveSide()).value.clear();
    }
}

// Fills one side from the number that the other one shows.
void Converter::ShowConverted(int side) {
    const auto value = NumberShown(SideText(1 - side).value, ports_.numberLocale);
    if (!value) {
        return;
    }
    double result = 0;
    std::u16string errorText;
    SideText(side).value = Convert(Side(1 - side).name, *value, Side(side).name, result, errorText)
                               ? ResultFieldText(result, ports_.numberLocale)
                               : errorText;
}

bool Converter::OnKey(int keyCode) {
    if (!HasSides()) {
        return false;
    }
    switch (keyCode) {
        case kConverterTab: SwapActiveSide(); return true;
        case 'C':
        case kConverterEscape: ClearBoth(); return true;
        case '.': Feed(u".."); return true;
        case ',':
            if (SignsOf(ports_.numberLocale).decimal != kDisplayComma) {
                return false;
            }
            Feed(u"..");
            return true;
        case kConverterBackspace: Feed(u"\b"); return true;
        case '~':
        case '_': ChangeSign(); return true;
        case 'M': StoreMemory(); return true;
        case 'R': RecallMemory(); return true;
        case '=':
        case kConverterEnter: Equals(); return true;
        default: break;
    }
    constexpr std::u16string_view kOwnTokens = u"0123456789+-*/";
    const auto key = static_cast<char16_t>(keyCode);
    if (keyCode <= 0 || keyCode > 0x7F || kOwnTokens.find(key) == kOwnTokens.npos) {
        return false;
    }
    Feed({&key, 1});
    return true;
}

void Converter::SwapActiveSide() {
    ActiveSide() = 1 - ActiveSide();
    NumberEntry::Clear();
}

void Converter::ClearBoth() {
    SideText(0).value.clear();
    SideText(1).value.clear();
    NumberEntry::Clear();
}

void Converter::ChangeSign() {
    if (!TakesTokens()) {
        return;
    }
    NumberEntry::Send(u"NEG");
    NumberEntry::Send(u"DoNothing");
    Process(u"DoNothing");
}

// The result stands as a new entry, so that digits go on behind it.
void Converter::Equals() {
    if (!TakesTokens()) {
        return;
    }
    Process(u"=");
    NumberEntry::Clear();
    EnterActiveNumber();
}

void Converter::EnterActiveNumber() {
    const std::u16string& text = SideText(ActiveSide()).value;
    if (NumberShown(text, ports_.numberLocale)) {
        NumberEntry::Enter(NormaliseNumber(text, ports_.numberLocale));
    }
}

void Converter::OnFieldPressed(ConverterField field) {
    if (!HasSides() || (field != SideField(0) && field != SideField(1))) {
        return;
    }
    NumberEntry::Clear();
    if (field != SideField(ActiveSide())) {
        ActiveSide() = 1 - ActiveSide();
        EnterActiveNumber();
    }
}

// A message is no value.
void Converter::StoreMemory() {
    const std::u16string& text = SideText(ActiveSide()).value;
    if (NumberShown(text, ports_.numberLocale)) {
        ports_.storeMemory(NormaliseNumber(text, ports_.numberLocale));
    }
}

// What was stored comes back whole, however long it is.
void Converter::RecallMemory() {
    const std::string plain = ports_.recallMemory();
    NumberEntry::Enter(plain.empty() ? "0" : plain);
    ShowEntry();
}

}  // namespace quorix
