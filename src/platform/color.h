#pragma once

#include <cstdint>

namespace quorix {

/// A colour as the system's tables and files count it: 0x00BBGGRR, blue in the high byte.
using ColorRef = std::uint32_t;

inline constexpr ColorRef kWhite = 0xFFFFFF;

constexpr ColorRef MakeColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<ColorRef>(red) | static_cast<ColorRef>(green) << 8U |
           static_cast<ColorRef>(blue) << 16U;
}
constexpr std::uint8_t RedOf(ColorRef color) {
    return static_cast<std::uint8_t>(color & 0xFFU);
}
constexpr std::uint8_t GreenOf(ColorRef color) {
    return static_cast<std::uint8_t>(color >> 8U & 0xFFU);
}
constexpr std::uint8_t BlueOf(ColorRef color) {
    return static_cast<std::uint8_t>(color >> 16U & 0xFFU);
}

}  // namespace quorix
