#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorix {

/// Rewrites every number of an expression from one radix (2, 8, 10, 16) to another, cut to the word size.
/// Nothing and -40 in calcError when the result would be empty.
std::optional<std::u16string> ConvertExpressionRadix(std::u16string_view text, int fromRadix, int toRadix);

}  // namespace quorix
