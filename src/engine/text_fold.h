#pragma once

// Characters of the expression language: classes and case folding. The language is ASCII; letters beyond it
// can only occur in a bound name, and they are compared as they stand.

#include <string_view>

namespace quorix {

constexpr bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
constexpr bool IsAsciiLetter(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

/// Letters of the Latin, Greek and Cyrillic blocks. Signs among them (multiplication, division, the display's
/// comma) are no letters.
constexpr bool IsForeignLetter(char16_t c) {
    if (c < 0x00C0) return c == 0x00AA || c == 0x00B5 || c == 0x00BA;
    return c != 0x00D7 && c != 0x00F7 && c <= 0x052F && (c < 0x02B0 || c >= 0x0370);
}

constexpr bool IsWordCharacter(char16_t c) {
    return IsDigit(c) || IsAsciiLetter(c) || IsForeignLetter(c);
}

constexpr char16_t FoldUpper(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
}
constexpr char16_t FoldLower(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

constexpr bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (FoldUpper(a[i]) != FoldUpper(b[i])) return false;
    }
    return true;
}

constexpr std::u16string_view TrimBlanks(std::u16string_view text) {
    while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
    return text;
}

}  // namespace quorix
