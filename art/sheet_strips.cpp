#include <QPainterPath>

#include "frontends/categories.h"
#include "icons.h"
#include "label_layout.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr double kIconGrid = 24;
constexpr double kToolGrid = 16;
constexpr double kTileWidth = 58;
constexpr double kTileHeight = 45;
constexpr double kTileRadius = 4;
constexpr double kLabelHeight = 20;
constexpr double kLabelEm = 9;
constexpr double kFirstBaseline = 8;
constexpr double kSecondBaseline = 17;
constexpr double kMaxLabelWidth = kTileWidth - 2;

IconColors SheetColors(const Palette& palette) {
    return {palette.Color("sheet.ink"), palette.Color("sheet.accent")};
}
IconColors ChosenColors(const Palette& palette) {
    return {palette.Color("chosen.ink"), palette.Color("chosen.accent")};
}

/// A category's name on its tile: on one line when it fits, else broken at its first blank.
struct TileLabel {
    std::u16string_view first;
    std::u16string_view second;
};

TileLabel BreakName(std::u16string_view name, const Tools& tools, int scale) {
    const QString text = QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
    const double width = tools.typeface.Width(text, Face::kMedium, kLabelEm * scale, scale);
    const std::size_t blank = name.find(u' ');
    if (width <= kMaxLabelWidth * scale || blank == name.npos) {
        return {name, {}};
    }
    return {name.substr(0, blank), name.substr(blank + 1)};
}

static_assert(std::size(kCategoryIcons) == kCategoryCount, "an icon for each category");

}  // namespace

void DrawCategory(Picture& picture, const Tools& tools) {
    const IconColors rows[] = {SheetColors(tools.palette), ChosenColors(tools.palette)};
    for (int row = 0; row < 2; ++row) {
        double left = 0;
        for (const auto& icon : kCategoryIcons) {
            LayIcon(picture, {left, row * kIconGrid}, icon, kIconGrid, kIconGrid, rows[row]);
            left += kIconGrid;
        }
    }
}

void DrawCategoryLabels(Picture& picture, const Tools& tools) {
    const QColor rows[] = {tools.palette.Color("sheet.ink"), tools.palette.Color("chosen.ink")};
    for (int row = 0; row < 2; ++row) {
        double left = 0;
        for (const std::u16string_view name : kCategoryNames) {
            const TileLabel label = BreakName(name, tools, picture.Scale());
            const QPointF origin(left, row * kLabelHeight);
            LabelText text = {.markup = label.first,
                              .em = kLabelEm,
                              .baseline = kFirstBaseline,
                              .centre = kTileWidth / 2,
                              .maxWidth = kMaxLabelWidth};
            LayLabel(picture, tools.typeface, origin, text, rows[row]);
            text.markup = label.second;
            text.baseline = kSecondBaseline;
            LayLabel(picture, tools.typeface, origin, text, rows[row]);
            left += kTileWidth;
        }
    }
}

void DrawCategoryButtons(Picture& picture, const Tools& tools) {
    const char* const roles[] = {"sheet", "sheet.pressed", "chosen"};
    picture.Paint([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        double left = 0;
        for (const char* role : roles) {
            painter.setBrush(tools.palette.Color(role));
            painter.drawRoundedRect(QRectF(left + 1.5, 1.5, kTileWidth - 3, kTileHeight - 2.5), kTileRadius,
                                    kTileRadius);
            left += kTileWidth;
        }
    });
}

void DrawToolSymbols(Picture& picture, const Tools& tools) {
    double left = 0;
    for (const auto& glyph : kToolGlyphs) {
        LayIcon(picture, {left, 0}, glyph, kToolGrid, kToolGrid, SheetColors(tools.palette));
        left += kToolGrid;
    }
}

void DrawPageButtons(Picture& picture, const Tools& tools) {
    const std::span<const IconStroke> rows[] = {kLeftSign, kRightSign};
    const QColor ink = tools.palette.Color("sheet.ink");
    for (int row = 0; row < 2; ++row) {
        for (int down = 0; down < 2; ++down) {
            const QPointF origin(down * kIconGrid, row * kIconGrid);
            picture.Paint([&](QPainter& painter) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(tools.palette.Color(down != 0 ? "sheet.pressed" : "sheet"));
                painter.drawRoundedRect(QRectF(origin, QSizeF(kIconGrid, kIconGrid)).adjusted(1, 1, -1, -1),
                                        kTileRadius, kTileRadius);
            });
            LayIcon(picture, origin, rows[row], kIconGrid, kIconGrid, {ink, ink});
        }
    }
}

}  // namespace quorix::art
