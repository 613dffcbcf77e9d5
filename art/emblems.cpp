#include "icons.h"
#include "label_layout.h"
#include "strips.h"

namespace quorix::art {

namespace {

// The wordmark: a ring for the Q, its tail in the colour of SHIFT, the rest in the regular face.
constexpr QPointF kRingCentre(75.75, 23.9);
constexpr double kRingRadius = 11.55;
constexpr double kRingStroke = 3.5;
constexpr QPointF kTailFrom(79.7, 28);
constexpr QPointF kTailTo(88.5, 36.8);
constexpr double kTailStroke = 4;
constexpr double kWordLeft = 92.9;
constexpr double kWordBaseline = 34;
constexpr double kWordEm = 32;
constexpr double kWordSpacing = 1.9;

// The TeX button belongs to the display, whose colours are the same in every skin.
constexpr double kTexSide = 14;
constexpr QRgb kTexFace = 0xFFE3E8F1;
constexpr QRgb kTexFaceDown = 0xFFC3CDDF;
constexpr QRgb kTexEdge = 0xFF8FA0BE;
constexpr QRgb kTexInk = 0xFF33476B;

constexpr IconStroke kTexSign[] = {
    {Ink::kMain, 1.1, "M2.4 8.2 L3.8 7.4 L5.2 11 L7.4 3.2 H11.6 M8 6.4 L11.2 10.4 M11.2 6.4 L8 10.4"},
};

}  // namespace

void DrawLogo(Picture& picture, const Tools& tools) {
    const QColor ink = tools.palette.Color("label.menu");
    picture.Paint([&](QPainter& painter) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, kRingStroke));
        painter.drawEllipse(kRingCentre, kRingRadius, kRingRadius);
    });
    const double scale = picture.Scale();
    picture.LayInPixels(ink, [&](QPainter& painter) {
        painter.setPen(Qt::white);
        tools.typeface.Draw(painter, QPointF(kWordLeft, kWordBaseline) * scale, "uorix", Face::kRegular,
                            kWordEm * scale, picture.Scale(), kWordSpacing * scale);
    });
    const QColor tail = tools.palette.Cap("shift").faceTop;
    picture.Paint([&](QPainter& painter) {
        painter.setPen(QPen(tail, kTailStroke, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(kTailFrom, kTailTo);
    });
}

void DrawTexButton(Picture& picture, const Tools& /*tools*/) {
    const double pixel = 1.0 / picture.Scale();
    for (int down = 0; down < 2; ++down) {
        const QRectF box(down * kTexSide, 0, kTexSide, kTexSide);
        picture.Lay(QColor::fromRgba(kTexEdge),
                    [&](QPainter& painter) { painter.drawRoundedRect(box, 3, 3); });
        picture.Lay(QColor::fromRgba(down != 0 ? kTexFaceDown : kTexFace), [&](QPainter& painter) {
            painter.drawRoundedRect(box.adjusted(pixel, pixel, -pixel, -pixel), 3 - pixel, 3 - pixel);
        });
        const QColor ink = QColor::fromRgba(kTexInk);
        LayIcon(picture, box.topLeft(), kTexSign, kTexSide, kTexSide, {ink, ink});
    }
}

}  // namespace quorix::art
