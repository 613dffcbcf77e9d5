// The keys of the expression editor.

#include "engine/format_value.h"
#include "engine/number_locale.h"
#include "frontends/expression_editor.h"
#include "frontends/memory_text.h"
#include "frontends/string_key_tokens.h"

namespace quorix {

namespace {

constexpr int kWideStep = 10;

constexpr std::int32_t NextOf(std::int32_t value, std::int32_t first, std::int32_t last) {
    return value >= last || value < first ? first : value + 1;
}

/// The order in which the format key steps.
constexpr std::int32_t kFormatCycle[] = {FORMAT_NORM, FORMAT_FIX, FORMAT_SCI, FORMAT_FRAC};

constexpr std::int32_t NextFormat(std::int32_t format) {
    for (std::size_t i = 0; i < std::size(kFormatCycle); ++i) {
        if (kFormatCycle[i] == format) {
            return kFormatCycle[(i + 1) % std::size(kFormatCycle)];
        }
    }
    return FORMAT_NORM;
}

}  // namespace

bool ExpressionEditor::LineKey(std::int32_t code) {
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

bool ExpressionEditor::CursorKey(std::int32_t code) {
    switch (code) {
        case KEY_LEFT: EditedLine().MoveLeft(1); return true;
        case KEY_RIGHT: EditedLine().MoveRight(1); return true;
        case KEY_LEFT_10: EditedLine().MoveLeft(kWideStep); return true;
        case KEY_RIGHT_10: EditedLine().MoveRight(kWideStep); return true;
        default: return false;
    }
}

bool ExpressionEditor::MemoryKey(std::int32_t code) {
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

void ExpressionEditor::InsertTokensOf(std::int32_t code) {
    const StringKeyTokens* const row = FindStringKeyTokens(code);
    if (row == nullptr && code != KEY_POINT) {
        return;
    }
    const EditStep step(*this);
    if (row != nullptr) {
        EditedLine().InsertToken(Line().Cursor(), row->first);
        EditedLine().InsertToken(Line().Cursor(), row->second);
    } else {
        const char16_t sign = SignsOf(settings_.numberLocale).decimal;
        EditedLine().InsertToken(Line().Cursor(), {&sign, 1});
    }
    TextInserted();
}

void ExpressionEditor::StoreResult() {
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

void ExpressionEditor::Recall() {
    const std::u16string& memory = CurrentMemory();
    // "2+" and a memory of -3 are 2+(-3): two operators in a row are refused.
    const bool needsParentheses = memory.starts_with(u'-') && !Line().IsEmpty();
    InsertText(needsParentheses ? u'(' + memory + u')' : memory, false);
}

void ExpressionEditor::PushLinesDown() {
    EqualsPressed();
    if (Line().IsEmpty()) {
        return;
    }
    showEquals_ = true;
    // The lines below are the history: each takes what stood above it, the current line keeps its text.
    auto& lines = lines_[Index(page_)];
    auto& histories = histories_[Index(page_)];
    for (int k = kLineCount - 2; k >= line_; --k) {
        lines[Index(k + 1)] = lines[Index(k)];
        histories[Index(k + 1)] = k == line_ ? LineHistory{} : std::move(histories[Index(k)]);
    }
}

void ExpressionEditor::EditKey(std::int32_t code) {
    if (LineKey(code) || CursorKey(code)) {
        CursorMoved();
        return;
    }
    if (MemoryKey(code)) {
        return;
    }
    switch (code) {
        case KEY_STORE: StoreResult(); return;
        case KEY_EQUALS: PushLinesDown(); return;
        case KEY_CLEAR: ClearLine(); return;
        case KEY_RECALL: Recall(); return;
        case KEY_DELETE: {
            const EditStep step(*this);
            EditedLine().DeleteToken(Line().Cursor());
            return;
        }
        default: InsertTokensOf(code); return;
    }
}

bool ExpressionEditor::ModeKey(std::int32_t code) {
    switch (code) {
        case KEY_BASE: base_ = NextOf(base_, RADIX_BIN, RADIX_HEX); return true;
        case KEY_BIN:
        case KEY_OCT:
        case KEY_DEC:
        case KEY_HEX: base_ = code; return true;
        case KEY_ANGLE: angle_ = NextOf(angle_, ANGLE_DEG, ANGLE_GRAD); return true;
        case KEY_DEG:
        case KEY_RAD:
        case KEY_GRAD: angle_ = code; return true;
        case KEY_FORMAT: format_ = NextFormat(format_); return true;
        case KEY_FIX:
        case KEY_NORM:
        case KEY_SCI:
        case KEY_FRAC: format_ = code; return true;
        case KEY_WORD_SIZE: wordSize_ = NextOf(wordSize_, WORD_8, WORD_32); return true;
        case KEY_8_BIT:
        case KEY_16_BIT:
        case KEY_32_BIT: wordSize_ = code; return true;
        default: return false;
    }
}

}  // namespace quorix
