#include "frontends/morvane_cal_edit_wnd.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <cmath>
#include <cstdlib>

#include "platform/qt/conversions.h"
#include "platform/qt/pictures.h"
#include "platform/qt/popup_menu.h"

namespace quorix {

namespace {

/// Of this window: a pen held still on the text.
constexpr int kGestureTimer = 1118;
/// A pen that strays farther than this, in device pixels, is no longer held still.
constexpr int kStillRadius = 6;
/// Base line of the text below the middle of the box, in units.
constexpr double kBaselineBelowMiddle = 5.4;

struct EditingKey {
    int qtKey;
    std::int32_t code;
};

constexpr EditingKey kEditingKeys[] = {
    {Qt::Key_Left, KEY_LEFT}, {Qt::Key_Right, KEY_RIGHT}, {Qt::Key_Delete, KEY_DELETE}};

}  // namespace

MorvaneCalEditWnd::MorvaneCalEditWnd(WindowBase* parent, int childId, const CalculatorSettings& settings,
                                     std::function<void()> useInArithmetic)
    : WindowBase(parent, childId),
      edit_(settings, {.invalidate = [this] { Changed(); }, .useInArithmetic = std::move(useInArithmetic)}) {
    MakeSpokenLinesAccessible();
    // The number pad types only into windows that call themselves an edit.
    setWindowTitle(QStringLiteral("MorvaneCalEdit"));
    setAccessibleName(QStringLiteral("expression"));
    setFocusPolicy(Qt::StrongFocus);
}

QString MorvaneCalEditWnd::SpokenText() const {
    return PaintedText(edit_.GetLine());
}

void MorvaneCalEditWnd::Changed() {
    InvalidateAll();
    AnnounceText(*this, SpokenText());
}

void MorvaneCalEditWnd::SetBorderColour(ColorRef colour) {
    borderColour_ = colour;
    InvalidateAll();
}

void MorvaneCalEditWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    const int width = Place().Width();
    const int height = Place().Height();
    const std::vector<int> widths = line_.MeasureTokens(edit_.GetLine(), edit_.GetTokenLengths(), Scale());
    edit_.UpdateView(widths, width, Scale());
    const QColor field = QColor::fromRgb(edit_.FieldColour());
    painter.fillRect(0, 0, width, height, edit_.Framed() ? ToQColor(borderColour_) : field);
    painter.fillRect(1, 1, width - 2, height - 2, field);
    const double baseline = std::floor(height / 2.0 + kBaselineBelowMiddle * Scale() + 0.5);
    line_.Paint(painter, edit_.Line(), widths, edit_.Colours(),
                {.row = {1, 1, width - 1, height - 1},
                 .left = kCalEditInset * Scale(),
                 .baseline = baseline,
                 .endCursorWidth = kCalEditCursorRoom * Scale()},
                Scale());
}

void MorvaneCalEditWnd::OnTimer(int id) {
    Kill(id);
    if (id == kGestureTimer) {
        OpenContextMenu(QCursor::pos());
    }
}

void MorvaneCalEditWnd::OnPenDown(Point at) {
    pressedAt_ = at;
    menuOpened_ = false;
    if (edit_.AllowsGesture() && holdInterval_ > 0) {
        Set(kGestureTimer, holdInterval_);
    }
}

void MorvaneCalEditWnd::OnPenMove(Point at) {
    if (std::abs(at.x - pressedAt_.x) > kStillRadius || std::abs(at.y - pressedAt_.y) > kStillRadius) {
        Kill(kGestureTimer);
    }
}

void MorvaneCalEditWnd::OnPenUp(Point at) {
    Kill(kGestureTimer);
    if (menuOpened_) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    edit_.Tap(at.x, Scale());
    if (auto* const parent = dynamic_cast<WindowBase*>(parentWidget())) {
        parent->SendMessage(kCalEditTapped, reinterpret_cast<MessageParam>(this));
    }
}

bool MorvaneCalEditWnd::EditShortcut(const QKeyEvent& event) {
    const struct {
        QKeySequence::StandardKey shortcut;
        std::function<void()> run;
    } shortcuts[] = {
        {QKeySequence::Copy, [this] { edit_.RunMenu(MENU_COPY, clipboard_); }},
        {QKeySequence::Cut, [this] { edit_.RunMenu(MENU_CUT, clipboard_); }},
        {QKeySequence::Paste, [this] { edit_.RunMenu(MENU_PASTE, clipboard_); }},
        {QKeySequence::Undo, [this] { edit_.Undo(); }},
        {QKeySequence::Redo, [this] { edit_.Redo(); }},
    };
    for (const auto& [shortcut, run] : shortcuts) {
        if (event.matches(shortcut)) {
            run();
            return true;
        }
    }
    return false;
}

void MorvaneCalEditWnd::keyPressEvent(QKeyEvent* event) {
    if (EditShortcut(*event)) {
        return;
    }
    for (const auto& [qtKey, code] : kEditingKeys) {
        if (event->key() == qtKey) {
            edit_.Key(code);
            return;
        }
    }
    bool taken = false;
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        for (const char16_t character : event->text().toStdU16String()) {
            taken = edit_.Character(character) || taken;
        }
    }
    event->setAccepted(taken);
}

void MorvaneCalEditWnd::focusInEvent(QFocusEvent* /*event*/) {
    edit_.SetFocused(true);
}

void MorvaneCalEditWnd::focusOutEvent(QFocusEvent* event) {
    // A menu of the box takes the keyboard only for as long as it is open.
    if (event->reason() != Qt::PopupFocusReason) {
        edit_.SetFocused(false);
    }
}

void MorvaneCalEditWnd::contextMenuEvent(QContextMenuEvent* event) {
    OpenContextMenu(event->globalPos());
}

void MorvaneCalEditWnd::OpenContextMenu(QPoint globalPosition) {
    if (!edit_.AllowsGesture()) {
        return;
    }
    menuOpened_ = true;
    setFocus(Qt::PopupFocusReason);
    edit_.SetFocused(true);
    QMenu* const menu = NewPopupMenu(this, Scale() * Zoom());
    for (const ContextMenuItem& item : edit_.Menu(clipboard_)) {
        QAction* const action = menu->addAction(ToQString(item.text));
        action->setEnabled(item.enabled);
        connect(action, &QAction::triggered, this, [this, id = item.id] { edit_.RunMenu(id, clipboard_); });
    }
    menu->popup(globalPosition);
}

}  // namespace quorix
