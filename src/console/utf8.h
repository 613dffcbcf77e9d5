#pragma once

// The terminal's text and the calculator's.

#include <string>
#include <string_view>

namespace quorix {

/// Appends UTF-8 to 16-bit text. What is malformed or lies outside the basic plane becomes U+FFFD.
void AppendFromUtf8(std::string_view utf8, std::u16string& text);
/// Appends 16-bit text to UTF-8; a surrogate becomes U+FFFD.
void AppendToUtf8(std::u16string_view text, std::string& utf8);

}  // namespace quorix
