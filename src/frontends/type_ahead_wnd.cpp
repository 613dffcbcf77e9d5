#include "frontends/type_ahead_wnd.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr double kTextEm = 12;
constexpr int kRowHeight = 17;
constexpr double kBaseline = 12.8;
constexpr int kMostRows = 7;
constexpr int kPaddingX = 8;
constexpr int kPaddingY = 2;
constexpr int kLeastWidth = 56;
constexpr int kGap = 2;
/// The bar at the side of the chosen row.
constexpr int kBarWidth = 3;

QFont FontOf(bool bold, int scale) {
    return ScreenFont({.em = kTextEm, .weight = bold ? kBoldWeight : kMediumWeight}, scale);
}

}  // namespace

TypeAheadWnd::TypeAheadWnd(WindowBase* frame, TypeAhead& model) : WindowBase(frame), model_(model) {
    hide();
}

void TypeAheadWnd::SetColours(const SheetColours& colours) {
    colours_ = colours;
    InvalidateAll();
}

int TypeAheadWnd::RowsShown() const {
    return std::min(kMostRows, static_cast<int>(model_.Candidates().size()));
}

void TypeAheadWnd::Follow(const Rect& cursor, const Rect& bounds) {
    if (!model_.IsOpen()) {
        hide();
        return;
    }
    const int scale = Scale();
    const int rows = RowsShown();
    const int chosen = static_cast<int>(model_.Chosen());
    const int last = static_cast<int>(model_.Candidates().size()) - rows;
    first_ = isVisible() ? std::clamp(first_, 0, last) : 0;
    first_ = std::clamp(first_, chosen - rows + 1, chosen);
    double widest = 0;
    for (const TypeAhead::Candidate& candidate : model_.Candidates()) {
        widest =
            std::max(widest, QFontMetricsF(FontOf(true, scale)).horizontalAdvance(ToQString(candidate.name)));
    }
    const int width =
        std::min(std::max(kLeastWidth * scale, static_cast<int>(std::ceil(widest)) + 2 * kPaddingX * scale),
                 bounds.Width());
    const int left = std::clamp(cursor.left, bounds.left, bounds.right - width);
    const int top = cursor.bottom + kGap * scale;
    SetPlace({left, top, left + width, top + (rows * kRowHeight + 2 * kPaddingY) * scale});
    InvalidateAll();
    show();
    raise();
}

void TypeAheadWnd::PaintRow(QPainter& painter, int row) {
    const int scale = Scale();
    const std::size_t index = static_cast<std::size_t>(first_ + row);
    const bool isChosen = index == model_.Chosen();
    const int top = (kPaddingY + row * kRowHeight) * scale;
    if (isChosen) {
        painter.fillRect(0, top, Place().Width(), kRowHeight * scale, ToQColor(colours_.ink));
        painter.fillRect(0, top, kBarWidth * scale, kRowHeight * scale, ToQColor(colours_.accent));
    }
    painter.setPen(ToQColor(isChosen ? colours_.sheet : colours_.ink));
    // What has been typed is set bold.
    const QString name = ToQString(model_.Candidates()[index].name);
    const auto typed = static_cast<qsizetype>(model_.Prefix().size());
    const double baseline = std::floor(top + kBaseline * scale + 0.5);
    double x = kPaddingX * scale;
    for (const auto& [text, bold] : {std::pair{name.left(typed), true}, {name.mid(typed), false}}) {
        const QFont font = FontOf(bold, scale);
        painter.setFont(font);
        painter.drawText(QPointF(x, baseline), text);
        x += QFontMetricsF(font).horizontalAdvance(text);
    }
}

void TypeAheadWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    PaintSheet(painter, {0, 0, Place().Width(), Place().Height()}, colours_, Scale());
    for (int row = 0; row < RowsShown(); ++row) {
        PaintRow(painter, row);
    }
}

std::size_t TypeAheadWnd::CandidateAt(Point at) const {
    const int y = at.y - kPaddingY * Scale();
    const int row = y < 0 ? kMostRows : y / (kRowHeight * Scale());
    const bool inside = at.x >= 0 && at.x < Place().Width() && row < RowsShown();
    return inside ? static_cast<std::size_t>(first_ + row) : model_.Candidates().size();
}

void TypeAheadWnd::OnPenDown(Point at) {
    model_.Choose(CandidateAt(at));
}

void TypeAheadWnd::OnPenMove(Point at) {
    model_.Choose(CandidateAt(at));
}

void TypeAheadWnd::OnPenUp(Point at) {
    model_.Accept(CandidateAt(at));
}

void TypeAheadWnd::resizeEvent(QResizeEvent* /*event*/) {
    CutToSheet(*this, Scale() * Zoom());
}

}  // namespace quorix
