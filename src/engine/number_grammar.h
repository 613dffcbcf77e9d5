#pragma once

// Which token is a number, and its double. The grammar is fixed (no locale, no hexadecimal floats, no words
// such as "inf"): [sign] digits ["." [digits]] [("e" | "E") [sign] digits].

#include <cstddef>
#include <string_view>

namespace quorix {

/// Length of the longest prefix of `text` that is a number, 0 when there is none.
std::size_t NumberPrefixLength(std::u16string_view text);

inline bool IsNumber(std::u16string_view text) {
    return !text.empty() && NumberPrefixLength(text) == text.size();
}

/// The double nearest to a number text of the grammar above; too large gives an infinity, too small a zero.
double NumberToDouble(std::u16string_view number);

}  // namespace quorix
