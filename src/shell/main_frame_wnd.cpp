#include "shell/main_frame_wnd.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <iostream>
#include <optional>

#include "platform/dense_picture.h"
#include "platform/qt/popup_menu.h"

namespace quorix {

namespace {

constexpr char16_t kBackspaceCharacter = 8;
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

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

MainFrameWnd::MainFrameWnd(const std::filesystem::path& programFolder)
    : folder_(programFolder), view_(LoadViewSettings(programFolder)), skin_(programFolder, view_.Screen()) {
    setWindowTitle(QStringLiteral("Quorix"));
    setFocusPolicy(Qt::StrongFocus);
}

MainFrameWnd::~MainFrameWnd() = default;

bool MainFrameWnd::Create() {
    led_ = std::make_unique<LedWnd>(this);
    frame_ = std::make_unique<CMainFrame>(CMainFrame::Surroundings{.folder = folder_,
                                                                   .host = *this,
                                                                   .clock = clock_,
                                                                   .frameTimers = this,
                                                                   .displayTimers = led_.get(),
                                                                   .waitCursor = &waitCursor_},
                                          view_.Screen());
    skin_.Select(frame_->Settings().skinFile);
    led_->SetDisplay(&frame_->Display(), static_cast<int>(frame_->Settings().tapHoldInterval));
    if (!ApplyView()) {
        return false;
    }
    if (view_.position) {
        move(*view_.position);
    }
    return true;
}

std::filesystem::path MainFrameWnd::SkinPathTried() const {
    return folder_ / std::filesystem::path(kInterfacesFolder) / std::filesystem::path(skin_.SkinFile());
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
    SetZoom(view_.Zoom());
    frame_->SetScreen(screen);
    return skinRead;
}

void MainFrameWnd::LoadColours() {
    colours_ = {};
    if (const auto path = skin_.FindSkinValue("BoderColores"); !path.empty()) {
        colours_.LoadColours(path);
    }
    led_->SetFrameColours(
        {colours_[SkinColour::border2], colours_[SkinColour::border3], colours_[SkinColour::border4]});
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
}

void MainFrameWnd::InvalidateCell(PanelCell cell) {
    if (frame_) {
        Invalidate(CellRect(frame_->CurrentOrientation(), cell).Scaled(Scale()));
    }
}

void MainFrameWnd::CategoryChanged(int category) {
    // During start-up the frame calls before it is there.
    if (frame_) {
        led_->setVisible(ShowsDisplay(category));
    }
}

void MainFrameWnd::OpenPopup(PopupId id, PanelCell at, std::vector<std::u16string_view> items) {
    QMenu* const menu = NewPopupMenu(this, Scale() * Zoom());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool available = id != POPUP_CATEGORIES || frame_->CategoryAvailable(static_cast<int>(i));
        if (available) {
            QAction* const action =
                menu->addAction(QString::fromUtf16(items[i].data(), static_cast<qsizetype>(items[i].size())));
            connect(action, &QAction::triggered, this,
                    [this, id, i] { frame_->PopupChosen(id, static_cast<int>(i)); });
        }
    }
    const Rect cell = CellRect(frame_->CurrentOrientation(), at).Scaled(Scale());
    menu->popup(mapToGlobal(QPointF(cell.left * Zoom(), cell.bottom * Zoom()).toPoint()));
}

void MainFrameWnd::Paint(QPainter& painter, const Rect& dirty) {
    PreparePictures();
    const Orientation orientation = frame_->CurrentOrientation();
    const FrameLayout& layout = LayoutOf(orientation);
    PanelPainter::PaintBody(painter, layout.client.Scaled(Scale()),
                            {.outer = colours_[SkinColour::border0],
                             .inner = colours_[SkinColour::border1],
                             .body = bodyColour_});
    if (layout.landscapeWord.Width() > 0) {
        PanelPainter::PaintLandscapeWord(painter, layout.landscapeWord.Scaled(Scale()), Scale());
    }
    for (const auto& [panel, count] :
         {std::pair{Panel::upper, kUpperCellCount}, {Panel::lower, kLowerCellCount}}) {
        for (int index = 0; index < count; ++index) {
            const PanelCell cell{panel, index};
            if (Overlap(CellRect(orientation, cell).Scaled(Scale()), dirty)) {
                panels_.PaintCell(painter, orientation, Scale(), cell, frame_->Looks().LooksDown(cell));
            }
        }
    }
}

bool MainFrameWnd::DesktopKey(const QKeyEvent& event) {
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    if (event.key() == Qt::Key_F9) {
        view_.shape = NextShape(view_.shape);
    } else if (control && (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal)) {
        view_.zoomPercent = ZoomAfter(view_.zoomPercent, 1);
    } else if (control && event.key() == Qt::Key_Minus) {
        view_.zoomPercent = ZoomAfter(view_.zoomPercent, -1);
    } else if (control && event.key() == Qt::Key_Q) {
        close();
        return true;
    } else {
        return control && event.key() != Qt::Key_Control;
    }
    ApplyView();
    return true;
}

void MainFrameWnd::keyPressEvent(QKeyEvent* event) {
    if (DesktopKey(*event)) {
        return;
    }
    if (const auto hardKey = HardKeyOf(event->key())) {
        frame_->KeyDown(*hardKey);
        return;
    }
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: frame_->Character(kEnterCharacter); return;
        case Qt::Key_Backspace: frame_->Character(kBackspaceCharacter); return;
        default: break;
    }
    for (const char16_t character : event->text().toStdU16String()) {
        frame_->Character(character);
    }
}

void MainFrameWnd::keyReleaseEvent(QKeyEvent* event) {
    if (const auto hardKey = HardKeyOf(event->key()); hardKey && !event->isAutoRepeat()) {
        frame_->KeyUp(*hardKey);
    }
}

void MainFrameWnd::closeEvent(QCloseEvent* event) {
    if (!closed_) {
        closed_ = true;
        view_.position = pos();
        SaveViewSettings(folder_, view_);
        if (!frame_->SaveState()) {
            std::cerr << "quorix: the state could not be saved in " << folder_ << '\n';
        }
    }
    event->accept();
}

}  // namespace quorix
