#include "shell/main_frame_wnd.h"

#include <QCloseEvent>
#include <QPainter>
#include <QTimer>
#include <iostream>

#include "equations/tex_for_copy.h"
#include "platform/dense_picture.h"
#include "platform/qt/conversions.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

/// Above a module's window the word "Landscape" has more room, in logical units.
constexpr int kLandscapeWordBottomOfWindows = 50;

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
    MakeCellsAccessible();
    setWindowTitle(QStringLiteral("Quorix"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(windowTitle());
    StandAlone();
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
                                         ToQString(label->text));
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
