// The main window as the home of other windows: modules, lists, dialogs, help.

#include <QApplication>
#include <QMessageBox>

#include "platform/path.h"
#include "platform/qt/conversions.h"
#include "shell/about_dialog.h"
#include "shell/main_frame_wnd.h"
#include "shell/module_factories.h"
#include "shell/preferences_dialog.h"

namespace quorix {

namespace {

constexpr std::u16string_view kManualFile = u"Quorix.htm";

}  // namespace

void MainFrameWnd::CreateModule(int category) {
    std::unique_ptr<ModuleWnd> module = MakeModuleWnd(*this, *this, category);
    if (!module) {
        return;
    }
    module->LayOut();
    module->show();
    chooser_->raise();
    modules_[static_cast<std::size_t>(EntryOf(category).window)] = std::move(module);
}

void MainFrameWnd::DestroyModule(ModuleWindow window) {
    // A window may ask for another category from within a handler of its own.
    if (auto& module = modules_[static_cast<std::size_t>(window)]) {
        module->hide();
        module.release()->deleteLater();
    }
}

void MainFrameWnd::ShowModule(ModuleWindow window, bool shown) {
    if (ModuleWnd* const module = Module(window)) {
        module->setVisible(shown);
    }
}

std::intptr_t MainFrameWnd::SendToModule(ModuleWindow window, int message, std::intptr_t first,
                                         std::intptr_t second) {
    ModuleWnd* const module = Module(window);
    return module != nullptr ? module->SendMessage(message, first, second) : 0;
}

void MainFrameWnd::ReloadSkin() {
    skin_.Select(frame_->Settings().skinFile);
    if (!skin_.LoadSkinPaths()) {
        ShowNotice(QStringLiteral("The skin cannot be read; the old pictures stay."));
    }
    LoadColours();
    loadedDensity_ = 0;
    for (const auto& module : modules_) {
        if (module) {
            module->SendMessage(MSG_SKIN_CHANGED);
            module->InvalidateAll();
        }
    }
    InvalidateAll();
}

void MainFrameWnd::ShowChooser(bool open) {
    if (!open) {
        chooser_->hide();
        return;
    }
    const int category = frame_->CurrentCategory();
    ModuleWnd* const module = Module(EntryOf(category).window);
    chooser_->Open(module != nullptr && category > kLastPanelCategory
                       ? module->ChooserKey()
                       : CellRect(frame_->CurrentOrientation(), {Panel::upper, CELL_CHOOSER}));
}

void MainFrameWnd::ShowNotice(const QString& text) {
    auto* const box = new QMessageBox(QMessageBox::Information, windowTitle(), text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setFont(FormFont(Scale() * Zoom()));
    box->open();
}

void MainFrameWnd::ShowMissing(std::u16string_view name) {
    ShowNotice(QStringLiteral("%1 is not part of this version.").arg(ToQString(name)));
}

void MainFrameWnd::OpenPreferences() {
    auto* const dialog = new PreferencesDialog(
        this, frame_->UserSettings(),
        {.folder = folder_, .skin = skin_, .sound = sound_, .pixelsPerUnit = Scale() * Zoom()});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        frame_->ApplyPreferences(dialog->Result());
        led_->SetDisplay(&frame_->Display(), static_cast<int>(frame_->Settings().tapHoldInterval));
    });
    dialog->open();
}

void MainFrameWnd::OpenAbout() {
    ShowAbout(this, Scale() * Zoom());
}

void MainFrameWnd::OpenHelp() {
    const std::filesystem::path manual = ResolvePath(folder_, kManualFile);
    // The desktop may give up when this window has gone.
    const auto showHere = [this, manual, alive = QPointer<MainFrameWnd>(this)] {
        if (!alive) {
            return;
        }
        if (!help_) {
            help_ = std::make_unique<HtmlWindow>();
        }
        if (!help_->ShowFile(manual)) {
            ShowNotice(
                QStringLiteral("The help file %1 is missing.").arg(QString::fromStdString(manual.string())));
        }
    };
    if (helpViewer_ == nullptr || !helpViewer_->Open(manual, showHere)) {
        showHere();
    }
}

void MainFrameWnd::RunTool(Tool tool) {
    switch (tool) {
        case Tool::preferences: OpenPreferences(); break;
        case Tool::help: OpenHelp(); break;
        case Tool::about: OpenAbout(); break;
        case Tool::exit: Quit(); break;
        case Tool::count: break;
    }
}

void MainFrameWnd::OpenPopup(PopupId id, PanelCell at, const std::vector<std::u16string>& items) {
    OpenPopupAt(id, CellRect(frame_->CurrentOrientation(), at).Scaled(Scale()), items);
}

void MainFrameWnd::OpenPopupAt(PopupId id, const Rect& at, const std::vector<std::u16string>& items) {
    ClosePopup();
    popup_ = new MorvaneListBoxWnd(*this, *this, id, [this, id](int row) {
        ClosePopup();
        if (row >= 0) {
            frame_->KeySound();
            frame_->PopupChosen(id, row);
        }
    });
    popup_->Open(at, items, -1);
    qApp->installEventFilter(this);
}

namespace {

/// The upper panel's cells, then the lower one's.
constexpr PanelCell CellOfIndex(int index) {
    return index < kUpperCellCount ? PanelCell{Panel::upper, index}
                                   : PanelCell{Panel::lower, index - kUpperCellCount};
}

}  // namespace

QString MainFrameWnd::AccessibleCellName(int index) const {
    const std::u16string_view name = frame_->SpokenName(CellOfIndex(index));
    return ToQString(name);
}

QRect MainFrameWnd::AccessibleCellRect(int index) const {
    return OnDesktop(CellRect(frame_->CurrentOrientation(), CellOfIndex(index)).Scaled(Scale()));
}

bool MainFrameWnd::AccessibleCellDown(int index) const {
    return frame_->Looks().LooksDown(CellOfIndex(index));
}

void MainFrameWnd::PressAccessibleCell(int index) {
    frame_->PressCell(CellOfIndex(index));
}

void MainFrameWnd::PlaySound(const std::filesystem::path& wav) {
    if (sound_ != nullptr && !wav.empty() && frame_->Settings().soundEnabled != 0) {
        sound_->Play(wav);
    }
}

void MainFrameWnd::ClosePopup() {
    if (popup_) {
        qApp->removeEventFilter(this);
        popup_->hide();
        // It may be within a handler of its own.
        popup_->deleteLater();
        popup_ = nullptr;
    }
}

/// A tap outside an open list closes it and does nothing else.
bool MainFrameWnd::eventFilter(QObject* watched, QEvent* event) {
    const bool press =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (popup_ && press && watched->isWidgetType() && watched != popup_) {
        ClosePopup();
        return true;
    }
    return WindowBase::eventFilter(watched, event);
}

}  // namespace quorix
