#pragma once

// What of an expression line and its result goes to the clipboard, and back.

#include <functional>
#include <string>
#include <string_view>

#include "frontends/led_display.h"
#include "platform/clipboard.h"

namespace quorix {

/// An expression in the engine's notation to TeX.
using TexConverter = std::function<std::string(std::u16string_view engineText)>;

/// Puts the line on the clipboard as display text, its decimal commas as ",". Its tokens are remembered: the
/// same text comes back cut as it was. In the basic modes the line is the number shown.
void CopyLine(const ExpressionEditor& editor, Clipboard& clipboard);
/// CopyLine, then empties the line.
void CutLine(ExpressionEditor& editor, Clipboard& clipboard);
/// Inserts the clipboard's text at the cursor: our own text as it was, other text translated
/// (TranslatePaste). False when the editor takes no edits or there is nothing to insert.
bool PasteLine(ExpressionEditor& editor, Clipboard& clipboard);

/// Ctrl+C: the result while "=" stands before a value, else the line. Ctrl+Shift+C (alwaysLine): the line.
void CopyShortcut(const CLedDisplay& display, Clipboard& clipboard, bool alwaysLine);
/// Ctrl+V: PasteLine; in the basic modes a number becomes the value shown, and anything else is refused.
bool PasteShortcut(CLedDisplay& display, Clipboard& clipboard);

/// Whether a value is on show, which the next two put on the clipboard.
bool HasResult(const CLedDisplay& display);
void CopyResult(const CLedDisplay& display, Clipboard& clipboard);
void CopyAllDigits(const CLedDisplay& display, Clipboard& clipboard);
/// The line as TeX; nothing when it is overlong or toTex is unset.
void CopyTex(const CLedDisplay& display, Clipboard& clipboard, const TexConverter& toTex);

/// A number with every digit that its 336 bits carry for sure, without grouping or trailing zeros, decimal
/// sign "." or ",": positional while it has at most that many places, else "1.5E-40". A complex number is
/// "1.5-0.25i".
std::u16string AllDigitsOf(const QComplex& value, std::u16string_view numberLocale);

}  // namespace quorix
