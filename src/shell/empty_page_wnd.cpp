#include "shell/empty_page_wnd.h"

#include <QPainter>

#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr TextFont kNameFont = {.em = 15, .weight = kBoldWeight};
constexpr TextFont kNoteFont = {.em = 11};
constexpr int kNameHeight = 22;
constexpr int kNoteHeight = 16;
constexpr int kLeastRoom = 44;

}  // namespace

void EmptyPageWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const Rect place = Place();
    painter.fillRect(QRect(0, 0, place.Width(), place.Height()), ToQColor(Site().BodyColour()));
    // Above the key where there is room, else beside it.
    const Rect key = ChooserKeyHere();
    const bool above = key.top >= kLeastRoom * Scale();
    const int middle = (above ? key.top : place.Height()) / 2;
    const int left = above ? 0 : key.right;
    painter.setPen(Qt::white);
    painter.setFont(ScreenFont(kNameFont, Scale()));
    const std::u16string_view name = kCategoryNames[static_cast<std::size_t>(Category())];
    painter.drawText(QRect(left, middle - kNameHeight * Scale(), place.Width() - left, kNameHeight * Scale()),
                     Qt::AlignCenter, ToQString(name));
    painter.setFont(ScreenFont(kNoteFont, Scale()));
    painter.drawText(QRect(left, middle, place.Width() - left, kNoteHeight * Scale()), Qt::AlignCenter,
                     QStringLiteral("This page has no content yet."));
    PaintChooserKey(painter);
}

}  // namespace quorix
