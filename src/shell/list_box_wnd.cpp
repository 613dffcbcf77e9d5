#include "shell/list_box_wnd.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr TextFont kRowFont = {.em = 12};
constexpr int kTextInset = 7;
constexpr int kClientMargin = 3;
/// Of this window: a scroll key held down.
constexpr int kScrollTimer = 1;
constexpr int kScrollMs = 150;
constexpr int kWheelStep = 120;

constexpr std::pair<int, ListKey> kListKeys[] = {
    {Qt::Key_Up, ListKey::up},         {Qt::Key_Down, ListKey::down},
    {Qt::Key_PageUp, ListKey::pageUp}, {Qt::Key_PageDown, ListKey::pageDown},
    {Qt::Key_Home, ListKey::first},    {Qt::Key_End, ListKey::last},
    {Qt::Key_Return, ListKey::choose}, {Qt::Key_Enter, ListKey::choose},
    {Qt::Key_Escape, ListKey::close},
};

}  // namespace

MorvaneListBoxWnd::MorvaneListBoxWnd(WindowBase& frame, ModuleSite& site, int popupId,
                                     std::function<void(int row)> chosen)
    : WindowBase(&frame, popupId), site_(site), chosen_(std::move(chosen)) {
    setAccessibleName(QStringLiteral("List"));
}

void MorvaneListBoxWnd::Open(const Rect& anchor, std::vector<std::u16string> items, int selected) {
    const Rect client = LayoutOf(site_.Frame().CurrentOrientation()).client.Inset(kClientMargin);
    const QFontMetrics metrics(ScreenFont(kRowFont, Scale()));
    int widest = anchor.Width() / Scale();
    for (const std::u16string& item : items) {
        const int width = metrics.horizontalAdvance(QString::fromStdU16String(item)) / Scale();
        widest = std::max(widest, width + 2 * kTextInset + MorvaneListBox::kScrollWidth);
    }
    const int width = std::min(widest, client.Width());
    const int top = anchor.top / Scale();
    const int bottom = anchor.bottom / Scale();
    const bool below = client.bottom - bottom >= top - client.top;
    model_ = std::make_unique<MorvaneListBox>(std::move(items), width,
                                              below ? client.bottom - bottom : top - client.top, selected);
    const int left = std::clamp(anchor.left / Scale(), client.left, client.right - width);
    const int start = below ? bottom : top - model_->Height();
    SetPlace(Rect{left, start, left + width, start + model_->Height()}.Scaled(Scale()));
    raise();
    show();
}

void MorvaneListBoxWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const SkinColours& colours = site_.Colours();
    painter.fillRect(QRect(0, 0, Place().Width(), Place().Height()),
                     ToQColor(colours[SkinColour::listBoxBorder]));
    painter.fillRect(
        ToQRect(Rect{0, 0, Place().Width(), Place().Height()}.Inset(MorvaneListBox::kBorder * Scale())),
        ToQColor(colours[SkinColour::sheet]));
    const QFont font = ScreenFont(kRowFont, Scale());
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const int count = static_cast<int>(model_->Items().size());
    for (int row = model_->FirstVisible();
         row < std::min(count, model_->FirstVisible() + model_->VisibleRows()); ++row) {
        const Rect place = model_->RowRect(row).Scaled(Scale());
        const bool chosen = row == model_->Selected();
        if (chosen) {
            painter.fillRect(ToQRect(place), ToQColor(colours[SkinColour::chosen]));
        }
        painter.setPen(ToQColor(colours[chosen ? SkinColour::chosenInk : SkinColour::sheetInk]));
        const QRect text = ToQRect(place).adjusted(kTextInset * Scale(), 0, -Scale(), 0);
        const QString item = QString::fromStdU16String(model_->Items()[static_cast<std::size_t>(row)]);
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(item, Qt::ElideRight, text.width()));
    }
    if (model_->Scrolls()) {
        PaintScrollKeys(painter);
    }
}

void MorvaneListBoxWnd::PaintScrollKeys(QPainter& painter) {
    if (density_ != Density()) {
        density_ = Density();
        scrollKeys_ =
            ToQImage(LoadDense(site_.CurrentSkin().FindSkinValue("ListBoxButtons"), Scale(), Density()));
    }
    if (scrollKeys_.isNull()) {
        return;
    }
    // "Up" over "down"; the up look at left, the pressed one at right.
    const int size = scrollKeys_.width() / 2;
    const auto draw = [&](const Rect& place, int row, bool pressed) {
        const Rect at = place.Scaled(Scale());
        DrawPicture(painter, QPointF(at.left, at.top), scrollKeys_,
                    QRect(pressed ? size : 0, row * size, size, size));
    };
    draw(model_->UpKey(), 0, model_->UpPressed());
    draw(model_->DownKey(), 1, model_->DownPressed());
}

int MorvaneListBoxWnd::AccessibleCellCount() const {
    return static_cast<int>(model_->Items().size());
}

QString MorvaneListBoxWnd::AccessibleCellName(int index) const {
    return QString::fromStdU16String(model_->Items()[static_cast<std::size_t>(index)]);
}

QRect MorvaneListBoxWnd::AccessibleCellRect(int index) const {
    return OnDesktop(model_->RowRect(index).Scaled(Scale()));
}

void MorvaneListBoxWnd::OnPenDown(Point at) {
    model_->PenDown(Units(at));
    if (model_->UpPressed() || model_->DownPressed()) {
        Set(kScrollTimer, kScrollMs);
    }
    InvalidateAll();
}

void MorvaneListBoxWnd::OnPenMove(Point at) {
    model_->PenMove(Units(at));
    InvalidateAll();
}

void MorvaneListBoxWnd::OnPenUp(Point at) {
    Kill(kScrollTimer);
    Choose(model_->PenUp(Units(at)));
}

void MorvaneListBoxWnd::OnTimer(int /*id*/) {
    model_->Scroll(model_->UpPressed() ? -1 : 1);
    InvalidateAll();
}

void MorvaneListBoxWnd::wheelEvent(QWheelEvent* event) {
    model_->Scroll(-event->angleDelta().y() / kWheelStep);
    InvalidateAll();
    event->accept();
}

bool MorvaneListBoxWnd::Key(const QKeyEvent& event) {
    for (const auto& [qtKey, key] : kListKeys) {
        if (event.key() == qtKey) {
            Choose(model_->Key(key));
            return true;
        }
    }
    if (const QString text = event.text(); !text.isEmpty() && text.front().isPrint()) {
        model_->Seek(text.front().unicode());
        InvalidateAll();
    }
    return !event.text().isEmpty();
}

void MorvaneListBoxWnd::Choose(std::optional<int> row) {
    InvalidateAll();
    if (row) {
        // The owner ends this window.
        const auto chosen = chosen_;
        chosen(*row);
    }
}

}  // namespace quorix
