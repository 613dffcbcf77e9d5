#include "equations/equation_picture.h"

#include <algorithm>
#include <new>

#include "equations/tex_translation.h"

namespace quorix {
namespace {

constexpr int kNeighbours = 8;

int SetNeighbours(const EquationRaster& raster, int x, int y) {
    int count = 0;
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, raster.height - 1); ++row) {
        for (int col = std::max(x - 1, 0); col <= std::min(x + 1, raster.width - 1); ++col) {
            count += raster.At(col, row) ? 1 : 0;
        }
    }
    return count;
}

/// From one channel to the other in sixteenths, rounded.
std::uint8_t Mixed(std::uint8_t from, std::uint8_t to, int sixteenths) {
    return static_cast<std::uint8_t>((from * (16 - sixteenths) + to * sixteenths + 8) / 16);
}

}  // namespace

DecodedPicture PaintRaster(const EquationRaster& raster, const EquationColors& colors) {
    DecodedPicture picture;
    if (raster.IsEmpty()) return picture;
    picture.width = raster.width;
    picture.height = raster.height;
    picture.pixels.reserve(static_cast<std::size_t>(raster.width) * static_cast<std::size_t>(raster.height) *
                           4);
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x) {
            const int strength = raster.At(x, y) ? 2 * kNeighbours : SetNeighbours(raster, x, y);
            picture.pixels.push_back(Mixed(RedOf(colors.background), RedOf(colors.text), strength));
            picture.pixels.push_back(Mixed(GreenOf(colors.background), GreenOf(colors.text), strength));
            picture.pixels.push_back(Mixed(BlueOf(colors.background), BlueOf(colors.text), strength));
            picture.pixels.push_back(255);
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
