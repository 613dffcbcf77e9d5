#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quorix {

/// Shortens a result until `fits` says so: the digit just before the exponent letter "E" goes first, or the
/// last character where there is no exponent. What is left may be empty. The result kept for copying is never
/// cut.
std::u16string CutToFit(std::u16string_view result, const std::function<bool(std::u16string_view)>& fits);

}  // namespace quorix
