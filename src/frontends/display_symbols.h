#pragma once

// Signs that the display shows where the engine has plain characters or names.

namespace quorix::symbols {

inline constexpr char16_t kMultiply = 0x00D7;
inline constexpr char16_t kDivide = 0x00F7;
inline constexpr char16_t kMinus = 0x2212;
inline constexpr char16_t kRoot = 0x221A;
inline constexpr char16_t kIntegral = 0x222B;
inline constexpr char16_t kDelta = 0x03B4;
inline constexpr char16_t kFunction = 0x0192;
inline constexpr char16_t kProduct = 0x220F;
inline constexpr char16_t kSum = 0x2211;

}  // namespace quorix::symbols
