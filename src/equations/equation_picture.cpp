#include "equations/equation_picture.h"

#include <algorithm>
#include <array>
#include <new>
#include <string>
#include <vector>

#include "equations/tex_translation.h"

namespace quorix {
namespace {

constexpr int kFullStrength = 16;

/// One byte a pixel, 1 for set bits, with an empty edge of one pixel all around.
struct ByteMap {
    explicit ByteMap(const EquationRaster& raster)
        : stride(static_cast<std::size_t>(raster.width) + 2),
          bytes(stride * (static_cast<std::size_t>(raster.height) + 2)) {
        for (int y = 0; y < raster.height; ++y) {
            std::uint8_t* row = bytes.data() + (static_cast<std::size_t>(y) + 1) * stride + 1;
            for (int x = 0; x < raster.width; ++x) row[x] = raster.At(x, y) ? 1 : 0;
        }
    }

    /// How strongly a pixel is inked, in sixteenths: wholly when set, else by one for each set neighbour.
    [[nodiscard]] int StrengthAt(int x, int y) const {
        const std::uint8_t* above =
            bytes.data() + static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x);
        const std::uint8_t* here = above + stride;
        const std::uint8_t* below = here + stride;
        if (here[1] != 0) return kFullStrength;
        return above[0] + above[1] + above[2] + here[0] + here[2] + below[0] + below[1] + below[2];
    }

    std::size_t stride;
    std::vector<std::uint8_t> bytes;
};

using Pixel = std::array<std::uint8_t, 4>;

/// The colours from background to text in sixteenths, rounded.
std::array<Pixel, kFullStrength + 1> Shades(const EquationColors& colors) {
    const auto mixed = [](int from, int to, int strength) {
        return static_cast<std::uint8_t>(
            (from * (kFullStrength - strength) + to * strength + kFullStrength / 2) / kFullStrength);
    };
    std::array<Pixel, kFullStrength + 1> shades{};
    for (int strength = 0; strength <= kFullStrength; ++strength) {
        shades[static_cast<std::size_t>(strength)] = {
            mixed(RedOf(colors.background), RedOf(colors.text), strength),
            mixed(GreenOf(colors.background), GreenOf(colors.text), strength),
            mixed(BlueOf(colors.background), BlueOf(colors.text), strength), 255};
    }
    return shades;
}

}  // namespace

DecodedPicture PaintRaster(const EquationRaster& raster, const EquationColors& colors) {
    DecodedPicture picture;
    if (raster.IsEmpty()) return picture;
    picture.width = raster.width;
    picture.height = raster.height;
    picture.pixels.resize(static_cast<std::size_t>(raster.width) * static_cast<std::size_t>(raster.height) *
                          4);
    const ByteMap map(raster);
    const auto shades = Shades(colors);
    auto pixel = picture.pixels.begin();
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x) {
            pixel = std::ranges::copy(shades[static_cast<std::size_t>(map.StrengthAt(x, y))], pixel).out;
        }
    }
    return picture;
}

bool RenderEquation(EquationRasteriser& rasteriser, EquationView& view, std::string_view text,
                    std::string_view sizeCommand) try {
    std::string composed = std::string(sizeCommand) + " " + std::string(text);
    WrapDelimiters(composed);
    view.picture = {};
    if (composed.size() >= kTexBufferSize) return false;
    view.picture = PaintRaster(rasteriser.Rasterise(composed), view.isInverted ? view.inverted : view.normal);
    return true;
} catch (const std::bad_alloc&) {
    view.picture = {};
    return false;
}

bool RenderEquationDirect(EquationRasteriser& rasteriser, EquationView& view, std::string_view text,
                          std::string_view sizeCommand) {
    return RenderEquation(rasteriser, view, text, sizeCommand);
}

Point PictureOffset(PictureSize view, PictureSize picture, bool centred) {
    constexpr int kLeftMargin = 10;
    return {centred ? (view.width - picture.width) / 2 : kLeftMargin, (view.height - picture.height) / 2};
}

Point HeldOffset(Point offset, PictureSize view, PictureSize picture) {
    const auto held = [](int value, int viewSide, int pictureSide) {
        return std::max(std::min(value, viewSide / 2), viewSide / 2 - pictureSide);
    };
    return {held(offset.x, view.width, picture.width), held(offset.y, view.height, picture.height)};
}

}  // namespace quorix
