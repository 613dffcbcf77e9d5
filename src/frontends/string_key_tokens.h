#pragma once

// What each key inserts into an expression line.

#include <cstdint>
#include <span>
#include <string_view>

namespace quorix {

/// The tokens of one key in String mode, at most two; an empty second one means one token.
struct StringKeyTokens {
    std::int32_t code;
    std::u16string_view first;
    std::u16string_view second;
};

/// The row of a key, or null when the key inserts nothing. KEY_POINT is not in the table: its sign is the
/// locale's.
const StringKeyTokens* FindStringKeyTokens(std::int32_t code);
std::span<const StringKeyTokens> AllStringKeyTokens();

}  // namespace quorix
