#pragma once

// Signs of other programs' texts and what they are on the display.

#include <cstddef>
#include <string>
#include <string_view>

namespace quorix {

/// The token of a sign that is written otherwise elsewhere ("*", a middle dot, a dash, the letter pi); empty
/// for every other character.
std::u16string_view TokenOfSign(char16_t sign);
/// What a superscript raises: a digit, a sign, a parenthesis or a letter; 0 for any other character.
char16_t RaisedBy(char16_t superscript);
/// The first `longest` characters of a text with every run of blanks as one blank, without what cannot be
/// seen (controls, surrogates, marks of direction) and without blanks and "=" at the end.
std::u16string TidyText(std::u16string_view text, std::size_t longest);

}  // namespace quorix
