#pragma once

#include <cstdint>
#include <vector>

#include "platform/png_loader.h"

namespace quorix {

/// The bytes of a BMP file of 24 bits a pixel, bottom row first, rows filled up to whole 4 bytes; alpha is
/// left out. Empty for an empty picture or one whose pixels do not fill its sides.
std::vector<std::uint8_t> EncodeBmp(const DecodedPicture& picture);

}  // namespace quorix
