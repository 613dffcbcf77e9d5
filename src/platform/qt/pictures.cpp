#include "platform/qt/pictures.h"

#include <QColor>
#include <QPainter>
#include <array>

namespace quorix {

QImage ToQImage(const Image& image) {
    if (image.IsEmpty()) {
        return {};
    }
    const QImage view(image.Bitmap().data(), image.Width(), image.Height(), image.Width() * 4,
                      QImage::Format_RGBA8888);
    return view.convertToFormat(QImage::Format_ARGB32_Premultiplied);
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
    if (size.width() <= 2 * corner || size.height() <= 2 * corner || cap.width() <= 2 * corner ||
        cap.height() <= 2 * corner) {
        return cap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
    return stretched;
}

}  // namespace quorix
