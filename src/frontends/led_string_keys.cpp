// The expression editor: keys of the mode "String-Standard".

#include "engine/format_value.h"
#include "engine/number_locale.h"
#include "frontends/led_display.h"
#include "frontends/memory_text.h"
#include "frontends/string_key_tokens.h"

namespace quorix {

namespace {

constexpr std::u16string_view kMacroEditingText = u"macro editing ...";
constexpr int kWideStep = 10;

}  // namespace

bool CLedDisplay::LineKey(std::int32_t code) {
    switch (code) {
        case KEY_NEXT_LINE: line_ = (line_ + 1) % kLineCount; return true;
        case KEY_PREVIOUS_LINE: line_ = (line_ + kLineCount - 1) % kLineCount; return true;
        case KEY_LINE_1:
        case KEY_LINE_2:
        case KEY_LINE_3:
        case KEY_LINE_4:
        case KEY_LINE_5: line_ = code - KEY_LINE_1; return true;
        default: return false;
    }
}

bool CLedDisplay::CursorKey(std::int32_t code) {
    switch (code) {
        case KEY_LEFT: EditedLine().MoveLeft(1); return true;
        case KEY_RIGHT: EditedLine().MoveRight(1); return true;
        case KEY_LEFT_10: EditedLine().MoveLeft(kWideStep); return true;
        case KEY_RIGHT_10: EditedLine().MoveRight(kWideStep); return true;
        default: return false;
    }
}

bool CLedDisplay::MemoryKey(std::int32_t code) {
    if (code >= KEY_M1 && code <= KEY_M5) {
        memory_ = code;
    } else if (code == KEY_NEXT_MEMORY) {
        memory_ = memory_ == KEY_M5 ? std::int32_t{KEY_M1} : memory_ + 1;
    } else if (code == KEY_CLEAR_MEMORY) {
        CurrentMemory().clear();
    } else {
        return false;
    }
    return true;
}

void CLedDisplay::InsertTokensOf(std::int32_t code) {
    if (code == KEY_POINT) {
        const char16_t sign = SignsOf(settings_.numberLocale).decimal;
        EditedLine().InsertToken(Line().Cursor(), {&sign, 1});
    } else if (const StringKeyTokens* row = FindStringKeyTokens(code)) {
        EditedLine().InsertToken(Line().Cursor(), row->first);
        EditedLine().InsertToken(Line().Cursor(), row->second);
    } else {
        return;
    }
    if (macroEditing_) {
        SetResultText(kMacroEditingText);
    }
}

void CLedDisplay::StoreStringResult() {
    if (resultText_.empty() || !resultIsValue_) {
        return;  // a message is no value
    }
    std::u16string& memory = CurrentMemory();
    if (!lastValue_.im.IsZero()) {
        memory = MemoryTextOfComplex(lastValue_);
    } else if (lastValue_.re.IsZero()) {
        memory = u"0";
    } else if (format_ == FORMAT_FRAC && base_ == RADIX_DEC) {
        const FormattedValue shown = FormatValue(lastValue_.re, FormatSettings{});
        memory = MemoryTextOf(shown.mantissa + shown.exponent, u"English (US)", base_);
    } else {
        memory = MemoryTextOf(resultText_, settings_.numberLocale, base_);
    }
}

void CLedDisplay::RecallInString() {
    const std::u16string& memory = CurrentMemory();
    // "2+" and a memory of -3 are 2+(-3): two operators in a row are refused.
    const bool needsParentheses = memory.starts_with(u'-') && !Line().IsEmpty();
    InsertText(needsParentheses ? u'(' + memory + u')' : memory, false);
}

void CLedDisplay::EqualsInString() {
    if (parent_.hideToolTip) {
        parent_.hideToolTip();
    }
    if (Line().IsEmpty()) {
        return;
    }
    showEquals_ = true;
    // The lines below are the history: each takes what stood above it, the current line keeps its text.
    auto& lines = lines_[Index(page_)];
    for (int k = kLineCount - 2; k >= line_; --k) {
        lines[Index(k + 1)] = lines[Index(k)];
    }
}

void CLedDisplay::StringKey(std::int32_t code) {
    if (LineKey(code) || CursorKey(code) || MemoryKey(code)) {
        return;
    }
    switch (code) {
        case KEY_CLEAR: ClearLine(); return;
        case KEY_DELETE: EditedLine().DeleteToken(Line().Cursor()); return;
        case KEY_STORE: StoreStringResult(); return;
        case KEY_RECALL: RecallInString(); return;
        case KEY_EQUALS: EqualsInString(); return;
        default: InsertTokensOf(code); return;
    }
}

}  // namespace quorix
