#pragma once

#include <string>
#include <string_view>

namespace quorix {

/// UTF-16 to UTF-8; an unpaired surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);
/// UTF-8 to UTF-16; every malformed byte becomes U+FFFD.
std::u16string FromUtf8(std::string_view text);
/// The same; bytes that are no UTF-8 are taken as Latin-1.
std::u16string FromUtf8OrLatin1(std::string_view text);

}  // namespace quorix
