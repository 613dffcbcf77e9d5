#pragma once

// PNG files to plain pixels. No call handles messages before it returns.

#include <cstdint>
#include <span>
#include <vector>

namespace quorix {

/// Pictures wider or higher than this (pixels) are refused.
inline constexpr std::uint32_t kLargestPictureSide = 4096;

/// Rows from the top, four bytes a pixel: red, green, blue, alpha (straight, 255 opaque).
struct DecodedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Decodes a PNG file held in memory. Channels of 16 bits are cut to 8, palettes and gray become red, green
/// and blue, a transparency chunk becomes alpha. A background chunk is drawn under the picture, which then is
/// opaque; a gamma chunk is applied for a screen gamma of 2.2. A file that is damaged, cut off before its
/// last row, or too large yields an empty picture; memory stays in proportion to the file's size.
DecodedPicture DecodePng(std::span<const std::uint8_t> file);

}  // namespace quorix
