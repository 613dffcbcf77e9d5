#include "shell/module_wnd.h"

#include <QPainter>

#include "platform/dense_picture.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr int kKeyWidth = 39;
constexpr int kKeyHeight = 28;
/// Drop of a pressed label, in units.
constexpr int kPressedDrop = 2;
constexpr int kLabelWidth = 33;
constexpr int kLabelHeight = 24;

}  // namespace

ModuleWnd::ModuleWnd(WindowBase& frame, ModuleSite& site, int category)
    : WindowBase(&frame, EntryOf(category).childId), site_(site), category_(category) {}

void ModuleWnd::LayOut() {
    SetPlace(WindowPlaceOf(category_, site_.Frame().CurrentOrientation()).Scaled(Scale()));
}

Rect ModuleWnd::ChooserKey() const {
    const Rect place = WindowPlaceOf(category_, site_.Frame().CurrentOrientation());
    constexpr int kMargin = 3;
    const int left = std::max(place.left, kMargin);
    const int bottom = place.bottom - (EntryOf(category_).ground == PageGround::window ? 1 : 0);
    return {left, bottom - kKeyHeight, left + kKeyWidth, bottom};
}

Rect ModuleWnd::ChooserKeyHere() const {
    const Rect key = ChooserKey().Scaled(Scale());
    return {key.left - Place().left, key.top - Place().top, key.right - Place().left,
            key.bottom - Place().top};
}

QImage ModuleWnd::SkinPicture(std::string_view key) const {
    return ToQImage(LoadDense(site_.CurrentSkin().FindSkinValue(key), Scale(), Density()));
}

void ModuleWnd::PaintChooserKey(QPainter& painter) {
    const Rect key = ChooserKeyHere();
    const bool down = chooserPressed_ || site_.Frame().ChooserOpen();
    site_.Panels().PaintCap(painter, Panel::upper, CAP_CHOOSER, key, down, Scale());
    const QImage labels = SkinPicture("ChooserLabels");
    if (labels.isNull()) {
        return;
    }
    const int width = labels.width() / kCategoryCount;
    const QPointF at(
        key.left + (key.Width() - kLabelWidth * Scale()) / 2,
        key.top + (key.Height() - kLabelHeight * Scale()) / 2 + (down ? kPressedDrop * Scale() : 0));
    DrawPicture(painter, at, labels, QRect(category_ * width, 0, width, labels.height()));
}

bool ModuleWnd::ChooserPenDown(Point at) {
    chooserPressed_ = ChooserKeyHere().Contains(at);
    if (chooserPressed_) {
        Invalidate(ChooserKeyHere());
    }
    return chooserPressed_;
}

bool ModuleWnd::ChooserPenUp(Point at) {
    if (!chooserPressed_) {
        return false;
    }
    chooserPressed_ = false;
    Invalidate(ChooserKeyHere());
    if (ChooserKeyHere().Contains(at)) {
        site_.Frame().KeySound();
        site_.Frame().ToggleChooser();
    }
    return true;
}

QString ModuleWnd::AccessibleCellName(int /*index*/) const {
    return EntryOf(category_).ground == PageGround::panels ? QString() : QStringLiteral("categories");
}

QRect ModuleWnd::AccessibleCellRect(int /*index*/) const {
    return OnDesktop(ChooserKeyHere());
}

bool ModuleWnd::AccessibleCellDown(int /*index*/) const {
    return site_.Frame().ChooserOpen();
}

void ModuleWnd::PressAccessibleCell(int /*index*/) {
    site_.Frame().KeySound();
    site_.Frame().ToggleChooser();
}

}  // namespace quorix
