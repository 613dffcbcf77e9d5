#include "equations/bmp_file.h"

#include <algorithm>
#include <cstddef>

namespace quorix {
namespace {

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kPixelOffset = kFileHeaderSize + kInfoHeaderSize;
constexpr std::uint32_t kBitsPerPixel = 24;
constexpr std::size_t kRowUnit = 4;

class Writer {
  public:
    explicit Writer(std::size_t size) { bytes_.reserve(size); }
    void Append(std::uint32_t value, int width) {
        for (int i = 0; i < width; ++i) bytes_.push_back(static_cast<std::uint8_t>(value >> 8 * i & 0xFFU));
    }
    void FillUpTo(std::size_t size) { bytes_.resize(size); }
    [[nodiscard]] std::vector<std::uint8_t> Take() { return std::move(bytes_); }

  private:
    std::vector<std::uint8_t> bytes_;
};

}  // namespace

std::vector<std::uint8_t> EncodeBmp(const DecodedPicture& picture) {
    const auto width = static_cast<std::size_t>(std::max(picture.width, 0));
    const auto height = static_cast<std::size_t>(std::max(picture.height, 0));
    if (width == 0 || height == 0 || picture.pixels.size() != width * height * 4) return {};
    const std::size_t rowSize = (width * 3 + kRowUnit - 1) / kRowUnit * kRowUnit;
    const std::size_t fileSize = kPixelOffset + rowSize * height;
    Writer writer(fileSize);
    writer.Append('B', 1);
    writer.Append('M', 1);
    writer.Append(static_cast<std::uint32_t>(fileSize), 4);
    writer.Append(0, 4);
    writer.Append(kPixelOffset, 4);
    writer.Append(kInfoHeaderSize, 4);
    writer.Append(static_cast<std::uint32_t>(width), 4);
    writer.Append(static_cast<std::uint32_t>(height), 4);
    writer.Append(1, 2);
    writer.Append(kBitsPerPixel, 2);
    writer.FillUpTo(kPixelOffset);
    for (std::size_t row = height; row-- > 0;) {
        const std::uint8_t* pixel = picture.pixels.data() + row * width * 4;
        for (std::size_t x = 0; x < width; ++x, pixel += 4) {
            writer.Append(pixel[2], 1);
            writer.Append(pixel[1], 1);
            writer.Append(pixel[0], 1);
        }
        writer.FillUpTo(kPixelOffset + rowSize * (height - row));
    }
    return writer.Take();
}

}  // namespace quorix
