#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>

#include "platform/color.h"
#include "platform/dense_picture.h"

class QPainter;

namespace quorix {

/// A picture in the form that Qt draws fastest; null for an empty picture.
QImage ToQImage(const Image& image);
/// The same with the picture's ratio as its device pixel ratio.
QImage ToQImage(const DensePicture& picture);

/// Draws `part` (the picture's own pixels) at a point of the painter's coordinates, in the size that the
/// picture's ratio gives. Where its pixels are as large as those of the paint device they are copied, at the
/// nearest whole pixel; else they are scaled smoothly between whole pixels, so that neighbours keep touching.
void DrawPicture(QPainter& painter, QPointF at, const QImage& picture, const QRect& part);

QColor ToQColor(ColorRef color);

/// `cap` redrawn at another size (the picture's own pixels): its corners, `corner` pixels on a side, keep
/// their size, the edges and the plain middle are stretched. Where `size` has no room for the corners the
/// whole cap is scaled.
QImage StretchCap(const QImage& cap, QSize size, int corner);

}  // namespace quorix
