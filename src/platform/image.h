#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

#include "platform/color.h"
#include "platform/png_loader.h"

namespace quorix {

/// A picture of a skin, decoded. Empty until loaded; a file that is absent or damaged leaves it empty,
/// silently.
class Image {
  public:
    /// Replaces the picture by the PNG file at `path`. False when the picture is empty afterwards. An empty
    /// path is allowed and leaves it empty.
    bool Load(const std::filesystem::path& path);
    void Free();

    /// Rows from the top, red, green, blue, alpha (straight) a pixel; empty for an empty picture.
    [[nodiscard]] std::span<const std::uint8_t> Bitmap() const { return picture_.pixels; }
    [[nodiscard]] int Width() const { return picture_.width; }
    [[nodiscard]] int Height() const { return picture_.height; }
    [[nodiscard]] bool IsEmpty() const { return picture_.pixels.empty(); }
    /// Where it was loaded from.
    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    /// The colour of the first pixel, whatever its alpha, which is the transparent colour too; white for an
    /// empty picture.
    [[nodiscard]] ColorRef BackgroundColor() const;

  private:
    std::filesystem::path path_;
    DecodedPicture picture_;
};

}  // namespace quorix
