#include "frontends/expression_editor.h"

#include <algorithm>
#include <utility>

#include "engine/number_locale.h"
#include "frontends/categories.h"
#include "frontends/engine_text.h"

namespace quorix {

namespace {

/// A number alone, with an optional sign: what may be grouped.
bool IsPlainNumber(std::u16string_view text) {
    if (text.starts_with(u'-')) {
        text.remove_prefix(1);
    }
    return !text.empty() && text.find_first_not_of(u"0123456789.") == std::u16string_view::npos;
}

}  // namespace

ExpressionEditor::EditStep::EditStep(ExpressionEditor& editor) : editor_(editor) {
    if (!editor_.inStep_ && editor_.KeepsHistory()) {
        editor_.inStep_ = true;
        before_ = editor_.StateOfLine();
    }
}

ExpressionEditor::EditStep::~EditStep() {
    if (!before_) {
        return;
    }
    editor_.inStep_ = false;
    if (before_->text != editor_.GetLine() || before_->lengths != editor_.GetTokenLengths()) {
        editor_.History().Record(std::move(*before_));
    }
    editor_.CursorMoved();
}

LineState ExpressionEditor::StateOfLine() const {
    return {GetLine(), GetTokenLengths(), Line().Cursor(), base_};
}

bool ExpressionEditor::TakeState(std::optional<LineState> state) {
    if (!state) {
        return false;
    }
    EditedLine().Set(state->text, state->lengths);
    EditedLine().MoveRight(state->cursor);
    if (page_ == CATEGORY_BASE_CONVERSION) {
        base_ = state->base;  // the digits of that page's lines mean nothing in another base
    }
    showEquals_ = false;
    CursorMoved();
    Invalidate();
    return true;
}

bool ExpressionEditor::Undo() {
    return TakesEdits() && KeepsHistory() && TakeState(History().Undo(StateOfLine()));
}

bool ExpressionEditor::Redo() {
    return TakesEdits() && KeepsHistory() && TakeState(History().Redo(StateOfLine()));
}

void ExpressionEditor::SetResultText(std::u16string_view text) {
    resultText_ = text;
    resultIsValue_ = false;
    Invalidate();
}

void ExpressionEditor::ShowResult(std::u16string_view text, const QComplex& value) {
    resultText_ = text;
    resultIsValue_ = true;
    lastValue_ = value;
    Invalidate();
}

void ExpressionEditor::SetLine(std::u16string_view text, std::u16string_view lengths) {
    const EditStep step(*this);
    EditedLine().Set(text, lengths);
    EditedLine().MoveRight(Line().TokenCount());
    Invalidate();
}

void ExpressionEditor::InsertText(std::u16string_view text, bool clearFirst) {
    const EditStep step(*this);
    if (clearFirst) {
        ClearLine();
    }
    std::u16string shown(text);
    if (IsPlainNumber(shown)) {
        ApplySeparators(shown, settings_.numberLocale, base_);
    } else if (base_ == RADIX_DEC) {
        // An expression stays ungrouped but takes the locale's decimal sign.
        std::replace(shown.begin(), shown.end(), u'.', SignsOf(settings_.numberLocale).decimal);
    }
    EditedLine().InsertCharacters(ToDisplaySigns(shown));
    Invalidate();
}

void ExpressionEditor::Paste(std::u16string_view text) {
    const EditStep step(*this);
    EditedLine().InsertCharacters(text);
    Invalidate();
}

void ExpressionEditor::InsertTokens(std::u16string_view text, std::u16string_view lengths) {
    const EditStep step(*this);
    EditedLine().InsertTokens(text, lengths);
    Invalidate();
}

void ExpressionEditor::ReplaceLine(std::u16string_view text) {
    const EditStep step(*this);
    EditedLine().Clear();
    EditedLine().InsertCharacters(text);
    Invalidate();
}

bool ExpressionEditor::EngineText(std::u16string& out) const {
    auto text = ToEngineText(GetLine(), settings_.numberLocale, RadixOf(base_));
    if (!text) {
        return false;
    }
    out = std::move(*text);
    return true;
}

void ExpressionEditor::ClearLine() {
    const EditStep step(*this);
    EditedLine().Clear();
    resultText_.clear();
    resultIsValue_ = false;
    lastValue_ = {};
    format_ = currentFormat_;
    Invalidate();
}

void ExpressionEditor::EraseLine() {
    const EditStep step(*this);
    EditedLine().Clear();
    Invalidate();
}

void ExpressionEditor::SetCursor(int at) {
    TokenLine& line = EditedLine();
    if (at >= line.TokenCount()) {
        line.MoveRight(line.TokenCount());
    } else {
        line.SetCursor(at);
    }
    CursorMoved();
    Invalidate();
}

void ExpressionEditor::ExchangeDecimalSigns() {
    for (auto& page : lines_) {
        std::for_each(page.begin(), page.end(), [](TokenLine& line) { line.ExchangeDecimalSigns(); });
    }
    histories_ = {};
    if (resultIsValue_) {
        quorix::ExchangeDecimalSigns(resultText_);
    }
    Invalidate();
}

void ExpressionEditor::ShowInRoom(std::span<const int> tokenWidths, int room) {
    tokenWidths_.assign(tokenWidths.begin(), tokenWidths.end());
    if (room != room_) {
        room_ = room;
        EditedLine().RefillView();
    }
    EditedLine().UpdateView(tokenWidths, room);
}

int ExpressionEditor::TokenAt(int distance) const {
    const TokenLine& line = Line();
    const int known = static_cast<int>(tokenWidths_.size());
    int right = 0;
    for (int k = line.FirstVisible(); k <= line.LastVisible() && k < known; ++k) {
        right += tokenWidths_[Index(k)];
        if (distance < right) {
            return k;
        }
    }
    return -1;
}

}  // namespace quorix
