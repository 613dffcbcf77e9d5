#include "platform/qt/pictures.h"

#include <QColor>
#include <QPainter>
#include <array>
#include <cmath>

namespace quorix {

namespace {

/// Sizes that differ by less are the same number of pixels.
constexpr double kSamePixels = 0.25;

}  // namespace

QImage ToQImage(const Image& image) {
    if (image.IsEmpty()) {
        return {};
    }
    // Qt would convert a large picture in threads, whose start costs more than the work.
    QImage picture(image.Width(), image.Height(), QImage::Format_ARGB32_Premultiplied);
    const std::uint8_t* from = image.Bitmap().data();
    for (int y = 0; y < picture.height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x, from += 4) {
            to[x] = qPremultiply(qRgba(from[0], from[1], from[2], from[3]));
        }
    }
    return picture;
}

QImage ToQImage(const DensePicture& picture) {
    QImage image = ToQImage(picture.image);
    image.setDevicePixelRatio(picture.ratio);
    return image;
}

void DrawPicture(QPainter& painter, QPointF at, const QImage& picture, const QRect& part) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF exact = toDevice.mapRect(QRectF(at, QSizeF(part.size()) / picture.devicePixelRatio()));
    const QPoint topLeft(static_cast<int>(std::lround(exact.left())),
                         static_cast<int>(std::lround(exact.top())));
    const QPoint end(static_cast<int>(std::lround(exact.right())),
                     static_cast<int>(std::lround(exact.bottom())));
    const bool same = std::abs(exact.width() - part.width()) < kSamePixels &&
                      std::abs(exact.height() - part.height()) < kSamePixels;
    const QSize size = same ? part.size() : QSize(end.x() - topLeft.x(), end.y() - topLeft.y());

    const QTransform world = painter.worldTransform();
    painter.setWorldTransform(toDevice.inverted() * world);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !same);
    painter.drawImage(QRect(topLeft, size), picture, part);
    painter.setWorldTransform(world);
}

QColor ToQColor(ColorRef color) {
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

namespace {

/// Where the three bands of a length begin, and its end.
using Bands = std::array<int, 4>;

Bands BandsOf(int length, int corner) {
    return {0, corner, length - corner, length};
}

}  // namespace

QImage StretchCap(const QImage& cap, QSize size, int corner) {
    if (cap.size() == size) {
        return cap;
    }
    const double ratio = cap.devicePixelRatio();
    if (size.width() <= 2 * corner || size.height() <= 2 * corner || cap.width() <= 2 * corner ||
        cap.height() <= 2 * corner) {
        QImage scaled = cap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(ratio);
        return scaled;
    }
    const Bands fromX = BandsOf(cap.width(), corner);
    const Bands fromY = BandsOf(cap.height(), corner);
    const Bands toX = BandsOf(size.width(), corner);
    const Bands toY = BandsOf(size.height(), corner);
    QImage stretched(size, QImage::Format_ARGB32_Premultiplied);
    stretched.fill(Qt::transparent);
    QPainter painter(&stretched);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const QRect from(QPoint(fromX[column], fromY[row]),
                             QPoint(fromX[column + 1] - 1, fromY[row + 1] - 1));
            const QRect to(QPoint(toX[column], toY[row]), QPoint(toX[column + 1] - 1, toY[row + 1] - 1));
            painter.drawImage(to, cap, from);
        }
    }
    painter.end();
    stretched.setDevicePixelRatio(ratio);
    return stretched;
}

}  // namespace quorix
