#include "shell/main_frame_wnd.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>
#include <iostream>
#include <optional>

#include "equations/tex_for_copy.h"
#include "platform/dense_picture.h"
#include "platform/path.h"
#include "platform/qt/pictures.h"
#include "shell/about_dialog.h"
#include "shell/module_factories.h"
#include "shell/preferences_dialog.h"

namespace quorix {

namespace {

constexpr std::u16string_view kManualFile = u"Quorix.htm";

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

/// Above a module's window the word "Landscape" has more room, in logical units.
constexpr int kLandscapeWordBottomOfWindows = 50;

/// Keys that walk the category chooser.
constexpr std::pair<int, SheetKey> kSheetKeys[] = {
    {Qt::Key_Left, SheetKey::left},     {Qt::Key_Right, SheetKey::right},
    {Qt::Key_Up, SheetKey::up},         {Qt::Key_Down, SheetKey::down},
    {Qt::Key_Tab, SheetKey::next},      {Qt::Key_Backtab, SheetKey::previous},
    {Qt::Key_Return, SheetKey::choose}, {Qt::Key_Enter, SheetKey::choose},
    {Qt::Key_Space, SheetKey::choose},  {Qt::Key_Escape, SheetKey::close},
};

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

MainFrameWnd::MainFrameWnd(const std::filesystem::path& programFolder, SoundPlayer* sound,
                           HelpViewer* helpViewer)
    : folder_(programFolder),
      view_(LoadViewSettings(programFolder)),
      skin_(programFolder, view_.Screen()),
      sound_(sound),
      helpViewer_(helpViewer) {
    setWindowTitle(QStringLiteral("Quorix"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(windowTitle());
    StandAlone();
    MakeCellsAccessible();
}

MainFrameWnd::~MainFrameWnd() = default;

bool MainFrameWnd::Create() {
    led_ = std::make_unique<LedWnd>(this);
    led_->SetTexConverter(TexForCopy);
    chooser_ = std::make_unique<ToolsPanelWnd>(*this, *this);
    frame_ = std::make_unique<CMainFrame>(CMainFrame::Surroundings{.folder = folder_,
                                                                   .host = *this,
                                                                   .clock = clock_,
                                                                   .frameTimers = this,
                                                                   .displayTimers = led_.get(),
                                                                   .waitCursor = &waitCursor_,
                                                                   .sound = sound_},
                                          view_.Screen());
    hint_ = std::make_unique<HintWnd>(this);
    names_ = std::make_unique<TypeAheadWnd>(this, frame_->Names());
    skin_.Select(frame_->Settings().skinFile);
    led_->SetDisplay(&frame_->Display(), static_cast<int>(frame_->Settings().tapHoldInterval));
    if (!ApplyView()) {
        return false;
    }
    frame_->Start();
    if (view_.position) {
        move(*view_.position);
    }
    return true;
}

std::filesystem::path MainFrameWnd::SkinPathTried() const {
    return folder_ / std::filesystem::path(kInterfacesFolder) / std::filesystem::path(skin_.SkinFile());
}

void MainFrameWnd::Quit() {
    if (ground_) {
        ToggleFullScreen();
    }
    // A window that has just become one of its own closes as such from the message loop only.
    QTimer::singleShot(0, this, &QWidget::close);
}

void MainFrameWnd::Raise() {
    QWidget* const top = window();
    top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
    top->show();
    top->raise();
    top->activateWindow();
}

bool MainFrameWnd::ApplyView() {
    const DeviceScreen screen = view_.Screen();
    skin_.SetScreen(screen);
    const bool skinRead = skin_.LoadSkinPaths();
    SetScale(screen.Scale());
    LoadColours();
    led_->SetTexButton(folder_ / "Resources" / (Scale() == 2 ? "TexButton_VGA.png" : "TexButton.png"));
    loadedDensity_ = 0;
    LayOut();
    SetZoom(ZoomNow());
    frame_->SetScreen(screen);
    for (const auto& module : modules_) {
        if (module) {
            module->LayOut();
        }
    }
    return skinRead;
}

/// On the whole screen the largest of the zooms that fits.
double MainFrameWnd::ZoomNow() const {
    if (!ground_) {
        return view_.Zoom();
    }
    const double room = ground_->RoomFor({Place().Width(), Place().Height()});
    double zoom = 1;
    for (const double step : {1.5, 2.0}) {
        zoom = step <= room ? step : zoom;
    }
    return zoom;
}

void MainFrameWnd::ToggleFullScreen() {
    if (ground_) {
        const auto ground = std::exchange(ground_, nullptr);
        ground->GiveBack(*this);
        ApplyView();
        if (view_.position) {
            move(*view_.position);
        }
    } else {
        view_.position = pos();
        ground_ = std::make_unique<FullScreenGround>(ToQColor(bodyColour_), [this] { Quit(); });
        ground_->Take(*this);
        ApplyView();
    }
}

void MainFrameWnd::LoadColours() {
    colours_ = {};
    if (const auto path = skin_.FindSkinValue("BoderColores"); !path.empty()) {
        colours_.LoadColours(path);
    }
    led_->SetFrameColours(
        {colours_[SkinColour::border2], colours_[SkinColour::border3], colours_[SkinColour::border4]});
    const SheetColours sheet{.sheet = colours_[SkinColour::sheet],
                             .ink = colours_[SkinColour::sheetInk],
                             .line = colours_[SkinColour::sheetLine],
                             .accent = colours_[SkinColour::sheetAccent]};
    led_->SetMenuColours({.sheet = sheet.sheet,
                          .ink = sheet.ink,
                          .line = sheet.line,
                          .chosen = colours_[SkinColour::chosen],
                          .chosenInk = colours_[SkinColour::chosenInk]});
    hint_->SetColours(sheet);
    names_->SetColours(sheet);
}

/// Reads the pictures that are not there yet in the density of this paint.
void MainFrameWnd::PreparePictures() {
    const auto load = [&](const std::filesystem::path& file) { return LoadDense(file, Scale(), Density()); };
    if (loadedDensity_ != Density()) {
        const PanelPictures pictures{.smallButtons = load(skin_.Path(SkinPath::smallButtons)),
                                     .smallFontsGeneral = load(skin_.Path(SkinPath::smallFontsGeneral)),
                                     .largeButtons = load(skin_.Path(SkinPath::largeButtons)),
                                     .largeFonts = load(skin_.Path(SkinPath::largeFonts))};
        panels_.SetPictures(pictures);
        bodyColour_ = pictures.largeButtons.image.BackgroundColor();
        loadedDensity_ = Density();
        loadedCategory_ = -1;
    }
    if (const int category = frame_->CurrentCategory(); loadedCategory_ != category) {
        loadedCategory_ = category;
        DensePicture labels;
        if (category <= kLastPanelCategory) {
            labels = load(skin_.Path(SmallFontsOf(category)));
        }
        // The page without functions stands in where a category has none of its own.
        panels_.SetPageLabels(labels.image.IsEmpty() ? load(skin_.Path(SkinPath::smallFonts)) : labels);
    }
}

void MainFrameWnd::LayOut() {
    const FrameLayout& layout = LayoutOf(OrientationOf(view_.Screen()));
    SetPlace(layout.client.Scaled(Scale()));
    led_->SetPlace(layout.display.Scaled(Scale()));
}

void MainFrameWnd::InvalidateAll() {
    WindowBase::InvalidateAll();
    if (led_) {
        led_->InvalidateAll();
    }
}

void MainFrameWnd::InvalidateDisplay() {
    if (led_) {
        led_->InvalidateAll();
    }
    // It shows the line too.
    if (ModuleWnd* const macros = Module(ModuleWindow::macros)) {
        macros->InvalidateAll();
    }
}

void MainFrameWnd::InvalidateCell(PanelCell cell) {
    if (frame_) {
        Invalidate(CellRect(frame_->CurrentOrientation(), cell).Scaled(Scale()));
    }
}

void MainFrameWnd::CategoryChanged(int category) {
    led_->setVisible(ShowsDisplay(category));
    if (ModuleWnd* const module = Module(EntryOf(category).window)) {
        module->SetCategory(category);
        module->InvalidateAll();
    }
}

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

Rect MainFrameWnd::ClientPixels() const {
    return {0, 0, Place().Width(), Place().Height()};
}

void MainFrameWnd::ShowHint(const std::optional<FunctionHint>& hint) {
    // During start-up the display speaks before its helpers are there.
    if (!hint_) {
        return;
    }
    if (hint && led_->isVisible() && !frame_->Names().IsOpen()) {
        hint_->ShowHint(*hint, led_->CursorRect(), ClientPixels());
    } else {
        hint_->hide();
    }
}

void MainFrameWnd::NamesChanged() {
    if (names_) {
        hint_->hide();
        names_->Follow(led_->CursorRect(), ClientPixels());
    }
}

void MainFrameWnd::ShowNotice(const QString& text) {
    auto* const box = new QMessageBox(QMessageBox::Information, windowTitle(), text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setFont(FormFont(Scale() * Zoom()));
    box->open();
}

void MainFrameWnd::ShowMissing(std::u16string_view name) {
    ShowNotice(QStringLiteral("%1 is not part of this version.")
                   .arg(QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()))));
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
    return QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
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

void MainFrameWnd::PaintPanels(QPainter& painter, const Rect& dirty) {
    const Orientation orientation = frame_->CurrentOrientation();
    for (const auto& [panel, count] :
         {std::pair{Panel::upper, kUpperCellCount}, {Panel::lower, kLowerCellCount}}) {
        if (panel == Panel::upper && Ground() != PageGround::panels) {
            continue;
        }
        for (int index = 0; index < count; ++index) {
            const PanelCell cell{panel, index};
            if (!Overlap(CellRect(orientation, cell).Scaled(Scale()), dirty)) {
                continue;
            }
            const bool down = frame_->Looks().LooksDown(cell);
            if (const MacroPadLabel* const label = MacroLabelOf(cell)) {
                panels_.PaintLowerCellAs(painter, orientation, Scale(), index, down, label->labelOf,
                                         QString::fromUtf16(label->text));
            } else {
                panels_.PaintCell(painter, orientation, Scale(), cell, down);
            }
        }
    }
}

/// What stands on a key of the lower panel while a macro is being edited; null for its own label.
const MainFrameWnd::MacroPadLabel* MainFrameWnd::MacroLabelOf(PanelCell cell) const {
    static constexpr MacroPadLabel kLabels[] = {{KEY_DIVIDE, 0, u"keys"},
                                                {KEY_MULTIPLY, 0, u"αβγ"},
                                                {KEY_STORE, 0, u"test"},
                                                {KEY_RECALL, KEY_MULTIPLY, u""},
                                                {KEY_EQUALS, KEY_DIVIDE, u""}};
    if (cell.panel == Panel::lower && frame_->CurrentCategory() == CATEGORY_MACROS &&
        frame_->MacroEditing()) {
        for (const MacroPadLabel& label : kLabels) {
            if (label.cell == cell.cell) {
                return &label;
            }
        }
    }
    return nullptr;
}

/// The wordmark stands where the converters show no display.
void MainFrameWnd::PaintLogo(QPainter& painter) {
    const QImage logo = ToQImage(LoadDense(skin_.FindSkinValue("Logo"), Scale(), Density()));
    if (!logo.isNull()) {
        const Rect display = LayoutOf(frame_->CurrentOrientation()).display.Scaled(Scale());
        DrawPicture(painter, QPointF(display.left, display.top), logo, logo.rect());
    }
}

void MainFrameWnd::Paint(QPainter& painter, const Rect& dirty) {
    PreparePictures();
    const int category = frame_->CurrentCategory();
    const FrameLayout& layout = LayoutOf(frame_->CurrentOrientation());
    PanelPainter::PaintBody(painter, layout.client.Scaled(Scale()),
                            {.outer = colours_[SkinColour::border0],
                             .inner = colours_[SkinColour::border1],
                             .body = bodyColour_});
    if (Rect word = layout.landscapeWord; word.Width() > 0) {
        if (category > kLastPanelCategory) {
            word.bottom = kLandscapeWordBottomOfWindows;
        }
        PanelPainter::PaintLandscapeWord(painter, word.Scaled(Scale()), Scale());
    }
    if (category == CATEGORY_UNIT_CONVERTER || category == CATEGORY_CURRENCY_CONVERTER) {
        PaintLogo(painter);
    }
    if (Ground() != PageGround::window) {
        PaintPanels(painter, dirty);
    }
}

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

void MainFrameWnd::closeEvent(QCloseEvent* event) {
    if (!closed_) {
        closed_ = true;
        if (!ground_) {
            view_.position = pos();
        }
        SaveViewSettings(folder_, view_);
        if (!frame_->SaveState()) {
            std::cerr << "quorix: the state could not be saved in " << folder_ << '\n';
        }
    }
    event->accept();
    if (whenClosed_) {
        whenClosed_();
    }
}

}  // namespace quorix
