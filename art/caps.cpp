#include "caps.h"

#include <QLinearGradient>

namespace quorix::art {

namespace {

constexpr double kEdge = 0.5;  // The lit edge round the face.

void FillSlab(QPainter& painter, const QRectF& slab, double radius, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(slab.topLeft(), slab.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(slab, radius, radius);
}

QColor Darker(const QColor& color, double part) {
    return QColor::fromRgbF(color.redF() * static_cast<float>(1 - part),
                            color.greenF() * static_cast<float>(1 - part),
                            color.blueF() * static_cast<float>(1 - part));
}

struct ShadowLayer {
    double drop;
    double alpha;
};

constexpr ShadowLayer kShadows[] = {{1.5, 0.28}, {0.75, 0.42}};

constexpr double kDownTop = 0.18;  // How much darker a pressed face is, top and bottom.
constexpr double kDownBottom = 0.06;
constexpr double kDownLit = 0.64;  // How near a pressed cap's lower edge comes to its face.

QColor Between(const QColor& from, const QColor& to, double part) {
    const auto channel = [&](float a, float b) { return a + (b - a) * static_cast<float>(part); };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()));
}

}  // namespace

void PaintCap(QPainter& painter, const QRectF& cell, double radius, const CapColors& colors,
              const QColor& shadow, bool down) {
    QRectF slab = cell.adjusted(1, 1, -1, -2);
    if (down) {
        slab.translate(0, 1);
        // The face turns away from the light: its lower colour throughout, and the dark edge on top.
        const QColor foot = Darker(colors.faceBottom, kDownBottom);
        FillSlab(painter, slab, radius, colors.edgeBottom, Between(colors.edgeBottom, foot, kDownLit));
        FillSlab(painter, slab.adjusted(kEdge, kEdge, -kEdge, -kEdge), radius - kEdge,
                 Darker(colors.faceBottom, kDownTop), foot);
        return;
    }
    for (const ShadowLayer& layer : kShadows) {
        QColor color = shadow;
        color.setAlphaF(static_cast<float>(layer.alpha));
        FillSlab(painter, slab.translated(0, layer.drop), radius, color, color);
    }
    FillSlab(painter, slab, radius, colors.edgeTop, colors.edgeBottom);
    FillSlab(painter, slab.adjusted(kEdge, kEdge, -kEdge, -kEdge), radius - kEdge, colors.faceTop,
             colors.faceBottom);
}

}  // namespace quorix::art
