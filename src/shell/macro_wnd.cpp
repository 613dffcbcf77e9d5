#include "shell/macro_wnd.h"

#include <QKeyEvent>
#include <QPainter>
#include <cmath>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

/// Places in logical units of the window.
struct MacroLayout {
    Rect chooser;
    Rect name;
    Rect list;
    Rect body;
    Rect edit;
    Rect remark;
    Rect letters;
};

namespace {

constexpr MacroLayout kPortrait = {{0, 0, 39, 28},     {41, 2, 194, 25}, {195, 0, 234, 28}, {1, 30, 194, 53},
                                   {195, 28, 234, 56}, {1, 58, 194, 81}, {195, 56, 234, 84}};
constexpr MacroLayout kLandscape = {{0, 0, 39, 27},    {41, 2, 156, 25},   {157, 0, 196, 27},
                                    {198, 2, 311, 25}, {273, 27, 312, 54}, {1, 29, 232, 52},
                                    {234, 27, 273, 54}};
/// A square screen has no room below the fields for five rows of letters: the two that are typed into move
/// up, the rest lies covered.
constexpr MacroLayout kSquareLetters = {{0, 0, 39, 28},    {41, 2, 194, 23},   {195, 0, 234, 28},
                                        {1, 60, 194, 83},  {195, 56, 234, 84}, {1, 24, 194, 45},
                                        {195, 56, 234, 84}};
constexpr Rect kSquareLettersPlace{3, 100, 237, 240};

enum ButtonId : int { BUTTON_LIST = 1, BUTTON_LETTERS = 2, BUTTON_EDIT = 3 };

constexpr double kFieldText = 12;
constexpr TextFont kBodyFont = {.em = 12};
constexpr int kTextInset = 5;

/// Commands of the letter keyboard.
enum PadCommand : int { PAD_DONE = 0, PAD_CLEAR = 1, PAD_LIST = 2 };

}  // namespace

MacroWnd::MacroWnd(WindowBase& frame, ModuleSite& site, int category)
    : ModuleWnd(frame, site, category),
      frame_(frame),
      name_(new QLineEdit(this)),
      remark_(new QLineEdit(this)),
      list_(new MorvaneButton(*this, site, BUTTON_LIST)),
      letters_(new MorvaneButton(*this, site, BUTTON_LETTERS)),
      edit_(new MorvaneButton(*this, site, BUTTON_EDIT)) {
    name_->setPlaceholderText(QStringLiteral("Name"));
    name_->setAccessibleName(QStringLiteral("macro name"));
    remark_->setPlaceholderText(QStringLiteral("Remark"));
    remark_->setAccessibleName(QStringLiteral("macro remark"));
    list_->SetText(QStringLiteral("\u25BE"));
    list_->setAccessibleName(QStringLiteral("list of macros"));
    list_->SetCapRow(CAP_MENU);
    letters_->SetText(QStringLiteral("abc"));
    letters_->setAccessibleName(QStringLiteral("letter keyboard"));
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Site().Frame().TheMacroEditor().SetName(text.toStdU16String());
        InvalidateAll();
    });
    connect(remark_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Site().Frame().TheMacroEditor().SetRemark(text.toStdU16String());
    });
    Handle(MSG_BUTTON, [this](MessageParam id, MessageParam) {
        OnButton(static_cast<int>(id));
        return 0;
    });
    Handle(MSG_MACRO_KEYBOARD, [this](MessageParam refresh, MessageParam) {
        if (refresh != 0) {
            Refresh();
        } else {
            CloseLetters();
        }
        return 0;
    });
    Handle(MSG_PAD_COMMAND, [this](MessageParam command, MessageParam) {
        if (command == PAD_CLEAR) {
            (remark_->hasFocus() ? remark_ : name_)->clear();
            Site().Frame().TheMacroEditor().SetName(name_->text().toStdU16String());
            Site().Frame().TheMacroEditor().SetRemark(remark_->text().toStdU16String());
        } else {
            ToggleLetters();
            if (command == PAD_LIST) {
                OpenNames();
            }
        }
        return 0;
    });
    Handle(MSG_SKIN_CHANGED, [this](MessageParam, MessageParam) {
        LayOut();
        if (keyboard_) {
            keyboard_->ReloadPictures();
        }
        return 0;
    });
    Refresh();
}

MacroWnd::~MacroWnd() {
    delete keyboard_;
}

std::unique_ptr<ModuleWnd> MacroWnd::Make(WindowBase& frame, ModuleSite& site, int category) {
    return std::make_unique<MacroWnd>(frame, site, category);
}

const MacroLayout& MacroWnd::Layout() const {
    switch (Site().Frame().CurrentOrientation()) {
        case Orientation::landscape: return kLandscape;
        case Orientation::square: return keyboard_ ? kSquareLetters : kPortrait;
        default: return kPortrait;
    }
}

Rect MacroWnd::ChooserKey() const {
    const Rect place = WindowPlaceOf(Category(), Site().Frame().CurrentOrientation());
    const Rect key = Layout().chooser;
    return {place.left + key.left, place.top + key.top, place.left + key.right, place.top + key.bottom};
}

void MacroWnd::PlaceField(QLineEdit& field, const Rect& units) {
    const double pixels = Scale() * Zoom();
    const auto at = [pixels](int unit) { return static_cast<int>(std::lround(unit * pixels)); };
    field.setGeometry(at(units.left), at(units.top), at(units.Width()), at(units.Height()));
    QFont font = ScreenFont({.em = kFieldText}, 1);
    font.setPixelSize(std::max(1, static_cast<int>(kFieldText * pixels)));
    field.setFont(font);
    const SkinColours& colours = Site().Colours();
    field.setStyleSheet(
        QStringLiteral("QLineEdit { background: %1; color: %2; border: 1px solid %3; padding-left: %4px; }")
            .arg(ToQColor(colours[SkinColour::sheet]).name(), ToQColor(colours[SkinColour::sheetInk]).name(),
                 ToQColor(colours[SkinColour::editBoxBorder]).name())
            .arg(at(kTextInset) - 1));
}

void MacroWnd::LayOut() {
    ModuleWnd::LayOut();
    const MacroLayout& layout = Layout();
    PlaceField(*name_, layout.name);
    PlaceField(*remark_, layout.remark);
    list_->LayOut(layout.list);
    letters_->LayOut(layout.letters);
    edit_->LayOut(layout.edit);
    if (keyboard_) {
        const Orientation orientation = Site().Frame().CurrentOrientation();
        keyboard_->LayOut(orientation == Orientation::square ? kSquareLettersPlace
                                                             : quorix::LayoutOf(orientation).lowerPanel);
    }
    InvalidateAll();
}

void MacroWnd::OnScaleChanged() {
    InvalidateAll();
}

void MacroWnd::hideEvent(QHideEvent* /*event*/) {
    CloseLetters();
}

/// What the fields leave over: the keys that end a field are no C and no "=" for the line above it.
void MacroWnd::keyPressEvent(QKeyEvent* event) {
    const bool ends =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape;
    if (ends) {
        frame_.setFocus();
    }
    event->setAccepted(ends);
}

void MacroWnd::CloseLetters() {
    if (keyboard_) {
        // It may be within a handler of its own.
        keyboard_->hide();
        keyboard_->deleteLater();
        keyboard_ = nullptr;
        LayOut();
    }
}

void MacroWnd::Refresh() {
    MacroEditor& editor = Site().Frame().TheMacroEditor();
    name_->setText(QString::fromStdU16String(editor.Name()));
    remark_->setText(QString::fromStdU16String(editor.Remark()));
    InvalidateAll();
}

void MacroWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    painter.fillRect(QRect(0, 0, Place().Width(), Place().Height()), ToQColor(Site().BodyColour()));
    PaintChooserKey(painter);
    const CMainFrame& frame = Site().Frame();
    edit_->SetLatched(frame.MacroEditing());
    edit_->SetText(frame.MacroEditing() ? QStringLiteral("save") : QStringLiteral("edit"));
    const Rect body = Layout().body.Scaled(Scale());
    const SkinColours& colours = Site().Colours();
    const QRect box(body.left, body.top, body.Width(), body.Height());
    painter.fillRect(box, ToQColor(colours[SkinColour::editBoxBorder]));
    painter.fillRect(box.adjusted(1, 1, -1, -1), ToQColor(colours[SkinColour::sheet]));
    painter.setFont(ScreenFont(kBodyFont, Scale()));
    painter.setPen(ToQColor(colours[SkinColour::sheetInk]));
    const QString header = QString::fromStdU16String(Site().Frame().TheMacroEditor().Header());
    const QRect text = box.adjusted(kTextInset * Scale(), 0, -kTextInset * Scale(), 0);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(header, Qt::ElideRight, text.width()));
}

void MacroWnd::OpenNames() {
    std::vector<std::u16string> names = Site().Frame().MacroNames();
    names.emplace_back(u"New macro...");
    const Rect list = Layout().list.Scaled(Scale());
    Site().OpenPopupAt(POPUP_MACRO_NAMES,
                       {Place().left + Layout().name.left * Scale(), Place().top + list.top,
                        Place().left + list.right, Place().top + list.bottom},
                       names);
}

void MacroWnd::ToggleLetters() {
    if (keyboard_) {
        CloseLetters();
        return;
    }
    keyboard_ = new MorvaneCalNumberKeyboardWnd(frame_, *this, Site(), PadKind::letters);
    keyboard_->SetCommandNames(
        {QStringLiteral("done"), QStringLiteral("clear"), QStringLiteral("list of macros")});
    LayOut();
    keyboard_->show();
    if (!remark_->hasFocus()) {
        name_->setFocus();
    }
}

void MacroWnd::OnButton(int id) {
    Site().Frame().KeySound();
    switch (id) {
        case BUTTON_LIST: OpenNames(); break;
        case BUTTON_LETTERS: ToggleLetters(); break;
        case BUTTON_EDIT:
            Site().Frame().ToggleMacroEditing();
            frame_.setFocus();
            Refresh();
            break;
        default: break;
    }
}

}  // namespace quorix
