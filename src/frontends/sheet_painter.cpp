#include "frontends/sheet_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr double kCorner = 3;

}  // namespace

void PaintSheet(QPainter& painter, const Rect& size, const SheetColours& colours, int scale) {
    painter.fillRect(QRect(0, 0, size.Width(), size.Height()), ToQColor(colours.sheet));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToQColor(colours.line), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(0.5, 0.5, size.Width() - 1, size.Height() - 1), kCorner * scale,
                            kCorner * scale);
    painter.restore();
}

void CutToSheet(QWidget& window, double pixelsPerUnit) {
    QPainterPath shape;
    shape.addRoundedRect(QRectF(window.rect()), kCorner * pixelsPerUnit, kCorner * pixelsPerUnit);
    window.setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

}  // namespace quorix
