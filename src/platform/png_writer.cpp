#include "platform/png_writer.h"

#include <png.h>

#include <algorithm>
#include <cstddef>

namespace quorix {
namespace {

constexpr std::size_t kBytesInMemory = 4;
constexpr std::size_t kBytesInFile = 3;

std::vector<std::uint8_t> WithoutAlpha(const DecodedPicture& picture) {
    std::vector<std::uint8_t> rows(picture.pixels.size() / kBytesInMemory * kBytesInFile);
    for (std::size_t from = 0, to = 0; to < rows.size(); from += kBytesInMemory, to += kBytesInFile) {
        std::copy_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(from), kBytesInFile,
                    rows.begin() + static_cast<std::ptrdiff_t>(to));
    }
    return rows;
}

}  // namespace

std::vector<std::uint8_t> EncodePng(const DecodedPicture& picture) {
    const auto width = static_cast<std::size_t>(std::max(picture.width, 0));
    const auto height = static_cast<std::size_t>(std::max(picture.height, 0));
    if (width == 0 || height == 0 || picture.pixels.size() != width * height * kBytesInMemory) return {};
    const std::vector<std::uint8_t> rows = WithoutAlpha(picture);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    if (png_image_write_to_memory(&image, nullptr, &size, 0, rows.data(), 0, nullptr) == 0) return {};
    std::vector<std::uint8_t> file(size);
    if (png_image_write_to_memory(&image, file.data(), &size, 0, rows.data(), 0, nullptr) == 0) return {};
    file.resize(size);
    return file;
}

}  // namespace quorix
