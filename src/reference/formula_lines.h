#pragma once

// Lines and tags of the library's 8-bit texts.

#include <algorithm>
#include <charconv>
#include <string_view>

namespace quorix {

/// Cuts the next line off `text`, without its "\n".
inline std::string_view TakeFormulaLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

inline constexpr char FoldFormulaCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool EqualsFormulaTag(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return FoldFormulaCase(x) == FoldFormulaCase(y); });
}

/// The decimal integer that a text starts with; 0 when there is none or it does not fit.
inline int LeadingFormulaInteger(std::string_view text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

}  // namespace quorix
