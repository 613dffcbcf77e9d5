#pragma once

#include <cstdint>
#include <string_view>

namespace quorix {

/// The words for an error code: the row of ErrorMessages for -57 to -1, "Unknown error" for any other code.
std::u16string_view ErrorMessageFor(std::int32_t code);

}  // namespace quorix
