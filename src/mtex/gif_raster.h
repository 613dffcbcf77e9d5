#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quorix::mtex {

struct Raster {
    int width = 0;  ///< a multiple of 8
    int height = 0;
    std::vector<std::uint8_t> bits;
};

/// Pictures of more pixels are refused; long lines are wide but low.
inline constexpr int kMostRasterPixels = 8192 * 8192;

/// The first image of a GIF file as one bit a pixel, dark pixels set, filled up to whole bytes. The
/// rasteriser draws its bitmap with softened edges: on its scale from 255 (white) set pixels are below 90 and
/// clear ones above 126, so the threshold between them gives the bitmap back. Nothing for a damaged file.
std::optional<Raster> DecodeGif(std::span<const std::uint8_t> file);

}  // namespace quorix::mtex
