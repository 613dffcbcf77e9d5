#include "png_writer.h"

#include <png.h>
#include <zlib.h>

#include <QFile>
#include <stdexcept>
#include <vector>

namespace quorix::art {

namespace {

bool IsOpaque(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 255) {
                return false;
            }
        }
    }
    return true;
}

std::vector<png_byte> Bytes(const QImage& image, bool opaque) {
    std::vector<png_byte> bytes;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            for (const int value : {qRed(line[x]), qGreen(line[x]), qBlue(line[x])}) {
                bytes.push_back(static_cast<png_byte>(value));
            }
            if (!opaque) {
                bytes.push_back(static_cast<png_byte>(qAlpha(line[x])));
            }
        }
    }
    return bytes;
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

QByteArray Encoded(const QImage& straight, const PngTrial& trial) {
    const bool opaque = IsOpaque(straight);
    std::vector<png_byte> bytes = Bytes(straight, opaque);
    const std::size_t rowBytes = bytes.size() / static_cast<std::size_t>(straight.height());

    QByteArray out;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &out, AppendTo, nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(straight.width()),
                 static_cast<png_uint_32>(straight.height()), 8,
                 opaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, trial.filters);
    png_set_compression_level(png, Z_BEST_COMPRESSION);
    png_set_compression_strategy(png, trial.strategy);
    png_set_compression_mem_level(png, kMostMemory);
    png_write_info(png, info);
    for (int y = 0; y < straight.height(); ++y) {
        png_write_row(png, bytes.data() + rowBytes * static_cast<std::size_t>(y));
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return out;
}

}  // namespace

void WritePng(const QImage& image, const QString& path) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray smallest;
    for (const PngTrial& trial : kTrials) {
        const QByteArray file = Encoded(straight, trial);
        if (smallest.isEmpty() || file.size() < smallest.size()) {
            smallest = file;
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(smallest) != smallest.size()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

}  // namespace quorix::art
