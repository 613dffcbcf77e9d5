#pragma once

// The small calculator behind a typed field: the standard key engine, and its number as text.

#include <string>
#include <string_view>

namespace quorix {

/// A field's text; a message of the engine is none of a number.
struct EntryText {
    std::u16string text;
    bool isNumber = true;
};

/// Works on the process's one key engine. Plain texts are decimal with "." and perhaps an exponent.
class NumberEntry {
  public:
    /// Drops the number being entered and what is pending.
    static void Clear();
    /// A new number, as if its characters were typed, so that typing goes on behind it. A number that is
    /// being entered is replaced; one with an exponent goes in as a whole.
    static void Enter(std::string_view plain);
    /// Takes the last character off `plain`, the active number, and enters the rest in its place.
    static void Backspace(std::string_view plain);
    /// Feeds one token. An error is left behind by the engine, for Shown to tell.
    static void Send(std::u16string_view token);
    /// The current number with 32 digits and the locale's separators, or the message of an error, behind
    /// which the engine starts anew.
    static EntryText Shown(std::u16string_view numberLocale);
};

}  // namespace quorix
