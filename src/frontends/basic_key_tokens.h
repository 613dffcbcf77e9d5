#pragma once

// What each key sends to the key-by-key calculators.

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quorix {

/// Stands in a token list for the text of the value that "Pop" has just returned.
inline constexpr std::u16string_view kPoppedValue = u"value";

inline constexpr std::size_t kMostBasicTokens = 7;
using BasicTokenList = std::array<std::u16string_view, kMostBasicTokens>;

/// The tokens of one key in "Basic-Standard" and "Basic-RPN", in the order of sending; empty entries end a
/// list.
struct BasicKeyTokens {
    std::int32_t code;
    BasicTokenList standard;
    BasicTokenList rpn;
};

/// The row of a key, or null when the key sends nothing in the basic modes.
const BasicKeyTokens* FindBasicKeyTokens(std::int32_t code);

}  // namespace quorix
