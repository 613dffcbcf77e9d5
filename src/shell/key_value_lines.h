#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

namespace quorix {

/// Bytes of a line that count; what follows on the same line is ignored.
inline constexpr std::size_t kLongestSkinLine = 256;

/// Calls `take` for each 'key = value' line of a text, from the top, until it returns false. The key ends at
/// the first "="; both are trimmed of blanks and line ends. Lines without "=", or with "=" as the first
/// character, are skipped.
void ForEachKeyValue(std::span<const std::uint8_t> text,
                     const std::function<bool(std::string_view key, std::string_view value)>& take);

/// True when two keys are equal but for the case of letters.
bool SameKey(std::string_view a, std::string_view b);

}  // namespace quorix
