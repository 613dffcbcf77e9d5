#include "frontends/panel_painter.h"

#include <QPainter>
#include <cmath>

#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr int kSmallCapRows = 4;
constexpr int kLargeCapRows = 3;
constexpr int kPageLabels = 12;
constexpr int kGeneralLabels = 6;
constexpr int kLargeLabelColumns = 5;
constexpr int kLargeLabelRows = 4;

constexpr int kCapCorner = 8;    // Units that a cap's corners keep when it is stretched.
constexpr int kPressedDrop = 2;  // Units that a pressed label stands lower.

constexpr TextFont kWordFont = {.em = 12};
constexpr TextFont kLandscapeFont = {.em = 14, .weight = kBoldWeight};

}  // namespace

QImage PanelPainter::CapStrip::Cut(int row, bool down) const {
    const int width = picture.width() / 2;
    const int height = picture.height() / rows;
    return picture.copy(down ? width : 0, row * height, width, height);
}

QSize PanelPainter::LabelGrid::LabelSize() const {
    return {picture.width() / columns, picture.height() / rows};
}

void PanelPainter::SetPictures(const PanelPictures& pictures) {
    smallCaps_ = {ToQImage(pictures.smallButtons), kSmallCapRows};
    largeCaps_ = {ToQImage(pictures.largeButtons), kLargeCapRows};
    generalLabels_ = {ToQImage(pictures.smallFontsGeneral), kGeneralLabels, 1};
    largeLabels_ = {ToQImage(pictures.largeFonts), kLargeLabelColumns, kLargeLabelRows};
    caps_.clear();
}

void PanelPainter::SetPageLabels(const DensePicture& smallFonts) {
    smallLabels_ = {ToQImage(smallFonts), kPageLabels, 1};
}

void PanelPainter::PaintBody(QPainter& painter, const Rect& client, const BodyColours& colours) {
    painter.fillRect(ToQRect(client), ToQColor(colours.outer));
    painter.fillRect(ToQRect(client.Inset(1)), ToQColor(colours.inner));
    painter.fillRect(ToQRect(client.Inset(2)), ToQColor(colours.body));
}

void PanelPainter::PaintLandscapeWord(QPainter& painter, const Rect& rect, int scale) {
    painter.setFont(ScreenFont(kLandscapeFont, scale));
    painter.setPen(Qt::white);
    painter.drawText(ToQRect(rect), Qt::AlignCenter | Qt::TextSingleLine, QStringLiteral("Landscape"));
}

const QImage& PanelPainter::CapPicture(Panel panel, int row, QSize size, bool down, int scale) {
    QImage& cap = caps_[{panel, row, down, size.width(), size.height()}];
    if (cap.isNull()) {
        const CapStrip& strip = panel == Panel::upper ? smallCaps_ : largeCaps_;
        const double ratio = strip.picture.devicePixelRatio();
        cap = StretchCap(strip.Cut(row, down), (QSizeF(size) * ratio).toSize(),
                         static_cast<int>(std::lround(kCapCorner * scale * ratio)));
    }
    return cap;
}

PanelPainter::Label PanelPainter::LabelOf(PanelCell cell) const {
    if (cell.panel == Panel::lower) {
        return {&largeLabels_, cell.cell};
    }
    return cell.cell < CELL_FIRST_GENERAL ? Label{&smallLabels_, cell.cell}
                                          : Label{&generalLabels_, cell.cell - CELL_FIRST_GENERAL};
}

void PanelPainter::PaintCap(QPainter& painter, Panel panel, int row, const Rect& place, bool down,
                            int scale) {
    if ((panel == Panel::upper ? smallCaps_ : largeCaps_).picture.isNull()) {
        return;
    }
    const QImage& cap = CapPicture(panel, row, ToQRect(place).size(), down, scale);
    DrawPicture(painter, ToQRect(place).topLeft(), cap, cap.rect());
}

void PanelPainter::PaintCell(QPainter& painter, Orientation orientation, int scale, PanelCell cell,
                             bool down) {
    const QRect place = ToQRect(CellRect(orientation, cell).Scaled(scale));
    PaintCap(painter, cell.panel, CapRowOf(cell), CellRect(orientation, cell).Scaled(scale), down, scale);
    PaintLabel(painter, place, LabelOf(cell), down, scale);
}

void PanelPainter::PaintLowerCellAs(QPainter& painter, Orientation orientation, int scale, int cell,
                                    bool down, int labelOf, const QString& text) {
    const PanelCell panelCell{Panel::lower, cell};
    const Rect rect = CellRect(orientation, panelCell).Scaled(scale);
    PaintCap(painter, Panel::lower, CapRowOf(panelCell), rect, down, scale);
    if (text.isEmpty()) {
        PaintLabel(painter, ToQRect(rect), {&largeLabels_, labelOf}, down, scale);
        return;
    }
    painter.setFont(ScreenFont(kWordFont, scale));
    painter.setPen(Qt::white);
    painter.drawText(ToQRect(rect).translated(0, down ? kPressedDrop * scale : 0),
                     Qt::AlignCenter | Qt::TextSingleLine, text);
}

void PanelPainter::PaintLabel(QPainter& painter, const QRect& place, const Label& label, bool down,
                              int scale) {
    if (label.grid->picture.isNull()) {
        return;
    }
    const QSize size = label.grid->LabelSize();
    const QSizeF shown = QSizeF(size) / label.grid->picture.devicePixelRatio();
    // Halves of a device pixel are cut off, so that a label stands alike in every density.
    const QPointF at(
        place.x() + std::floor((place.width() - shown.width()) / 2),
        place.y() + std::floor((place.height() - shown.height()) / 2) + (down ? kPressedDrop * scale : 0));
    const QRect from(QPoint(label.index % label.grid->columns * size.width(),
                            label.index / label.grid->columns * size.height()),
                     size);
    DrawPicture(painter, at, label.grid->picture, from);
}

void PanelPainter::PaintPanel(QPainter& painter, Orientation orientation, int scale, Panel panel,
                              const PanelLooks& looks) {
    const int cells = panel == Panel::upper ? kUpperCellCount : kLowerCellCount;
    for (int i = 0; i < cells; ++i) {
        const PanelCell cell{panel, i};
        PaintCell(painter, orientation, scale, cell, looks.LooksDown(cell));
    }
}

}  // namespace quorix
