#include "png_writer.h"

#include <png.h>
#include <zlib.h>

#include <QFile>
#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

namespace quorix::art {

namespace {

/// A picture's pixels as a PNG file holds them: by number where its colours fit a palette, else in full.
struct FilePixels {
    int colorType = PNG_COLOR_TYPE_RGB_ALPHA;
    int bitDepth = 8;
    std::size_t rowBytes = 0;  ///< Before packing: numbers take a byte each.
    std::vector<png_byte> bytes;
    std::vector<png_color> palette;
    std::vector<png_byte> alphas;  ///< Of the palette's first colours; those behind are opaque.
};

constexpr std::size_t kMostColors = 256;

/// The distinct colours, those with alpha first, or nothing when there are too many.
std::optional<std::map<QRgb, int>> ColorNumbers(const QImage& image) {
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        colors.insert(line, line + image.width());
        if (colors.size() > kMostColors) {
            return std::nullopt;
        }
    }
    std::map<QRgb, int> numbers;
    for (const bool opaque : {false, true}) {
        for (const QRgb color : colors) {
            if ((qAlpha(color) == 255) == opaque) {
                numbers.emplace(color, static_cast<int>(numbers.size()));
            }
        }
    }
    return numbers;
}

FilePixels ByNumber(const QImage& image, const std::map<QRgb, int>& numbers) {
    FilePixels pixels;
    pixels.colorType = PNG_COLOR_TYPE_PALETTE;
    pixels.bitDepth = numbers.size() <= 2 ? 1 : numbers.size() <= 4 ? 2 : numbers.size() <= 16 ? 4 : 8;
    pixels.rowBytes = static_cast<std::size_t>(image.width());
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::transform(line, line + image.width(), std::back_inserter(pixels.bytes),
                       [&](QRgb color) { return static_cast<png_byte>(numbers.at(color)); });
    }
    pixels.palette.resize(numbers.size());
    for (const auto& [color, number] : numbers) {
        pixels.palette[static_cast<std::size_t>(number)] = {static_cast<png_byte>(qRed(color)),
                                                            static_cast<png_byte>(qGreen(color)),
                                                            static_cast<png_byte>(qBlue(color))};
        if (qAlpha(color) != 255) {
            pixels.alphas.resize(
                std::max<std::size_t>(pixels.alphas.size(), static_cast<std::size_t>(number) + 1));
            pixels.alphas[static_cast<std::size_t>(number)] = static_cast<png_byte>(qAlpha(color));
        }
    }
    return pixels;
}

FilePixels InFull(const QImage& image) {
    bool opaque = true;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        opaque = opaque && std::all_of(line, line + image.width(), [](QRgb c) { return qAlpha(c) == 255; });
    }
    FilePixels pixels;
    pixels.colorType = opaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA;
    pixels.rowBytes = static_cast<std::size_t>(image.width()) * (opaque ? 3 : 4);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            for (const int value : {qRed(line[x]), qGreen(line[x]), qBlue(line[x])}) {
                pixels.bytes.push_back(static_cast<png_byte>(value));
            }
            if (!opaque) {
                pixels.bytes.push_back(static_cast<png_byte>(qAlpha(line[x])));
            }
        }
    }
    return pixels;
}

/// Only memory can fail here, and libpng must not return from an error.
[[noreturn]] void OnError(png_structp /*png*/, png_const_charp message) {
    qFatal("png: %s", message);
}

void AppendTo(png_structp png, png_bytep data, png_size_t size) {
    static_cast<QByteArray*>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// Which combination of row filters and deflate strategy is best depends on the picture; all are tried.
struct PngTrial {
    int filters;
    int strategy;
};

constexpr PngTrial kTrials[] = {
    {PNG_FILTER_NONE, Z_DEFAULT_STRATEGY},  {PNG_FILTER_SUB, Z_DEFAULT_STRATEGY},
    {PNG_FILTER_UP, Z_DEFAULT_STRATEGY},    {PNG_FILTER_AVG, Z_DEFAULT_STRATEGY},
    {PNG_FILTER_PAETH, Z_DEFAULT_STRATEGY}, {PNG_ALL_FILTERS, Z_DEFAULT_STRATEGY},
    {PNG_FILTER_NONE, Z_FILTERED},          {PNG_ALL_FILTERS, Z_FILTERED},
};
constexpr int kMostMemory = 9;

QByteArray Encoded(const QImage& image, const FilePixels& pixels, const PngTrial& trial) {
    QByteArray out;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &out, AppendTo, nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()), static_cast<png_uint_32>(image.height()),
                 pixels.bitDepth, pixels.colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (!pixels.palette.empty()) {
        png_set_PLTE(png, info, pixels.palette.data(), static_cast<int>(pixels.palette.size()));
    }
    if (!pixels.alphas.empty()) {
        png_set_tRNS(png, info, pixels.alphas.data(), static_cast<int>(pixels.alphas.size()), nullptr);
    }
    png_set_filter(png, PNG_FILTER_TYPE_BASE, trial.filters);
    png_set_compression_level(png, Z_BEST_COMPRESSION);
    png_set_compression_strategy(png, trial.strategy);
    png_set_compression_mem_level(png, kMostMemory);
    png_write_info(png, info);
    png_set_packing(png);
    for (int y = 0; y < image.height(); ++y) {
        png_write_row(png, pixels.bytes.data() + pixels.rowBytes * static_cast<std::size_t>(y));
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return out;
}

}  // namespace

void WritePng(const QImage& image, const QString& path) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    std::vector<FilePixels> forms = {InFull(straight)};
    if (const auto numbers = ColorNumbers(straight)) {
        forms.push_back(ByNumber(straight, *numbers));
    }
    QByteArray smallest;
    for (const FilePixels& form : forms) {
        for (const PngTrial& trial : kTrials) {
            const QByteArray file = Encoded(straight, form, trial);
            if (smallest.isEmpty() || file.size() < smallest.size()) {
                smallest = file;
            }
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(smallest) != smallest.size()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

}  // namespace quorix::art
