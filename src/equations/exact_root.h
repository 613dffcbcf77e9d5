#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorix {

/// Exact text of a root of a line of two or three coefficients: an integer, a fraction or a form with one
/// square root, in the engine's notation. rootIndex 0 takes the negative sign of the square root, 1 the
/// positive one. tokenCount becomes the number of coefficients, one less when the first of three is 0.
/// Nothing when no text is found that is within 1e-12 of the root, nor for other counts; for two coefficients
/// the last resort is a decimal.
std::optional<std::u16string> ExactRootText(std::u16string_view line, int rootIndex, int& tokenCount);

}  // namespace quorix
