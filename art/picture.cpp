#include "picture.h"

#include <algorithm>
#include <cmath>

namespace quorix::art {

Picture::Picture(int width, int height, int scale, const QColor& ground)
    : image_(width * scale, height * scale, QImage::Format_ARGB32), scale_(scale) {
    image_.fill(ground);
}

void Picture::Paint(const std::function<void(QPainter&)>& paint) {
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale_, scale_);
    paint(painter);
}

void Picture::Lay(const QColor& color, const std::function<void(QPainter&)>& paint) {
    LayInPixels(color, [&](QPainter& painter) {
        painter.scale(scale_, scale_);
        paint(painter);
    });
}

namespace {

/// From this scale on edges have 16 steps of coverage, which is more than the eye finds there, and files half
/// as large.
constexpr int kDenseScale = 3;
constexpr int kDenseStep = 17;

int StepOf(int coverage, int scale) {
    return scale < kDenseScale ? coverage : (coverage + kDenseStep / 2) / kDenseStep * kDenseStep;
}

/// Source-over of `color` at `coverage` on a pixel of straight alpha.
QRgb Over(QRgb below, const QColor& color, int coverage) {
    const double top = coverage / 255.0;
    const double under = qAlpha(below) / 255.0 * (1.0 - top);
    const double alpha = top + under;
    const auto channel = [&](int above, int ground) {
        return static_cast<int>(std::lround((above * top + ground * under) / alpha));
    };
    return qRgba(channel(color.red(), qRed(below)), channel(color.green(), qGreen(below)),
                 channel(color.blue(), qBlue(below)), static_cast<int>(std::lround(alpha * 255.0)));
}

}  // namespace

void Picture::LayInPixels(const QColor& color, const std::function<void(QPainter&)>& paint) {
    QImage mask(image_.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        paint(painter);
    }
    for (int y = 0; y < image_.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(mask.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = 0; x < image_.width(); ++x) {
            if (const int coverage = StepOf(qAlpha(from[x]), scale_); coverage != 0) {
                to[x] = Over(to[x], color, coverage);
            }
        }
    }
}

int Picture::Snap(double units) const {
    return static_cast<int>(std::floor(units * scale_ + 0.5));
}

int Picture::Stroke(double units) const {
    return std::max(1, static_cast<int>(std::floor(units * scale_ + 0.5)));
}

void Picture::FinishTransparency(const QColor& color) {
    const QRgb clear = qRgba(color.red(), color.green(), color.blue(), 0);
    for (int y = 0; y < image_.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = 0; x < image_.width(); ++x) {
            if (qAlpha(line[x]) == 0) {
                line[x] = clear;
            } else if ((line[x] & RGB_MASK) == (clear & RGB_MASK)) {
                line[x] ^= 1U;
            }
        }
    }
}

}  // namespace quorix::art
