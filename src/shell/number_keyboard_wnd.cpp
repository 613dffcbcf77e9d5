#include "shell/number_keyboard_wnd.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include "platform/qt/conversions.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

/// The pictures are drawn for portrait: six columns of cells of this height.
constexpr int kPictureColumns = 6;
constexpr int kPictureCellHeight = 28;
constexpr int kPictureCellWidth = 39;

/// Whether a window takes typed text: by the name of its class, or as an expression box by its title.
bool TakesText(const QWidget& window) {
    const QString name = QString::fromLatin1(window.metaObject()->className());
    return name.contains(QStringLiteral("EDIT")) || name.contains(QStringLiteral("Edit")) ||
           name.contains(QStringLiteral("edit")) ||
           window.windowTitle().compare(QStringLiteral("MorvaneCalEdit"), Qt::CaseInsensitive) == 0;
}

void Type(QWidget& window, int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&window, &down);
    QApplication::sendEvent(&window, &up);
}

}  // namespace

MorvaneCalNumberKeyboardWnd::MorvaneCalNumberKeyboardWnd(WindowBase& parent, WindowBase& receiver,
                                                         ModuleSite& site, PadKind kind)
    : WindowBase(&parent),
      receiver_(receiver),
      site_(site),
      kind_(kind),
      pad_(kind, site.Frame().CurrentOrientation() == Orientation::landscape) {
    setFocusPolicy(Qt::NoFocus);
    LeaveFocusAlone(QApplication::focusWidget());
    focusWatch_ = connect(qApp, &QApplication::focusChanged, this,
                          [this](QWidget* /*old*/, QWidget* now) { LeaveFocusAlone(now); });
}

MorvaneCalNumberKeyboardWnd::~MorvaneCalNumberKeyboardWnd() {
    // The base gives up its focus when this part of the window has gone already.
    disconnect(focusWatch_);
}

/// A press would pass the focus on to the parent; one on the proxy of the focus's owner leaves it there.
void MorvaneCalNumberKeyboardWnd::LeaveFocusAlone(QWidget* focus) {
    setFocusProxy(focus != nullptr && TakesText(*focus) ? focus : nullptr);
}

void MorvaneCalNumberKeyboardWnd::OnScaleChanged() {
    density_ = 0;
    InvalidateAll();
}

void MorvaneCalNumberKeyboardWnd::LayOut(const Rect& place) {
    pad_.SetLandscape(site_.Frame().CurrentOrientation() == Orientation::landscape);
    SetPlace(place.Scaled(Scale()));
    InvalidateAll();
}

void MorvaneCalNumberKeyboardWnd::SetPadMode(int padMode) {
    pad_.SetMode(padMode);
    InvalidateAll();
}

void MorvaneCalNumberKeyboardWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    if (density_ != Density()) {
        density_ = Density();
        const auto load = [this](std::string_view key) {
            return ToQImage(LoadDense(site_.CurrentSkin().FindSkinValue(key), Scale(), Density()));
        };
        keys_ = load(kind_ == PadKind::letters ? "Keyboard" : "NumberKeyboard");
        functions_ = load("NumberKeyboardFunctions");
    }
    painter.fillRect(QRect(0, 0, Place().Width(), Place().Height()), ToQColor(site_.BodyColour()));
    for (int cell = 0; cell < pad_.Columns() * pad_.Rows(); ++cell) {
        if (pad_.KeyOf(cell) && (cell >= kPadCommandCells || pad_.FirstJoined(cell) == cell)) {
            PaintCell(painter, cell);
        }
    }
}

/// Pictures hold the pad as portrait has it; landscape takes each key from there by its meaning.
void MorvaneCalNumberKeyboardWnd::PaintCell(QPainter& painter, int cell) {
    const Rect place = pad_.RectOf(cell).Scaled(Scale());
    const bool down = cell == pressed_;
    const bool command = cell < kPadCommandCells;
    const QImage& picture = command ? functions_ : keys_;
    if (picture.isNull()) {
        return;
    }
    const double unit = picture.devicePixelRatio() * Scale();
    NumberPad portrait(kind_, false);
    portrait.SetMode(pad_.Mode());
    int from = cell;
    while (!command && portrait.KeyOf(from) && portrait.KeyOf(from) != pad_.KeyOf(cell)) {
        ++from;
    }
    const Rect source = portrait.RectOf(from);
    const int row = command ? pad_.Mode() * kPictureCellHeight : source.top;
    const int looks = command ? kPadCommandCells : kPictureColumns;
    const int left = source.left + (down ? looks * kPictureCellWidth : 0);
    const auto pixels = [unit](int units) { return static_cast<int>(units * unit); };
    const QRect part(pixels(left), pixels(row), pixels(source.Width()), pixels(kPictureCellHeight));
    painter.setClipRect(ToQRect(place));
    DrawPicture(painter, QPointF(place.left, place.top), picture, part);
    painter.setClipping(false);
}

void MorvaneCalNumberKeyboardWnd::OnPenDown(Point at) {
    const int cell = pad_.CellAt(at, Scale());
    pressed_ = pad_.KeyOf(cell) ? pad_.FirstJoined(cell) : -1;
    InvalidateAll();
}

void MorvaneCalNumberKeyboardWnd::OnPenUp(Point at) {
    const int pressed = std::exchange(pressed_, -1);
    InvalidateAll();
    if (pressed < 0 || !pad_.RectOf(pressed).Scaled(Scale()).Contains(at)) {
        return;
    }
    site_.Frame().KeySound();
    Press(*pad_.KeyOf(pad_.CellAt(at, Scale())));
}

QString MorvaneCalNumberKeyboardWnd::AccessibleCellName(int index) const {
    const auto key = pad_.KeyOf(index);
    if (!key || pad_.FirstJoined(index) != index) {
        return {};
    }
    switch (key->kind) {
        case PadKey::Kind::command: return commandNames_[static_cast<std::size_t>(key->value)];
        case PadKey::Kind::left: return QStringLiteral("cursor left");
        case PadKey::Kind::right: return QStringLiteral("cursor right");
        default: break;
    }
    return key->value == '\b' ? QStringLiteral("backspace") : QString(QChar(key->value));
}

QRect MorvaneCalNumberKeyboardWnd::AccessibleCellRect(int index) const {
    return OnDesktop(pad_.RectOf(index).Scaled(Scale()));
}

void MorvaneCalNumberKeyboardWnd::PressAccessibleCell(int index) {
    if (const auto key = pad_.KeyOf(index)) {
        site_.Frame().KeySound();
        Press(*key);
    }
}

void MorvaneCalNumberKeyboardWnd::Press(const PadKey& key) {
    if (key.kind == PadKey::Kind::command) {
        receiver_.SendMessage(MSG_PAD_COMMAND, key.value, padCookie_);
        return;
    }
    QWidget* const focus = QApplication::focusWidget();
    if (focus == nullptr || !TakesText(*focus)) {
        return;
    }
    switch (key.kind) {
        case PadKey::Kind::left: Type(*focus, Qt::Key_Left, {}); break;
        case PadKey::Kind::right: Type(*focus, Qt::Key_Right, {}); break;
        default:
            if (key.value == '\b') {
                Type(*focus, Qt::Key_Backspace, QString(QChar(key.value)));
            } else {
                Type(*focus, 0, QString(QChar(key.value)));
            }
            break;
    }
}

}  // namespace quorix
