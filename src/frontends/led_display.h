#pragma once

// The calculator's display and its key machine. Every key of the calculator reaches it as one code; it edits
// the line that it shows. No window: a painter reads its state, a parent is told what to repaint.

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "engine/identifiers.h"
#include "frontends/calculator_settings.h"
#include "frontends/display_layout.h"
#include "frontends/key_codes.h"
#include "frontends/token_line.h"
#include "numerics/qreal.h"
#include "platform/timers.h"

namespace quorix {

/// Messages of the display to its parent window.
enum LedMessage : int {
    LED_TEX_BUTTON = 3135,
    LED_FORMAT_CHANGED = 3136,
    LED_BASE_TAPPED = 3137,
};

inline constexpr int kPageCount = 12;
inline constexpr int kLineCount = 5;
inline constexpr int kMemoryCount = 5;
/// Timer that repeats keys while a cell or an arrow is held, and its periods in milliseconds.
inline constexpr int kRepeatTimer = 1113;
inline constexpr int kCursorRepeatMs = 150;
inline constexpr int kDigitRepeatMs = 200;

/// Which marks the display shows; a hidden mark takes no taps.
struct StatusVisibility {
    bool lineNumber = true;
    bool memory = true;
    bool base = true;
    bool angle = true;
    bool format = true;
    bool wordSize = false;
    bool texButton = true;
};

/// What the display asks of its surroundings. Unset functions are not called.
struct LedParent {
    std::function<void()> invalidate;
    std::function<void(LedMessage)> send;
    std::function<void()> hideToolTip;
    /// A cursor was set on a token by a tap while tool-tips are on.
    std::function<void(std::u16string_view token)> showToolTip;
};

class CLedDisplay {
  public:
    /// settings and timers outlive the display; timers may be null. Resets the key engine; DisplayFile reads
    /// the saved state in.
    CLedDisplay(const CalculatorSettings& settings, Timers* timers, LedParent parent);
    ~CLedDisplay();
    CLedDisplay(const CLedDisplay&) = delete;
    CLedDisplay& operator=(const CLedDisplay&) = delete;

    /// One press of the key `code` (key_codes.h); unknown codes only end SHIFT.
    void Key(std::int32_t code);
    /// Page, base and visible marks of a category 0 to 15; 12 to 15 change nothing.
    void SetCategory(int id);

    /// A message or other text that is no value: it cannot be stored.
    void SetResultText(std::u16string_view text);
    /// A number's text with its value, which the store key and a change of format read.
    void ShowResult(std::u16string_view text, const QComplex& value);
    [[nodiscard]] bool ResultIsValue() const { return resultIsValue_; }
    [[nodiscard]] const std::u16string& GetResultText() const { return resultText_; }
    [[nodiscard]] const std::u16string& GetLine() const { return Line().Text(); }
    [[nodiscard]] const std::u16string& GetTokenLengths() const { return Line().TokenLengths(); }
    void SetLine(std::u16string_view text, std::u16string_view lengths);
    [[nodiscard]] std::int32_t GetBase() const { return base_; }
    [[nodiscard]] std::int32_t GetFormat() const { return format_; }
    [[nodiscard]] std::int32_t GetAngle() const { return angle_; }
    [[nodiscard]] std::int32_t GetWordSize() const { return wordSize_; }
    [[nodiscard]] int GetPage() const { return page_; }
    [[nodiscard]] bool GetShift() const { return shift_; }

    /// Feeds engine text into the line, each character a token of width 1, with the display's signs, grouped
    /// by the number locale when it is a number. clearFirst empties the line before.
    void InsertText(std::u16string_view text, bool clearFirst);
    /// Inserts display text as it stands, each character a token of width 1.
    void Paste(std::u16string_view text);
    /// The current line in the engine's notation. False when it would be overlong.
    bool EngineText(std::u16string& out) const;
    /// Empties the line and the result, as the C key does in String mode.
    void ClearLine();
    /// Empties the line alone.
    void EraseLine();

    [[nodiscard]] const TokenLine& Line() const { return lines_[Index(page_)][Index(line_)]; }
    [[nodiscard]] const TokenLine& LineAt(int page, int line) const {
        return lines_[Index(page)][Index(line)];
    }
    [[nodiscard]] int LineNumber() const { return line_; }
    [[nodiscard]] std::int32_t Memory() const { return memory_; }
    [[nodiscard]] const std::u16string& MemoryText(int memory, int page) const {
        return memories_[Index(memory)][Index(page)];
    }
    [[nodiscard]] const StatusVisibility& Visibility() const { return visibility_; }
    [[nodiscard]] bool AllowsGesture() const { return allowGesture_; }
    [[nodiscard]] bool ShowsEquals() const { return showEquals_; }
    /// Restores the mark that a key sent behind "=" has cleared.
    void SetShowEquals(bool shown) { showEquals_ = shown; }
    [[nodiscard]] bool TexButtonPressed() const { return texButtonPressed_; }
    [[nodiscard]] const std::u16string& PendingOperator() const { return pendingOperator_; }
    [[nodiscard]] const CalculatorSettings& Settings() const { return settings_; }

    /// The last result of String mode; zero after a clear. Its imaginary part tells a complex result.
    [[nodiscard]] const QComplex& LastValue() const { return lastValue_; }
    /// While a macro is being edited a text key sets the result row to "macro editing ...".
    void SetMacroEditing(bool editing) { macroEditing_ = editing; }

    /// Pen on the display; point in device pixels of the display window.
    void PenDown(Point point, int scale);
    void PenUp(Point point, int scale);
    /// The repeat timer of an arrow held down.
    void OnTimer(int id);
    /// Whether a press at this point may become the context menu by tap-and-hold.
    [[nodiscard]] bool GestureAllowedAt(Point point, int scale) const;

    /// Finds the part of the line in view; called by the painter with token widths in device pixels.
    void UpdateView(std::span<const int> tokenWidths, int scale);
    [[nodiscard]] bool ArrowShown(DisplayPart arrow) const;

  private:
    friend class DisplayFile;

    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
    TokenLine& EditedLine() { return lines_[Index(page_)][Index(line_)]; }
    std::u16string& CurrentMemory() { return memories_[Index(memory_ - KEY_M1)][Index(page_)]; }

    void StringKey(std::int32_t code);
    void BasicKey(std::int32_t code);
    void CommonKey(std::int32_t code);
    bool MemoryKey(std::int32_t code);
    bool LineKey(std::int32_t code);
    bool CursorKey(std::int32_t code);
    void InsertTokensOf(std::int32_t code);
    void StoreStringResult();
    void RecallInString();
    void StoreBasicLine();
    void RecallInBasic();
    void EqualsInString();
    void SendTokens(std::int32_t code);
    void SendToken(std::u16string_view token, bool isDigit);
    void FinishBasicKey(std::int32_t code);
    void ShowBasicValue(const QComplex& value, std::int32_t formatId, bool typing);
    void ShowBasicText(std::u16string_view text);
    void ReformatBasicValue();
    void ApplyToEngine() const;
    void Invalidate() const;
    void Send(LedMessage message) const;
    void TapTextRow(Point point, int scale);
    void TapWordSize();

    const CalculatorSettings& settings_;
    Timers* timers_;
    LedParent parent_;

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
    bool texButtonPressed_ = false;
    bool macroEditing_ = false;
    bool resultIsValue_ = false;
    StatusVisibility visibility_;
    std::u16string resultText_;
    std::u16string pendingOperator_;
    std::array<std::array<TokenLine, kLineCount>, kPageCount> lines_;
    std::array<std::array<std::u16string, kPageCount>, kMemoryCount> memories_;
    std::vector<int> tokenWidths_;
    QComplex lastValue_;
    /// The process-wide current value of the basic modes.
    QComplex basicValue_;
    std::int32_t heldKey_ = -1;
};

}  // namespace quorix
