#include "frontends/led_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <string>

#include "frontends/result_fit.h"
#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

// Texts of the display. A height given for a row is that of a whole line; the em is about 0.83 of it.
constexpr TextFont kStatusFont = {.em = 9, .weight = kRegularWeight};
constexpr TextFont kNarrowStatusFont = {.em = 9, .weight = kRegularWeight, .condensed = true};
constexpr TextFont kPendingFont = {.em = 12.5, .weight = kRegularWeight};
constexpr TextFont kResultFont = {.em = 15, .weight = kMediumWeight};
constexpr TextFont kNarrowResultFont = {.em = 12.5, .weight = kMediumWeight, .condensed = true};
constexpr TextFont kBinaryFont = {.em = 10.5, .weight = kMediumWeight, .condensed = true};
constexpr TextFont kEqualsFont = {.em = 16.5, .weight = kBoldWeight};

// Base lines from the top of the display, in units.
constexpr double kStatusBaseline = 10.6;
constexpr double kPendingBaseline = 11;
constexpr double kLineBaseline = 28;
constexpr double kResultBaseline = 45;
constexpr double kNarrowResultBaseline = 44;
constexpr double kEqualsBaseline = 45.4;

constexpr int kMarkInset = 1;      // A mark stands this far inside its rectangle,
constexpr int kMarkClearance = 3;  // and at least this far from its end.
constexpr int kFrameLines = 3;
constexpr double kArrowWidth = 5;
constexpr double kArrowInset = 4;  // From its rectangle's outer side to its tip.
constexpr double kArrowHalfHeight = 5;

QColor ColorOf(Rgb color) {
    return QColor::fromRgb(color);
}

double BaselineOf(double units, int scale) {
    return std::floor(units * scale + 0.5);
}

void PaintMark(QPainter& painter, DisplayPart part, Rgb color, const QString& text, int scale) {
    const Rect rect = DisplayPartRect(part, scale);
    const double left = rect.left + kMarkInset * scale;
    QFont font = ScreenFont(kStatusFont, scale);
    if (left + QFontMetricsF(font).horizontalAdvance(text) > rect.right - kMarkClearance * scale) {
        font = ScreenFont(kNarrowStatusFont, scale);
    }
    painter.setFont(font);
    painter.setPen(ColorOf(color));
    painter.drawText(QPointF(left, BaselineOf(kStatusBaseline, scale)), text);
}

/// Text of a status mark by the identifier that it shows; identifiers of one mark follow each other.
struct MarkText {
    std::int32_t id;
    const char* text;
};

constexpr MarkText kMarkTexts[] = {
    {FORMAT_FIX, "FIX"}, {FORMAT_NORM, "NORM"}, {FORMAT_SCI, "SCI"}, {FORMAT_FRAC, "FRAC"},
    {WORD_8, "8 bit"},   {WORD_16, "16 bit"},   {WORD_32, "32 bit"},  //
    {ANGLE_DEG, "DEG"},  {ANGLE_RAD, "RAD"},    {ANGLE_GRAD, "GRA"},  //
    {RADIX_BIN, "BIN"},  {RADIX_OCT, "OCT"},    {RADIX_DEC, "DEC"},  {RADIX_HEX, "HEX"},
};

QString MarkTextOf(std::int32_t id) {
    for (const MarkText& mark : kMarkTexts) {
        if (mark.id == id) {
            return QLatin1String(mark.text);
        }
    }
    return {};
}

void PaintArrow(QPainter& painter, DisplayPart part, int scale) {
    const QRectF rect = ToQRect(DisplayPartRect(part, scale));
    const double direction = part == DisplayPart::leftArrow ? -1 : 1;
    const double outerSide = part == DisplayPart::leftArrow ? rect.left() : rect.right();
    const QPointF tip(outerSide - direction * kArrowInset * scale, rect.center().y());
    const double back = tip.x() - direction * kArrowWidth * scale;
    QPainterPath triangle(tip);
    triangle.lineTo(back, tip.y() - kArrowHalfHeight * scale);
    triangle.lineTo(back, tip.y() + kArrowHalfHeight * scale);
    triangle.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(triangle, ColorOf(display_colors::kArrow));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void PaintFrame(QPainter& painter, Rect rect, const DisplayFrameColours& frame) {
    for (const ColorRef color : frame) {
        painter.fillRect(ToQRect(rect), ToQColor(color));
        rect = rect.Inset(1);
    }
    painter.fillRect(ToQRect(rect), ColorOf(display_colors::kBackground));
}

}  // namespace

void LedPainter::SetTexButton(const DensePicture& picture) {
    texButton_ = ToQImage(picture);
}

LinePlace LedPainter::PlaceOfLine(int scale) {
    const Rect row = DisplayPartRect(DisplayPart::textRow, scale);
    return {.row = row,
            .left = row.left + kTextRowInset * scale,
            .baseline = BaselineOf(kLineBaseline, scale),
            .endCursorWidth = kCursorRoom * scale};
}

std::vector<int> LedPainter::UpdateView(CLedDisplay& display, int scale) {
    std::vector<int> widths = line_.MeasureTokens(display.GetLine(), display.GetTokenLengths(), scale);
    display.UpdateView(widths, scale);
    return widths;
}

Rect LedPainter::CursorRect(CLedDisplay& display, int scale) {
    const std::vector<int> widths = UpdateView(display, scale);
    return LinePainter::CursorRect(display.Line(), widths, PlaceOfLine(scale), scale);
}

void LedPainter::Paint(QPainter& painter, const Rect& size, CLedDisplay& display,
                       const DisplayFrameColours& frame, int scale) {
    const std::vector<int> widths = UpdateView(display, scale);
    PaintFrame(painter, size, frame);
    painter.save();
    painter.setClipRect(ToQRect(size.Inset(kFrameLines)), Qt::IntersectClip);
    PaintStatus(painter, display, scale);
    PaintLine(painter, display, widths, scale);
    PaintResult(painter, display, scale);
    painter.restore();
    PaintTexButton(painter, display, scale);
}

void LedPainter::PaintStatus(QPainter& painter, const CLedDisplay& display, int scale) const {
    const StatusVisibility& shown = display.Visibility();
    const struct {
        bool shown;
        DisplayPart part;
        Rgb color;
        QString text;
    } marks[] = {
        {shown.lineNumber, DisplayPart::lineNumber, display_colors::kText,
         QString::number(display.LineNumber() + 1)},
        {display.GetShift(), DisplayPart::shiftMark, display_colors::kShift, QStringLiteral("SHIFT")},
        {shown.memory, DisplayPart::memoryMark, display_colors::kMemory,
         QStringLiteral("M%1").arg(display.Memory() - KEY_M1 + 1)},
        {shown.base, DisplayPart::baseMark, display_colors::kBase, MarkTextOf(display.GetBase())},
        {shown.angle, DisplayPart::angleMark, display_colors::kAngle, MarkTextOf(display.GetAngle())},
        {shown.format, DisplayPart::formatMark, display_colors::kFormat, MarkTextOf(display.GetFormat())},
        {shown.wordSize, DisplayPart::wordSizeMark, display_colors::kWordSize,
         MarkTextOf(display.GetWordSize())},
    };
    for (const auto& mark : marks) {
        if (mark.shown) {
            PaintMark(painter, mark.part, mark.color, mark.text, scale);
        }
    }
    if (!display.PendingOperator().empty()) {
        const Rect rect = DisplayPartRect(DisplayPart::pendingOperator, scale);
        painter.setFont(ScreenFont(kPendingFont, scale));
        painter.setPen(ColorOf(display_colors::kPendingOperator));
        painter.drawText(QPointF(rect.left + kMarkInset * scale, BaselineOf(kPendingBaseline, scale)),
                         PaintedText(display.PendingOperator()));
    }
}

void LedPainter::PaintLine(QPainter& painter, const CLedDisplay& display, const std::vector<int>& widths,
                           int scale) {
    for (const DisplayPart arrow : {DisplayPart::leftArrow, DisplayPart::rightArrow}) {
        if (display.ArrowShown(arrow)) {
            PaintArrow(painter, arrow, scale);
        }
    }
    line_.Paint(painter, display.Line(), widths, kDisplayColours, PlaceOfLine(scale), scale);
}

void LedPainter::PaintResult(QPainter& painter, const CLedDisplay& display, int scale) const {
    painter.setPen(ColorOf(display_colors::kText));
    if (display.ShowsEquals()) {
        painter.setFont(ScreenFont(kEqualsFont, scale));
        const Rect mark = DisplayPartRect(DisplayPart::equalsMark, scale);
        painter.drawText(QPointF(mark.left + kMarkInset * scale, BaselineOf(kEqualsBaseline, scale)),
                         QStringLiteral("="));
    }
    const std::u16string& result = display.GetResultText();
    if (result.empty()) {
        return;
    }
    const Rect row = DisplayPartRect(DisplayPart::resultRow, scale);
    const auto fits = [&](const QFont& font, std::u16string_view text) {
        return QFontMetricsF(font).horizontalAdvance(PaintedText(text)) <= row.Width();
    };
    const bool isBinary = display.GetBase() == RADIX_BIN && display.GetWordSize() == WORD_32 &&
                          (result.front() == u'0' || result.front() == u'1');
    QFont font = ScreenFont(isBinary ? kBinaryFont : kResultFont, scale);
    const bool isNarrow = !isBinary && !fits(font, result);
    if (isNarrow) {
        font = ScreenFont(kNarrowResultFont, scale);
    }
    const double baseline = BaselineOf(isBinary || isNarrow ? kNarrowResultBaseline : kResultBaseline, scale);
    const QString text =
        PaintedText(CutToFit(result, [&](std::u16string_view part) { return fits(font, part); }));
    painter.setFont(font);
    painter.drawText(QPointF(row.right - QFontMetricsF(font).horizontalAdvance(text), baseline), text);
}

void LedPainter::PaintTexButton(QPainter& painter, const CLedDisplay& display, int scale) const {
    if (!display.Visibility().texButton || texButton_.isNull()) {
        return;
    }
    const Rect place = DisplayPartRect(DisplayPart::texButton, scale);
    const int width = texButton_.width() / 2;
    DrawPicture(painter, QPointF(place.left, place.top), texButton_,
                QRect(display.TexButtonPressed() ? width : 0, 0, width, texButton_.height()));
}

}  // namespace quorix
