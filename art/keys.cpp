#include "keys.h"

#include "caps.h"
#include "icons.h"
#include "key_glyphs.h"
#include "label_layout.h"
#include "signs.h"

namespace quorix::art {

namespace {

constexpr double kRadius = 4;
constexpr double kIconGrid = 24;
constexpr double kLabelTop = 2;  // A label of 24 units stands centred in its cell, rounded down.
constexpr double kPressedDrop = 2;

constexpr double kSignEm = 17;
constexpr double kSignBaseline = 19.5;
constexpr double kSignMiddle = 13.5;
constexpr double kSignLength = 12;
constexpr double kLetterBaseline = 18;
constexpr double kWordEm = 12;
constexpr double kWordBaseline = 17.8;
constexpr double kUnderBaseline = 22.9;
constexpr double kOrangeEm = 9;
constexpr double kOrangeBaseline = 9.9;

constexpr QPointF kChooserIconAt(2, 2);
constexpr double kChooserIconSize = 20;
constexpr double kCapIconWeight = 1.8 / 1.7;
constexpr QPointF kChooserCaretAt(16.2, 0);
constexpr double kChooserLabelLeft = 3;

bool IsLetter(char16_t sign) {
    return sign >= u'a' && sign <= u'z';
}

void LayText(Picture& picture, const Tools& tools, const QRectF& cell, const KeyFace& face,
             const QColor& ink) {
    LabelText text = {.markup = face.label,
                      .em = kWordEm,
                      .baseline = face.orange.empty() ? kWordBaseline : kUnderBaseline,
                      .centre = cell.width() / 2,
                      .maxWidth = cell.width() - 6};
    if (face.label.size() == 1) {
        text.em = kSignEm;
        text.baseline = IsLetter(face.label.front()) ? kLetterBaseline : kSignBaseline;
    }
    if (!face.orange.empty()) {
        text.em = kWordEm;
        text.baseline = kUnderBaseline;
        LayLabel(
            picture, tools.typeface, cell.topLeft(),
            {.markup = face.orange, .em = kOrangeEm, .baseline = kOrangeBaseline, .centre = cell.width() / 2},
            tools.palette.Color("label.orange"));
    }
    LayLabel(picture, tools.typeface, cell.topLeft(), text, ink);
}

void LayFace(Picture& picture, const Tools& tools, QRectF cell, const KeyFace& face, bool down) {
    picture.Paint([&](QPainter& painter) {
        PaintCap(painter, cell, kRadius, tools.palette.Cap(face.style), tools.palette.Color("shadow"), down);
    });
    cell.translate(0, down ? kPressedDrop : 0);
    const QColor ink = tools.palette.Color(QString("label.") + face.style);
    if (face.chooser != kNoChooser) {
        LayChooser(picture, tools, cell.topLeft() + QPointF(kChooserLabelLeft, kLabelTop), face.chooser);
    } else if (!face.icon.empty()) {
        const QPointF at = cell.topLeft() + QPointF((cell.width() - kIconGrid) / 2, kLabelTop);
        LayIcon(picture, at, face.icon, kIconGrid, kIconGrid, {ink, ink});
    } else if (face.label.size() == 1 && IsDrawnSign(face.label.front())) {
        LaySign(picture, cell.topLeft() + QPointF(cell.width() / 2, kSignMiddle), kSignLength, ink,
                face.label.front());
    } else {
        LayText(picture, tools, cell, face, ink);
    }
}

}  // namespace

void LayKeys(Picture& picture, const Tools& tools, double top, int columns, std::span<const KeyFace> faces) {
    for (int down = 0; down < 2; ++down) {
        int cell = 0;
        for (const KeyFace& face : faces) {
            if (face.style != nullptr) {
                const double left = (cell % columns + down * columns) * kKeyWidth;
                LayFace(picture, tools,
                        {left, top + cell / columns * kKeyHeight, face.cells * kKeyWidth, kKeyHeight}, face,
                        down != 0);
            }
            cell += face.cells;
        }
    }
}

void LayChooser(Picture& picture, const Tools& tools, QPointF origin, int category) {
    const QColor ink = tools.palette.Color("label.chooser");
    LayIcon(picture, origin + kChooserIconAt, kCategoryIcons[category], kIconGrid, kChooserIconSize,
            {ink, tools.palette.Color("accent.chooser")}, kCapIconWeight);
    LayIcon(picture, origin + kChooserCaretAt, kCaret, kIconGrid, kIconGrid, {ink, ink});
}

}  // namespace quorix::art
