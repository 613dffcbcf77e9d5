#pragma once

// The expression box of the modules: the display's editor without its status row. No window: a painter reads
// its state, the owner is told what happens.

#include <functional>

#include "frontends/context_menu.h"
#include "frontends/display_layout.h"
#include "frontends/expression_editor.h"
#include "platform/clipboard.h"

namespace quorix {

/// Message of an expression box to its parent when it is tapped; the box is the first parameter.
inline constexpr int kCalEditTapped = 1025;

/// What a box asks of its surroundings. Unset functions are not called.
struct CalEditOwner {
    std::function<void()> invalidate;
    /// "Use in arithmetic module": the line is on the clipboard.
    std::function<void()> useInArithmetic;
};

class MorvaneCalEdit : public ExpressionEditor {
  public:
    /// settings outlive the box. DisplayFile reads and writes its state in a file of the owner's.
    MorvaneCalEdit(const CalculatorSettings& settings, CalEditOwner owner);

    /// Keys as in String mode; those of modes set the field alone. Without the keyboard only C is taken, and
    /// of a read-only box only C and the two cursor keys.
    void Key(std::int32_t code) override;
    /// A typed character, 8 for Backspace; false when it means nothing here.
    bool Character(char16_t character);
    [[nodiscard]] bool TakesEdits() const override { return focused_ && !readOnly_; }

    [[nodiscard]] bool ReadOnly() const { return readOnly_; }
    void SetReadOnly(bool readOnly) { readOnly_ = readOnly; }
    /// Whether the box has the keyboard.
    [[nodiscard]] bool Focused() const { return focused_; }
    void SetFocused(bool focused);
    [[nodiscard]] bool Framed() const { return framed_; }
    void SetFramed(bool framed);
    void SetAllowGesture(bool allow) { allowGesture_ = allow; }
    /// All text in one blue, or each token in the colour of its class.
    void SetMarked(bool marked);
    [[nodiscard]] const DisplayColours& Colours() const { return colours_; }
    [[nodiscard]] Rgb FieldColour() const {
        return colours_[focused_ ? DisplayColour::field : DisplayColour::restingField];
    }

    /// A tap at `x` device pixels from the left side of the box: takes the keyboard and puts the cursor on
    /// the token there, or behind the last one.
    void Tap(int x, int scale);
    /// The part in view for a box `clientWidth` device pixels wide; called by the painter.
    void UpdateView(std::span<const int> tokenWidths, int clientWidth, int scale);

    [[nodiscard]] std::vector<ContextMenuItem> Menu(Clipboard& clipboard) const;
    void RunMenu(int id, Clipboard& clipboard);

  protected:
    void Invalidate() const override;

  private:
    CalEditOwner owner_;
    DisplayColours colours_ = kDisplayColours;
    bool readOnly_ = false;
    bool focused_ = false;
    bool framed_ = true;
};

/// Logical units from the left side of a box to its text, and those kept for the cursor behind the text.
inline constexpr int kCalEditInset = 5;
inline constexpr int kCalEditCursorRoom = 3;

}  // namespace quorix
