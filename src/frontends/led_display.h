#pragma once

// The calculator's display and its key machine. Every key of the calculator reaches it as one code; it edits
// the line that it shows. No window: a painter reads its state, a parent is told what to repaint.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "frontends/display_layout.h"
#include "frontends/expression_editor.h"
#include "platform/timers.h"

namespace quorix {

/// Messages of the display to its parent window.
enum LedMessage : int {
    LED_TEX_BUTTON = 3135,
    LED_FORMAT_CHANGED = 3136,
    LED_BASE_TAPPED = 3137,
};

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
    /// In String mode with function hints on: a key, a tap or an edit has moved the cursor (an index of
    /// tokens) or changed the line. FindHint tells whether there is something to show.
    std::function<void(std::u16string_view line, std::u16string_view tokenLengths, int cursor)> showToolTip;
};

class CLedDisplay : public ExpressionEditor {
  public:
    /// settings and timers outlive the display; timers may be null. Resets the key engine; DisplayFile reads
    /// the saved state in.
    CLedDisplay(const CalculatorSettings& settings, Timers* timers, LedParent parent);
    ~CLedDisplay() override;

    /// One press of the key `code` (key_codes.h); unknown codes only end SHIFT.
    void Key(std::int32_t code) override;
    [[nodiscard]] bool TakesEdits() const override { return settings_.IsStringMode(); }
    /// Page, base and visible marks of a category 0 to 15; 12 to 15 change nothing.
    void SetCategory(int id);

    [[nodiscard]] const StatusVisibility& Visibility() const { return visibility_; }
    [[nodiscard]] bool TexButtonPressed() const { return texButtonPressed_; }
    [[nodiscard]] const std::u16string& PendingOperator() const { return pendingOperator_; }

    /// The value on show: the last result, or that of the basic modes.
    [[nodiscard]] const QComplex& ShownValue() const {
        return settings_.IsStringMode() ? LastValue() : basicValue_;
    }
    /// In the basic modes: makes a value the current one, as the recall key does.
    void EnterValue(const QComplex& value);

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

  protected:
    void Invalidate() const override;
    void CursorMoved() const override;
    void EqualsPressed() const override { HideToolTip(); }
    void TextInserted() override;
    [[nodiscard]] bool KeepsHistory() const override { return settings_.IsStringMode(); }
    void Restored() override;

  private:
    void BasicKey(std::int32_t code);
    void StoreBasicLine();
    void RecallInBasic();
    void SendTokens(std::int32_t code);
    void SendToken(std::u16string_view token, bool isDigit);
    void FinishBasicKey(std::int32_t code);
    void ShowBasicValue(const QComplex& value, std::int32_t formatId, bool typing);
    void ShowBasicText(std::u16string_view text);
    void ReformatBasicValue();
    void ApplyToEngine() const;
    void HideToolTip() const;
    void Send(LedMessage message) const;
    void TapTextRow(Point point, int scale);
    void TapWordSize();

    Timers* timers_;
    LedParent parent_;

    StatusVisibility visibility_;
    bool texButtonPressed_ = false;
    bool macroEditing_ = false;
    std::u16string pendingOperator_;
    /// The process-wide current value of the basic modes.
    QComplex basicValue_;
    std::int32_t heldKey_ = -1;
};

}  // namespace quorix
