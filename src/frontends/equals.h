#pragma once

// The way of "=": from the line on the display to the result row.

#include <functional>

#include "engine/calc_value.h"
#include "engine/result_text.h"
#include "frontends/led_display.h"
#include "platform/wait_cursor.h"

namespace quorix {

/// Words of the expression check; they are no error codes.
inline constexpr std::u16string_view kEmptyString = u"Empty string";
inline constexpr std::u16string_view kOverlengthString = u"Overlength string";

class EqualsPath {
  public:
    /// Hooks of later stages; unset ones are skipped.
    struct Hooks {
        /// Expands macro calls in display text; false sets calcError.
        std::function<bool(std::u16string& line)> expandMacros;
        /// Takes a matrix result of the Matrix category; gives the text for the result row.
        std::function<std::u16string(const CalcValue& matrix)> takeMatrix;
    };

    /// display outlives this; waitCursor may be null.
    EqualsPath(CLedDisplay& display, WaitCursor* waitCursor, Hooks hooks = {})
        : display_(display), waitCursor_(waitCursor), hooks_(std::move(hooks)) {}

    /// "=" in category 0 to 15: evaluates the line (String mode) or sends the key (basic modes).
    void Run(int category);
    /// The output format changed while a result is on show: shows it in the new one.
    void FormatChanged();

  private:
    void Evaluate(int category);
    void ShowValue(const CalcValue& value, int category);
    void ShowMessage(std::u16string_view message, int category);
    ResultSettings SettingsNow() const;

    CLedDisplay& display_;
    WaitCursor* waitCursor_;
    Hooks hooks_;
};

}  // namespace quorix
