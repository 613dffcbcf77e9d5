#pragma once

#include <algorithm>
#include <string_view>

namespace quorix {

/// `text` without the white space of ASCII at both ends.
template <class Char>
constexpr std::basic_string_view<Char> TrimmedView(std::basic_string_view<Char> text) {
    constexpr Char kWhite[] = {' ', '\t', '\n', '\v', '\f', '\r', 0};
    text.remove_prefix(std::min(text.find_first_not_of(kWhite), text.size()));
    return text.substr(0, text.find_last_not_of(kWhite) + 1);
}
constexpr std::string_view Trimmed(std::string_view text) {
    return TrimmedView(text);
}
constexpr std::u16string_view Trimmed(std::u16string_view text) {
    return TrimmedView(text);
}

}  // namespace quorix
