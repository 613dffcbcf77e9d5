#include "frontends/hint_wnd.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr double kTextEm = 10;
constexpr int kLineHeight = 13;
constexpr int kPaddingX = 5;
constexpr int kPaddingY = 1;
constexpr double kBaseline = 9.8;
/// Between the label and the cursor's bar or the sides of the frame.
constexpr int kGap = 2;
/// Height of the text row over the foot of the cursor's bar, which the label never covers.
constexpr int kTextRowHeight = 20;

QFont FontOf(bool bold, bool condensed, int scale) {
    return ScreenFont({.em = kTextEm, .weight = bold ? kBoldWeight : kRegularWeight, .condensed = condensed},
                      scale);
}

}  // namespace

HintWnd::HintWnd(WindowBase* frame) : WindowBase(frame) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void HintWnd::SetColours(const SheetColours& colours) {
    colours_ = colours;
    InvalidateAll();
}

/// Pieces that end behind a comma, so that lines can be broken there.
std::vector<HintWnd::Run> HintWnd::RunsOf(const FunctionHint& hint) const {
    const auto [boldAt, boldLength] = ArgumentSpan(hint.text, hint.argument);
    std::vector<Run> runs;
    const auto add = [&](std::size_t from, std::size_t to, bool bold) {
        if (from < to) {
            const std::u16string part = hint.text.substr(from, to - from);
            runs.push_back({QString::fromStdU16String(part), bold});
        }
    };
    for (std::size_t from = 0; from < hint.text.size();) {
        const std::size_t comma = hint.text.find(u", ", from);
        const std::size_t to = comma == hint.text.npos ? hint.text.size() : comma + 2;
        const std::size_t start = std::clamp(boldAt, from, to);
        const std::size_t end = std::clamp(boldAt + boldLength, from, to);
        add(from, start, false);
        add(start, end, true);
        add(end, to, false);
        from = to;
    }
    return runs;
}

double HintWnd::WidthOf(const Run& run) const {
    return QFontMetricsF(FontOf(run.bold, condensed_, Scale())).horizontalAdvance(run.text);
}

double HintWnd::WidthOf(const TextLine& line) const {
    double width = 0;
    for (const Run& run : line) {
        width += WidthOf(run);
    }
    return width;
}

std::vector<HintWnd::TextLine> HintWnd::Wrapped(const std::vector<Run>& runs, double room) const {
    std::vector<TextLine> lines(1);
    TextLine piece;
    const auto place = [&] {
        if (!lines.back().empty() && WidthOf(lines.back()) + WidthOf(piece) > room) {
            lines.emplace_back();
        }
        lines.back().insert(lines.back().end(), piece.begin(), piece.end());
        piece.clear();
    };
    for (const Run& run : runs) {
        piece.push_back(run);
        if (run.text.endsWith(QLatin1String(", "))) {
            place();
        }
    }
    place();
    return lines;
}

void HintWnd::ShowHint(const FunctionHint& hint, const Rect& cursor, const Rect& bounds) {
    const int scale = Scale();
    const double room = bounds.Width() - 2 * (kGap + kPaddingX) * scale;
    const std::vector<Run> runs = RunsOf(hint);
    condensed_ = false;
    condensed_ = WidthOf(runs) > room;
    lines_ = Wrapped(runs, room);
    double widest = 0;
    for (const TextLine& line : lines_) {
        widest = std::max(widest, WidthOf(line));
    }
    const int width = static_cast<int>(std::ceil(widest)) + 2 * kPaddingX * scale;
    const int height = (static_cast<int>(lines_.size()) * kLineHeight + 2 * kPaddingY) * scale;
    const int rightmost = std::max(bounds.left, bounds.right - kGap * scale - width);
    const int left = std::clamp(cursor.left, std::min(bounds.left + kGap * scale, rightmost), rightmost);
    int top = cursor.bottom + kGap * scale;
    if (top + height > bounds.bottom) {
        top = cursor.bottom - (kTextRowHeight + kGap) * scale - height;
    }
    SetPlace({left, top, left + width, top + height});
    InvalidateAll();
    show();
    raise();
}

void HintWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const int scale = Scale();
    PaintSheet(painter, {0, 0, Place().Width(), Place().Height()}, colours_, scale);
    painter.setPen(ToQColor(colours_.ink));
    double baseline = (kPaddingY + kBaseline) * scale;
    for (const TextLine& line : lines_) {
        double x = kPaddingX * scale;
        for (const Run& run : line) {
            painter.setFont(FontOf(run.bold, condensed_, scale));
            painter.drawText(QPointF(x, std::floor(baseline + 0.5)), run.text);
            x += WidthOf(run);
        }
        baseline += kLineHeight * scale;
    }
}

void HintWnd::resizeEvent(QResizeEvent* /*event*/) {
    CutToSheet(*this, Scale() * Zoom());
}

}  // namespace quorix
