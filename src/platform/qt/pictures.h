#pragma once

#include <QImage>

#include "platform/color.h"
#include "platform/image.h"

namespace quorix {

/// A picture in the form that Qt draws fastest; null for an empty picture.
QImage ToQImage(const Image& image);

QColor ToQColor(ColorRef color);

/// `cap` redrawn at another size: its corners, `corner` pixels on a side, keep their size, the edges and the
/// plain middle are stretched. Where `size` has no room for the corners the whole cap is scaled.
QImage StretchCap(const QImage& cap, QSize size, int corner);

}  // namespace quorix
