// Rows, scroll bars and small buttons of the lists, and the grounds that they lie on.
#include "icons.h"
#include "key_glyphs.h"
#include "label_layout.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr double kSide = 20;
constexpr double kIconGrid = 24;
constexpr double kTileRadius = 4;
constexpr double kThumbRadius = 3;
constexpr double kSheetRadius = 6;

// The tools row of the chooser lies under a hair line.
constexpr QRectF kSheet(0, 0, 234, 208);
constexpr double kHairLineTop = 181.5;
constexpr double kHairLineInset = 8;

IconColors Plain(const QColor& ink) {
    return {ink, ink};
}

void PaintTile(Picture& picture, const QRectF& tile, const QColor& color, double radius) {
    picture.Lay(color, [&](QPainter& painter) { painter.drawRoundedRect(tile, radius, radius); });
}

/// A button of 20 x 20 on the sheet: a quiet tile up, the chosen colour down.
void LayListButton(Picture& picture, const Tools& tools, double top, std::span<const IconStroke> icon) {
    for (int down = 0; down < 2; ++down) {
        const QPointF at(down * kSide, top);
        PaintTile(picture, QRectF(at, QSizeF(kSide, kSide)).adjusted(1, 1, -1, -1),
                  tools.palette.Color(down != 0 ? "chosen" : "sheet.pressed"), kTileRadius);
        LayIcon(picture, at, icon, kIconGrid, kSide,
                Plain(tools.palette.Color(down != 0 ? "chosen.ink" : "sheet.ink")));
    }
}

/// A sign of 20 x 20 on no ground, on a tile of its own when down.
void LaySurfaceButton(Picture& picture, const Tools& tools, std::span<const IconStroke> icon) {
    const IconColors colors = {tools.palette.Color("sheet.ink"), tools.palette.Color("sheet.accent")};
    PaintTile(picture, {kSide + 1, 1, kSide - 2, kSide - 2}, tools.palette.Color("sheet.pressed"),
              kTileRadius);
    for (const double left : {0.0, kSide}) {
        LayIcon(picture, {left, 0}, icon, kIconGrid, kSide, colors);
    }
}

/// The sheet with its edge of one pixel.
void LaySheet(Picture& picture, const Tools& tools, const QRectF& sheet) {
    const double pixel = 1.0 / picture.Scale();
    PaintTile(picture, sheet, tools.palette.Color("sheet.line"), kSheetRadius);
    PaintTile(picture, sheet.adjusted(pixel, pixel, -pixel, -pixel), tools.palette.Color("sheet"),
              kSheetRadius - pixel);
}

}  // namespace

void DrawToolsPanel(Picture& picture, const Tools& tools) {
    LaySheet(picture, tools, kSheet);
    const int top = picture.Snap(kHairLineTop);
    const double scale = picture.Scale();
    picture.LayInPixels(tools.palette.Color("sheet.line"), [&](QPainter& painter) {
        painter.drawRect(
            QRectF(kHairLineInset * scale, top, (kSheet.width() - 2 * kHairLineInset) * scale, 1));
    });
}

void DrawToolsPanelMask(Picture& picture, const Tools& /*tools*/) {
    PaintTile(picture, kSheet, Qt::white, kSheetRadius);
}

void DrawFormulaPanel(Picture& picture, const Tools& tools) {
    LaySheet(picture, tools, {1, 1, 232, 90});
}

void DrawListRows(Picture& picture, const Tools& tools) {
    PaintTile(picture, {kSide + 1, 1, kSide - 2, kSide - 2}, tools.palette.Color("chosen"), kTileRadius);
}

void DrawListButtons(Picture& picture, const Tools& tools) {
    LayListButton(picture, tools, 0, kUpSign);
    LayListButton(picture, tools, kSide, kDownSign);
}

void DrawListUp(Picture& picture, const Tools& tools) {
    LayListButton(picture, tools, 0, kUpSign);
}

void DrawListDown(Picture& picture, const Tools& tools) {
    LayListButton(picture, tools, 0, kDownSign);
}

void DrawListDelete(Picture& picture, const Tools& tools) {
    LayListButton(picture, tools, 0, kTrashSign);
}

void DrawListThumb(Picture& picture, const Tools& tools) {
    // Plain between its ends, so that it can be drawn at any length.
    constexpr double kThumbInset = 6;
    PaintTile(picture, {kThumbInset, 1, kSide - 2 * kThumbInset, kSide - 2},
              tools.palette.Color("sheet.thumb"), kThumbRadius);
    PaintTile(picture, {kSide + kThumbInset - 1, 1, kSide - 2 * kThumbInset + 2, kSide - 2},
              tools.palette.Color("sheet.ink"), kThumbRadius);
}

void DrawTreeIcons(Picture& picture, const Tools& tools) {
    const std::span<const IconStroke> icons[] = {kFolderIcon, kOpenFolderIcon, kFormulaIcon};
    const IconColors rows[] = {{tools.palette.Color("sheet.ink"), tools.palette.Color("sheet.accent")},
                               {tools.palette.Color("chosen.ink"), tools.palette.Color("chosen.accent")}};
    for (int row = 0; row < 2; ++row) {
        double left = 0;
        for (const auto& icon : icons) {
            LayIcon(picture, {left, row * kSide}, icon, kIconGrid, kSide, rows[row]);
            left += kSide;
        }
    }
}

void DrawGraphNew(Picture& picture, const Tools& tools) {
    LaySurfaceButton(picture, tools, kNewSign);
}

void DrawGraphClose(Picture& picture, const Tools& tools) {
    LaySurfaceButton(picture, tools, kCrossSign);
}

void DrawCentreNames(Picture& picture, const Tools& tools) {
    // The two centre fields are light in every skin.
    constexpr QRgb kFieldInk = 0xFF33476B;
    constexpr double kFieldHeight = 12;
    double top = 0;
    for (const std::u16string_view name : {u"X", u"Y"}) {
        LayLabel(picture, tools.typeface, {0, top},
                 {.markup = name, .em = 11.5, .baseline = 10, .centre = 8, .face = Face::kMedium},
                 QColor::fromRgba(kFieldInk));
        top += kFieldHeight;
    }
}

}  // namespace quorix::art
