#pragma once

// Words by which keys can be asked for: what they insert, and the usual other spellings.

#include <cstdint>
#include <span>
#include <string_view>

namespace quorix {

struct KeyName {
    std::u16string_view name;  ///< Without parentheses and blanks: "sin", "mod", "sqrt".
    std::int32_t key;
};

/// Every word that a key inserts in String mode, then the other spellings. Single letters that are typed or
/// pasted as themselves ("x", "A" to "F") are not in it.
std::span<const KeyName> KeyNames();

/// The longest name that `text` begins with, blind to case, or null.
const KeyName* LongestKeyName(std::u16string_view text);

}  // namespace quorix
