#pragma once

// The editor of expression lines: what the display and the expression boxes of the modules have in common.
// Pages of five lines cut into tokens, memories, the modes that a status row shows, and undo.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/identifiers.h"
#include "frontends/calculator_settings.h"
#include "frontends/key_codes.h"
#include "frontends/line_history.h"
#include "frontends/token_line.h"
#include "numerics/qreal.h"

namespace quorix {

inline constexpr int kPageCount = 12;
inline constexpr int kLineCount = 5;
inline constexpr int kMemoryCount = 5;

class ExpressionEditor {
  public:
    /// settings outlive the editor.
    explicit ExpressionEditor(const CalculatorSettings& settings) : settings_(settings) {}
    virtual ~ExpressionEditor() = default;
    ExpressionEditor(const ExpressionEditor&) = delete;
    ExpressionEditor& operator=(const ExpressionEditor&) = delete;

    /// One press of the key `code` (key_codes.h).
    virtual void Key(std::int32_t code) = 0;
    /// Whether a user's paste or undo may change the line now.
    [[nodiscard]] virtual bool TakesEdits() const = 0;

    [[nodiscard]] const TokenLine& Line() const { return lines_[Index(page_)][Index(line_)]; }
    [[nodiscard]] const TokenLine& LineAt(int page, int line) const {
        return lines_[Index(page)][Index(line)];
    }
    [[nodiscard]] const std::u16string& GetLine() const { return Line().Text(); }
    [[nodiscard]] const std::u16string& GetTokenLengths() const { return Line().TokenLengths(); }
    [[nodiscard]] int LineNumber() const { return line_; }
    [[nodiscard]] int GetPage() const { return page_; }
    [[nodiscard]] std::int32_t GetBase() const { return base_; }
    [[nodiscard]] std::int32_t GetFormat() const { return format_; }
    [[nodiscard]] std::int32_t GetAngle() const { return angle_; }
    [[nodiscard]] std::int32_t GetWordSize() const { return wordSize_; }
    [[nodiscard]] bool GetShift() const { return shift_; }
    [[nodiscard]] std::int32_t Memory() const { return memory_; }
    [[nodiscard]] const std::u16string& MemoryText(int memory, int page) const {
        return memories_[Index(memory)][Index(page)];
    }
    [[nodiscard]] bool AllowsGesture() const { return allowGesture_; }
    [[nodiscard]] const CalculatorSettings& Settings() const { return settings_; }

    /// Replaces the line; the cursor goes to its end. Lengths that do not fit make tokens of width 1.
    void SetLine(std::u16string_view text, std::u16string_view lengths);
    /// Feeds engine text into the line, each character a token of width 1, with the display's signs, grouped
    /// by the number locale when it is a number. clearFirst empties the line before.
    void InsertText(std::u16string_view text, bool clearFirst);
    /// Inserts display text as it stands, each character a token of width 1.
    void Paste(std::u16string_view text);
    /// Inserts display text cut into tokens (TokenLine::InsertTokens).
    void InsertTokens(std::u16string_view text, std::u16string_view lengths);
    /// Replaces the line by display text, each character a token of width 1.
    void ReplaceLine(std::u16string_view text);
    /// The current line in the engine's notation. False when it would be overlong.
    bool EngineText(std::u16string& out) const;
    /// Empties the line and the result, as the C key does.
    void ClearLine();
    /// Empties the line alone.
    void EraseLine();
    /// The number locale has gone from English to European or back: every line and the result on show keep
    /// their values. The histories end, their texts being of the locale before.
    void ExchangeDecimalSigns();
    /// Puts the cursor on the token `at`, or behind the last one; others are clamped.
    void SetCursor(int at);

    /// Takes back the last edit of the current line, or does it again. One key, one paste, one clear is one
    /// step; every line has its own history. False when there is nothing to do or the editor takes no edits.
    bool Undo();
    bool Redo();

    /// A message or other text that is no value: it cannot be stored.
    void SetResultText(std::u16string_view text);
    /// A number's text with its value, which the store key and a change of format read.
    void ShowResult(std::u16string_view text, const QComplex& value);
    [[nodiscard]] bool ResultIsValue() const { return resultIsValue_; }
    [[nodiscard]] const std::u16string& GetResultText() const { return resultText_; }
    [[nodiscard]] bool ShowsEquals() const { return showEquals_; }
    /// Restores the mark that a key sent behind "=" has cleared.
    void SetShowEquals(bool shown) { showEquals_ = shown; }
    /// The last result; zero after a clear. Its imaginary part tells a complex result.
    [[nodiscard]] const QComplex& LastValue() const { return lastValue_; }

    /// Finds the part of the line in view from the tokens' widths and the room for them, in device pixels.
    void ShowInRoom(std::span<const int> tokenWidths, int room);
    /// The token at a distance from the left side of the first visible one, in device pixels; -1 behind the
    /// last visible token.
    [[nodiscard]] int TokenAt(int distance) const;

  protected:
    friend class DisplayFile;

    /// One key of the line editor: text, cursor, lines and memories; others are left alone.
    void EditKey(std::int32_t code);
    bool MemoryKey(std::int32_t code);
    bool CursorKey(std::int32_t code);
    /// The keys that set base, angle, format or word size. True for them.
    bool ModeKey(std::int32_t code);

    /// Something that is painted has changed.
    virtual void Invalidate() const = 0;
    /// The line or the cursor in it has changed by an edit.
    virtual void CursorMoved() const {}
    /// "=" was pressed.
    virtual void EqualsPressed() const {}
    /// A key has inserted text.
    virtual void TextInserted() {}
    /// Whether edits are kept for Undo.
    [[nodiscard]] virtual bool KeepsHistory() const { return true; }
    /// The state file has been read.
    virtual void Restored() {}

    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
    TokenLine& EditedLine() { return lines_[Index(page_)][Index(line_)]; }
    std::u16string& CurrentMemory() { return memories_[Index(memory_ - KEY_M1)][Index(page_)]; }

    const CalculatorSettings& settings_;
    std::int32_t format_ = FORMAT_NORM;
    /// The format that the user chose, which a clear brings back after a result changed it.
    std::int32_t currentFormat_ = FORMAT_NORM;
    std::int32_t angle_ = ANGLE_DEG;
    std::int32_t base_ = RADIX_DEC;
    std::int32_t savedBase_ = RADIX_DEC;
    std::int32_t memory_ = KEY_M1;
    std::int32_t wordSize_ = WORD_8;
    int line_ = 0;
    int page_ = 0;
    bool showEquals_ = false;
    bool shift_ = false;
    bool allowGesture_ = true;
    bool resultIsValue_ = false;
    std::u16string resultText_;
    QComplex lastValue_;

  private:
    /// Makes all changes to the current line within its life one step of the line's history.
    class EditStep {
      public:
        explicit EditStep(ExpressionEditor& editor);
        ~EditStep();
        EditStep(const EditStep&) = delete;
        EditStep& operator=(const EditStep&) = delete;

      private:
        ExpressionEditor& editor_;
        std::optional<LineState> before_;
    };

    bool LineKey(std::int32_t code);
    void InsertTokensOf(std::int32_t code);
    void StoreResult();
    void Recall();
    void PushLinesDown();
    [[nodiscard]] LineState StateOfLine() const;
    bool TakeState(std::optional<LineState> state);
    LineHistory& History() { return histories_[Index(page_)][Index(line_)]; }

    std::array<std::array<TokenLine, kLineCount>, kPageCount> lines_;
    std::array<std::array<LineHistory, kLineCount>, kPageCount> histories_;
    std::array<std::array<std::u16string, kPageCount>, kMemoryCount> memories_;
    std::vector<int> tokenWidths_;
    /// For which the view was found last.
    int room_ = 0;
    bool inStep_ = false;
};

}  // namespace quorix
