#include "mtex/gif_raster.h"

#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace quorix::mtex {
namespace {

constexpr int kDarkBelow = 108;

int ReadBytes(GifFileType* gif, GifByteType* target, int count) {
    auto& rest = *static_cast<std::span<const std::uint8_t>*>(gif->UserData);
    const std::size_t taken = std::min(rest.size(), static_cast<std::size_t>(std::max(count, 0)));
    if (taken > 0) std::memcpy(target, rest.data(), taken);
    rest = rest.subspan(taken);
    return static_cast<int>(taken);
}

struct GifCloser {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

bool IsDark(const ColorMapObject& colors, GifPixelType index) {
    if (index >= colors.ColorCount) return false;
    const GifColorType& color = colors.Colors[index];
    return (color.Red + color.Green + color.Blue) / 3 < kDarkBelow;
}

/// Skips to the first image. False when there is none.
bool FindImage(GifFileType* gif) {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(gif, &type) == GIF_OK) {
        if (type == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif) == GIF_OK;
        if (type != EXTENSION_RECORD_TYPE) return false;
        int code = 0;
        GifByteType* block = nullptr;
        if (DGifGetExtension(gif, &code, &block) != GIF_OK) return false;
        while (block != nullptr) {
            if (DGifGetExtensionNext(gif, &block) != GIF_OK) return false;
        }
    }
    return false;
}

}  // namespace

std::optional<Raster> DecodeGif(std::span<const std::uint8_t> file) {
    int error = 0;
    const std::unique_ptr<GifFileType, GifCloser> gif(DGifOpen(&file, ReadBytes, &error));
    if (!gif || !FindImage(gif.get())) return std::nullopt;
    const GifImageDesc& image = gif->Image;
    const ColorMapObject* colors = image.ColorMap != nullptr ? image.ColorMap : gif->SColorMap;
    if (colors == nullptr || image.Interlace || image.Width < 1 || image.Height < 1 ||
        image.Width > kMostRasterPixels / image.Height) {
        return std::nullopt;
    }
    const auto rowBytes = static_cast<std::size_t>((image.Width + 7) / 8);
    Raster raster{static_cast<int>(rowBytes) * 8, image.Height, {}};
    std::vector<GifPixelType> line(static_cast<std::size_t>(image.Width));
    for (int y = 0; y < image.Height; ++y) {
        if (DGifGetLine(gif.get(), line.data(), image.Width) != GIF_OK) return std::nullopt;
        raster.bits.resize(raster.bits.size() + rowBytes);
        std::uint8_t* row = raster.bits.data() + raster.bits.size() - rowBytes;
        for (std::size_t x = 0; x < line.size(); ++x) {
            if (IsDark(*colors, line[x])) row[x / 8] = static_cast<std::uint8_t>(row[x / 8] | 1U << (x % 8));
        }
    }
    return raster;
}

}  // namespace quorix::mtex
