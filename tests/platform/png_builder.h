#pragma once

#include <png.h>

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace quorix::testing {

inline png_color_16 Gray(png_uint_16 gray) {
    png_color_16 color{};
    color.gray = gray;
    return color;
}
inline png_color_16 Rgb(png_uint_16 red, png_uint_16 green, png_uint_16 blue) {
    png_color_16 color{};
    color.red = red;
    color.green = green;
    color.blue = blue;
    return color;
}

/// A PNG file to be made in memory; `rows` holds the packed bytes of all rows.
struct PngBuilder {
    png_uint_32 width = 1;
    png_uint_32 height = 1;
    int bitDepth = 8;
    int colorType = PNG_COLOR_TYPE_RGB_ALPHA;
    std::vector<std::uint8_t> rows = {};
    std::vector<png_color> palette = {};
    std::vector<png_byte> paletteAlpha = {};
    std::optional<png_color_16> transparentColor = {};
    std::optional<png_color_16> background = {};
    std::optional<double> gamma = {};
    int interlace = PNG_INTERLACE_NONE;

    [[nodiscard]] std::string Build() {
        std::string out;
        // An error of the encoder is a fault of the test.
        const auto fail = [](png_structp, png_const_charp) { std::abort(); };
        png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, nullptr);
        png_infop info = png_create_info_struct(png);
        png_set_write_fn(
            png, &out,
            [](png_structp p, png_bytep data, png_size_t size) {
                static_cast<std::string*>(png_get_io_ptr(p))
                    ->append(reinterpret_cast<const char*>(data), size);
            },
            nullptr);
        png_set_IHDR(png, info, width, height, bitDepth, colorType, interlace, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        if (!palette.empty()) {
            png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
        }
        if (!paletteAlpha.empty()) {
            png_set_tRNS(png, info, paletteAlpha.data(), static_cast<int>(paletteAlpha.size()), nullptr);
        }
        if (transparentColor) {
            png_set_tRNS(png, info, nullptr, 0, &*transparentColor);
        }
        if (background) {
            png_set_bKGD(png, info, &*background);
        }
        if (gamma) {
            png_set_gAMA(png, info, *gamma);
        }
        png_write_info(png, info);
        const std::size_t rowBytes = png_get_rowbytes(png, info);
        std::vector<png_bytep> pointers;
        for (std::size_t y = 0; y < height; ++y) {
            pointers.push_back(rows.data() + y * rowBytes);
        }
        png_write_image(png, pointers.data());
        png_write_end(png, info);
        png_destroy_write_struct(&png, &info);
        return out;
    }
};

}  // namespace quorix::testing
