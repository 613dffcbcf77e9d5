#include <span>

#include "caps.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr double kUpperRadius = 4;
constexpr double kLowerRadius = 5;
constexpr double kSquareRadius = 4.5;

/// One row for each style, the up look at left and the down look at right.
void DrawCaps(Picture& picture, const Tools& tools, std::span<const char* const> styles, double cellWidth,
              double cellHeight, double radius) {
    const QColor shadow = tools.palette.Color("shadow");
    picture.Paint([&](QPainter& painter) {
        double top = 0;
        for (const char* style : styles) {
            const CapColors colors = tools.palette.Cap(style);
            PaintCap(painter, {0, top, cellWidth, cellHeight}, radius, colors, shadow, false);
            PaintCap(painter, {cellWidth, top, cellWidth, cellHeight}, radius, colors, shadow, true);
            top += cellHeight;
        }
    });
}

// The rows that the panels' image-row tables count by.
constexpr const char* kSmallStyles[] = {"function", "shift", "menu", "chooser"};
constexpr const char* kLargeStyles[] = {"digit", "operator", "clear"};

}  // namespace

void DrawSmallButtons(Picture& picture, const Tools& tools) {
    DrawCaps(picture, tools, kSmallStyles, 39, 28, kUpperRadius);
}

void DrawLargeButtons(Picture& picture, const Tools& tools) {
    DrawCaps(picture, tools, kLargeStyles, 47, 38, kLowerRadius);
}

void DrawLargeButtonsSquare(Picture& picture, const Tools& tools) {
    DrawCaps(picture, tools, kLargeStyles, 47, 26, kSquareRadius);
}

}  // namespace quorix::art
