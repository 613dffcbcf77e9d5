#pragma once

#include <QImage>

namespace quorix::testing {

/// Calls visit(pixel, x, y) for every pixel of a picture.
template <class Visit>
void ForEachPixel(const QImage& picture, const Visit& visit) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            visit(picture.pixel(x, y), x, y);
        }
    }
}

/// Number of pixels of a colour, whatever their alpha.
inline int CountOf(const QImage& picture, QRgb color) {
    int count = 0;
    ForEachPixel(picture, [&](QRgb pixel, int, int) { count += (pixel & RGB_MASK) == (color & RGB_MASK); });
    return count;
}

}  // namespace quorix::testing
