#include "shell/empty_page_wnd.h"

#include <QPainter>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr TextFont kNameFont = {.em = 15, .weight = kBoldWeight};
constexpr TextFont kNoteFont = {.em = 11};
constexpr int kNameHeight = 22;
constexpr int kNoteHeight = 16;

}  // namespace

void EmptyPageWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const Rect place = Place();
    painter.fillRect(QRect(0, 0, place.Width(), place.Height()), ToQColor(Site().BodyColour()));
    const int keyTop = ChooserKeyHere().top;
    const int middle = keyTop / 2;
    painter.setPen(Qt::white);
    painter.setFont(ScreenFont(kNameFont, Scale()));
    const std::u16string_view name = kCategoryNames[static_cast<std::size_t>(Category())];
    painter.drawText(QRect(0, middle - kNameHeight * Scale(), place.Width(), kNameHeight * Scale()),
                     Qt::AlignCenter, QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size())));
    painter.setFont(ScreenFont(kNoteFont, Scale()));
    painter.drawText(QRect(0, middle, place.Width(), kNoteHeight * Scale()), Qt::AlignCenter,
                     QStringLiteral("This page has no content yet."));
    PaintChooserKey(painter);
}

}  // namespace quorix
