#pragma once

// Text of other programs as tokens of an expression line.

#include <string>
#include <string_view>

#include "frontends/calculator_settings.h"

namespace quorix {

/// Display text cut into tokens, as TokenLine::InsertTokens takes it.
struct TokenText {
    std::u16string text;
    std::u16string lengths;
    friend bool operator==(const TokenText&, const TokenText&) = default;
};

/// Reads foreign notation as its keys would have entered it:
///   - blanks of every kind are dropped; between the groups of three of one number they separate thousands,
///     between two other numbers they become a multiplication sign, so that no numbers are joined;
///   - "," and "." (and "'" and the display's comma) in a number: the number locale says which is the decimal
///     sign and which separates thousands; a sign that cannot be what the locale says, by its groups or
///     because both occur, is read the other way. Directly within a call of several arguments "," separates
///     those; ";" always does;
///   - "*", "/", "-" and their relatives, "**", superscripts, the root signs, the letter pi, and "1.5e-3";
///   - names of functions, whole: "arcsin", "sqrt", "log10" and every word that a key inserts, as that key's
///     tokens. A name without parenthesis takes the number or constant behind it as its argument;
///   - in base 16 the letters A to F are digits and "0x" is dropped.
/// Other signs stay single tokens; control characters and surrogates are dropped. Reads no more of the text
/// than a line could hold, in linear time.
TokenText TranslatePaste(std::u16string_view text, std::u16string_view numberLocale, int radix);

}  // namespace quorix
