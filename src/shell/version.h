#pragma once

namespace quorix {

inline constexpr const char* kVersion = "1.0";

}  // namespace quorix
