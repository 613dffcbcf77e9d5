// The keys of the desktop: those of the window, those of the calculator.

#include <QKeyEvent>
#include <optional>

#include "shell/main_frame_wnd.h"

namespace quorix {

namespace {

constexpr char16_t kBackspaceCharacter = 8;
constexpr char16_t kTabCharacter = 9;
constexpr char16_t kEnterCharacter = 13;

std::optional<HardKey> HardKeyOf(int qtKey) {
    switch (qtKey) {
        case Qt::Key_Up: return HardKey::up;
        case Qt::Key_Down: return HardKey::down;
        case Qt::Key_Left: return HardKey::left;
        case Qt::Key_Right: return HardKey::right;
        case Qt::Key_Delete: return HardKey::remove;
        default: return std::nullopt;
    }
}

/// Keys that walk the category chooser.
constexpr std::pair<int, SheetKey> kSheetKeys[] = {
    {Qt::Key_Left, SheetKey::left},     {Qt::Key_Right, SheetKey::right},
    {Qt::Key_Up, SheetKey::up},         {Qt::Key_Down, SheetKey::down},
    {Qt::Key_Tab, SheetKey::next},      {Qt::Key_Backtab, SheetKey::previous},
    {Qt::Key_Return, SheetKey::choose}, {Qt::Key_Enter, SheetKey::choose},
    {Qt::Key_Space, SheetKey::choose},  {Qt::Key_Escape, SheetKey::close},
};

}  // namespace

/// Keys that edit, copy and paste: for the display where it takes keys, else for the window of the category.
bool MainFrameWnd::EditKey(const QKeyEvent& event) {
    const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    const bool here = frame_->TakesKeys();
    const ModuleWindow window = EntryOf(frame_->CurrentCategory()).window;
    switch (event.key()) {
        case Qt::Key_C:
            here ? led_->Copy(shift) : void(SendToModule(window, MSG_COPY, shift ? 1 : 0, 0));
            return true;
        case Qt::Key_V: here ? led_->PasteText() : void(SendToModule(window, MSG_PASTE, 0, 0)); return true;
        case Qt::Key_Z: shift ? frame_->Redo() : frame_->Undo(); return true;
        case Qt::Key_Y: frame_->Redo(); return true;
        default: return false;
    }
}

bool MainFrameWnd::ChooserKeyPressed(const QKeyEvent& event) {
    if (!frame_->ChooserOpen()) {
        return false;
    }
    for (const auto& [qtKey, key] : kSheetKeys) {
        if (event.key() == qtKey) {
            chooser_->Key(key);
        }
    }
    return true;
}

bool MainFrameWnd::DesktopKey(const QKeyEvent& event) {
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    if (event.key() == Qt::Key_F9) {
        view_.shape = NextShape(view_.shape);
    } else if (control && (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal)) {
        view_.zoomPercent = ZoomAfter(view_.zoomPercent, 1);
    } else if (control && event.key() == Qt::Key_Minus) {
        view_.zoomPercent = ZoomAfter(view_.zoomPercent, -1);
    } else if (event.key() == Qt::Key_F11) {
        ToggleFullScreen();
        return true;
    } else if (event.key() == Qt::Key_F1) {
        OpenHelp();
        return true;
    } else if (control && event.key() >= Qt::Key_1 && event.key() <= Qt::Key_9) {
        frame_->SwitchCategory(
            frame_->Settings().categoryOrder[static_cast<std::size_t>(event.key() - Qt::Key_1)]);
        return true;
    } else if (control && event.key() == Qt::Key_Q) {
        Quit();
        return true;
    } else {
        return control && (EditKey(event) || event.key() != Qt::Key_Control);
    }
    ApplyView();
    return true;
}

void MainFrameWnd::keyPressEvent(QKeyEvent* event) {
    if ((popup_ && popup_->Key(*event)) || DesktopKey(*event) || ChooserKeyPressed(*event)) {
        return;
    }
    if (const auto hardKey = HardKeyOf(event->key())) {
        hardKeysDown_.set(static_cast<std::size_t>(*hardKey));
        frame_->KeyDown(*hardKey);
        return;
    }
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: frame_->Character(kEnterCharacter); return;
        case Qt::Key_Backspace: frame_->Character(kBackspaceCharacter); return;
        case Qt::Key_Tab: frame_->Character(kTabCharacter); return;
        default: break;
    }
    for (const char16_t character : event->text().toStdU16String()) {
        frame_->Character(character);
    }
}

void MainFrameWnd::keyReleaseEvent(QKeyEvent* event) {
    const auto hardKey = HardKeyOf(event->key());
    if (!hardKey || event->isAutoRepeat()) {
        return;
    }
    // The release of a key whose press a list, the chooser or a field took is none of the frame's.
    const auto index = static_cast<std::size_t>(*hardKey);
    if (hardKeysDown_.test(index)) {
        hardKeysDown_.reset(index);
        frame_->KeyUp(*hardKey);
    }
}

}  // namespace quorix
