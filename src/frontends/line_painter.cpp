#include "frontends/line_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "engine/number_locale.h"
#include "frontends/token_colors.h"
#include "platform/qt/conversions.h"

namespace quorix {

namespace {

constexpr int kCursorHeight = 2;

}  // namespace

QString PaintedText(std::u16string_view text) {
    QString painted = ToQString(text);
    return painted.replace(QChar(kDisplayComma), QLatin1Char(','));
}

double LinePainter::AdvanceOf(char16_t sign, int scale) {
    if (advancesScale_ != scale) {
        advances_.clear();
        advancesScale_ = scale;
    }
    const auto [it, isNew] = advances_.try_emplace(sign, 0.0);
    if (isNew) {
        it->second = QFontMetricsF(ScreenFont(font_, scale)).horizontalAdvance(PaintedText({&sign, 1}));
    }
    return it->second;
}

std::vector<int> LinePainter::MeasureTokens(std::u16string_view line, std::u16string_view tokenLengths,
                                            int scale) {
    std::vector<int> widths;
    widths.reserve(tokenLengths.size());
    std::size_t at = 0;
    for (const char16_t length : tokenLengths) {
        const std::u16string_view token = line.substr(at, static_cast<std::size_t>(length - u'0'));
        at += token.size();
        double width = 0;
        for (const char16_t sign : token) {
            width += AdvanceOf(sign, scale);
        }
        widths.push_back(static_cast<int>(std::lround(width)));
    }
    return widths;
}

Rect LinePainter::CursorRect(const TokenLine& line, const std::vector<int>& widths, const LinePlace& place,
                             int scale) {
    int left = place.left;
    int width = 0;
    const int end = std::min(line.LastVisible() + 1, line.TokenCount());
    int k = line.FirstVisible();
    for (; k < end && k != line.Cursor(); ++k) {
        left += widths[static_cast<std::size_t>(k)];
    }
    if (k < end) {
        width = widths[static_cast<std::size_t>(k)];
    } else if (line.Cursor() >= line.TokenCount() && line.LastVisible() + 1 >= line.TokenCount()) {
        width = place.endCursorWidth;
    }
    return {left, place.row.bottom - kCursorHeight * scale, left + width, place.row.bottom};
}

void LinePainter::Paint(QPainter& painter, const TokenLine& line, const std::vector<int>& widths,
                        const DisplayColours& colours, const LinePlace& place, int scale) {
    const std::vector<Rgb> colors = ColorsOfLine(line.Text(), line.TokenLengths(), colours);
    painter.save();
    painter.setClipRect(ToQRect(place.row), Qt::IntersectClip);
    painter.setFont(ScreenFont(font_, scale));
    int left = place.left;
    for (int k = line.FirstVisible(); k <= line.LastVisible() && k < line.TokenCount(); ++k) {
        std::size_t at = line.OffsetOf(k);
        double x = left;
        for (const char16_t sign : line.Token(k)) {
            painter.setPen(QColor::fromRgb(colors[at]));
            painter.drawText(QPointF(x, place.baseline), PaintedText({&sign, 1}));
            x += AdvanceOf(sign, scale);
            ++at;
        }
        left += widths[static_cast<std::size_t>(k)];
    }
    painter.fillRect(ToQRect(CursorRect(line, widths, place, scale)),
                     QColor::fromRgb(colours[DisplayColour::cursor]));
    painter.restore();
}

}  // namespace quorix
