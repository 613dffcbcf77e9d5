#pragma once

// Plain pixels to PNG files. No call handles messages before it returns.

#include <cstdint>
#include <vector>

#include "platform/png_loader.h"

namespace quorix {

/// The bytes of an opaque PNG file of 24 bits a pixel; alpha is left out. Empty for an empty picture or one
/// whose pixels do not fill its sides.
std::vector<std::uint8_t> EncodePng(const DecodedPicture& picture);

}  // namespace quorix
