#include "shell/morvane_button_wnd.h"

#include <QPainter>
#include <QPointer>
#include <QTimer>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr TextFont kFont = {.em = 12};
constexpr int kPressedDrop = 2;

}  // namespace

MorvaneButton::MorvaneButton(WindowBase& parent, ModuleSite& site, int childId)
    : WindowBase(&parent, childId), parent_(parent), site_(site) {}

void MorvaneButton::SetText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    InvalidateAll();
}

void MorvaneButton::SetPicture(const QImage& picture) {
    picture_ = picture;
    InvalidateAll();
}

void MorvaneButton::SetLatched(bool latched) {
    latched_ = latched;
    InvalidateAll();
}

void MorvaneButton::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const Rect place{0, 0, Place().Width(), Place().Height()};
    const bool down = pressed_ || latched_;
    painter.fillRect(QRect(0, 0, place.Width(), place.Height()), ToQColor(site_.BodyColour()));
    site_.Panels().PaintCap(painter, Panel::upper, row_, place, down, Scale());
    const int drop = down ? kPressedDrop * Scale() : 0;
    if (!picture_.isNull()) {
        const QSizeF size = picture_.deviceIndependentSize();
        DrawPicture(painter,
                    QPointF(std::floor((place.Width() - size.width()) / 2),
                            std::floor((place.Height() - size.height()) / 2) + drop),
                    picture_, picture_.rect());
        return;
    }
    painter.setFont(ScreenFont(kFont, Scale()));
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, drop, place.Width(), place.Height()), Qt::AlignCenter | Qt::TextSingleLine,
                     text_);
}

bool MorvaneButton::Inside(Point at) const {
    return at.x >= 0 && at.y >= 0 && at.x < Place().Width() && at.y < Place().Height();
}

void MorvaneButton::OnPenDown(Point /*at*/) {
    captured_ = true;
    pressed_ = true;
    site_.PlaySound(sound_);
    InvalidateAll();
}

void MorvaneButton::OnPenMove(Point at) {
    if (captured_ && pressed_ != Inside(at)) {
        pressed_ = Inside(at);
        InvalidateAll();
    }
}

void MorvaneButton::OnPenUp(Point at) {
    captured_ = false;
    pressed_ = false;
    if (Inside(at)) {
        latched_ = toggle_ && !latched_;
        // Posted, not sent: the parent may end this button.
        QTimer::singleShot(0, &parent_, [&parent = parent_, id = ChildId(), latched = latched_] {
            parent.SendMessage(MSG_BUTTON, id, latched ? 1 : 0);
        });
    }
    InvalidateAll();
}

void MorvaneButton::PressAccessibleCell(int /*index*/) {
    OnPenDown({0, 0});
    OnPenUp({0, 0});
}

}  // namespace quorix
