#include "shell/tools_panel_wnd.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/dense_picture.h"
#include "platform/qt/conversions.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

constexpr TextFont kToolFont = {.em = 9.5};
constexpr std::u16string_view kToolNames[] = {u"Preferences", u"Help", u"About", u"Exit"};
static_assert(std::size(kToolNames) == static_cast<std::size_t>(Tool::count));

/// From this transparence on the texts stand on a solid sheet.
constexpr int kSolidTilesFrom = 25;
constexpr int kIconSize = 24;
constexpr int kIconTop = 2;
constexpr int kLabelTop = 24;
constexpr int kGlyphSize = 16;
constexpr int kGlyphGap = 2;
/// Units that a sheet of another size keeps at its corners: the hair line above the tools lies within.
constexpr int kSheetCorner = 30;
constexpr int kFocusRadius = 4;
constexpr int kTileLooks = 3;
enum TileLook : int { TILE_PLAIN = 0, TILE_PRESSED = 1, TILE_CHOSEN = 2 };

}  // namespace

ToolsPanelWnd::ToolsPanelWnd(WindowBase& frame, ModuleSite& site) : WindowBase(&frame), site_(site) {
    hide();
    setAccessibleName(QStringLiteral("Categories"));
}

void ToolsPanelWnd::Open(const Rect& key) {
    const CMainFrame& frame = site_.Frame();
    const Orientation orientation = frame.CurrentOrientation();
    const Rect room = SheetRoom(orientation, key);
    model_ = std::make_unique<ToolsPanel>(frame.Settings().categoryOrder, frame.CurrentCategory(),
                                          room.Width(), room.Height());
    Rect place = room;
    if (room.top > key.top) {
        place.bottom = room.top + model_->Height();
    } else {
        place.top = room.bottom - model_->Height();
    }
    transparence_ =
        frame.Settings().transparenceEnabled != 0 ? static_cast<int>(frame.Settings().transparenceLevel) : 0;
    byKeyboard_ = false;
    density_ = 0;
    SetPlace(place.Scaled(Scale()));
    behind_ = parentWidget()->grab(geometry());
    InvalidateAll();
    raise();
    show();
}

void ToolsPanelWnd::LoadPictures() {
    if (density_ == Density()) {
        return;
    }
    density_ = Density();
    const auto load = [this](std::string_view key) {
        return ToQImage(LoadDense(site_.CurrentSkin().FindSkinValue(key), Scale(), Density()));
    };
    pictures_ = {.sheet = load("ToolsPanel"),
                 .mask = load("ToolsPanelMask"),
                 .tiles = load("CategoryButtons"),
                 .icons = load("Category"),
                 .labels = load("CategoryLabels"),
                 .tools = load("NormalPanelSymbols"),
                 .pageKeys = load("ChangePageButtons")};
}

void ToolsPanelWnd::Paint(QPainter& painter, const Rect& /*dirty*/) {
    if (!model_) {
        return;
    }
    LoadPictures();
    painter.drawPixmap(ToQRect({0, 0, Place().Width(), Place().Height()}), behind_);
    PaintSheet(painter);
    for (const SheetPart& part : model_->Parts()) {
        switch (part.kind) {
            case SheetPart::Kind::tile: PaintTile(painter, part); break;
            case SheetPart::Kind::tool: PaintTool(painter, part); break;
            default: PaintPageKey(painter, part); break;
        }
    }
    if (byKeyboard_) {
        PaintFocus(painter);
    }
}

void ToolsPanelWnd::PaintSheet(QPainter& painter) {
    const QSize size(Place().Width(), Place().Height());
    const double ratio = pictures_.sheet.isNull() ? 1.0 : pictures_.sheet.devicePixelRatio();
    const int corner = static_cast<int>(std::lround(kSheetCorner * Scale() * ratio));
    QImage sheet;
    if (pictures_.sheet.isNull()) {
        sheet = QImage(size, QImage::Format_ARGB32_Premultiplied);
        sheet.fill(Qt::white);
    } else {
        sheet = StretchCap(pictures_.sheet, (QSizeF(size) * ratio).toSize(), corner)
                    .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (!pictures_.mask.isNull()) {
            const QImage mask = StretchCap(pictures_.mask, sheet.size(), corner);
            QPainter shape(&sheet);
            shape.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            shape.drawImage(QRectF(QPointF(), QSizeF(sheet.size()) / sheet.devicePixelRatio()), mask);
        }
    }
    painter.setOpacity(1.0 - transparence_ / 100.0);
    painter.drawImage(QRectF(QPointF(), QSizeF(size)), sheet);
    painter.setOpacity(1.0);
}

void ToolsPanelWnd::PaintTile(QPainter& painter, const SheetPart& part) {
    const Rect place = Pixels(part);
    const bool chosen = part.index == model_->Current();
    const bool pressed = part == model_->Pressed();
    if (!pictures_.tiles.isNull() && (chosen || pressed || transparence_ >= kSolidTilesFrom)) {
        const int look = chosen ? TILE_CHOSEN : pressed ? TILE_PRESSED : TILE_PLAIN;
        const int width = pictures_.tiles.width() / kTileLooks;
        DrawPicture(painter, QPointF(place.left, place.top), pictures_.tiles,
                    QRect(look * width, 0, width, pictures_.tiles.height()));
    }
    const int row = chosen ? 1 : 0;
    if (!pictures_.icons.isNull()) {
        const int size = pictures_.icons.width() / kCategoryCount;
        DrawPicture(
            painter,
            QPointF(place.left + (place.Width() - kIconSize * Scale()) / 2, place.top + kIconTop * Scale()),
            pictures_.icons, QRect(part.index * size, row * size, size, size));
    }
    if (!pictures_.labels.isNull()) {
        const int width = pictures_.labels.width() / kCategoryCount;
        const int height = pictures_.labels.height() / 2;
        DrawPicture(painter, QPointF(place.left, place.top + kLabelTop * Scale()), pictures_.labels,
                    QRect(part.index * width, row * height, width, height));
    } else {
        painter.setFont(ScreenFont({.em = 9}, Scale()));
        painter.setPen(Qt::black);
        painter.drawText(ToQRect(place), Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap,
                         ToQString(kCategoryNames[static_cast<std::size_t>(part.index)]));
    }
}

void ToolsPanelWnd::PaintTool(QPainter& painter, const SheetPart& part) {
    const Rect place = Pixels(part);
    const QFont font = ScreenFont(kToolFont, Scale());
    const QString name = ToQString(kToolNames[part.index]);
    const int glyph = kGlyphSize * Scale();
    const int text = QFontMetrics(font).horizontalAdvance(name);
    const int left = place.left + (place.Width() - glyph - kGlyphGap * Scale() - text) / 2;
    // The sheet's ink is that of its glyphs; a pressed tool is set in a paler one.
    if (!pictures_.tools.isNull()) {
        const int size = pictures_.tools.height();
        DrawPicture(painter, QPointF(left, place.top + (place.Height() - glyph) / 2), pictures_.tools,
                    QRect(part.index * size, 0, size, size));
    }
    painter.setFont(font);
    painter.setPen(ToQColor(site_.Colours()[SkinColour::sheetInk]));
    painter.setOpacity(part == model_->Pressed() ? 0.5 : 1.0);
    painter.drawText(QRect(left + glyph + kGlyphGap * Scale(), place.top, text + Scale(), place.Height()),
                     Qt::AlignVCenter | Qt::AlignLeft, name);
    painter.setOpacity(1.0);
}

void ToolsPanelWnd::PaintPageKey(QPainter& painter, const SheetPart& part) {
    if (pictures_.pageKeys.isNull()) {
        return;
    }
    const Rect place = Pixels(part);
    const int size = pictures_.pageKeys.width() / 2;
    const int row = part.kind == SheetPart::Kind::pageBack ? 0 : 1;
    const int column = part == model_->Pressed() ? 1 : 0;
    // Their ground is the sheet's, and as translucent.
    painter.setOpacity(transparence_ < kSolidTilesFrom ? 1.0 - transparence_ / 100.0 : 1.0);
    DrawPicture(painter, QPointF(place.left, place.top), pictures_.pageKeys,
                QRect(column * size, row * size, size, size));
    painter.setOpacity(1.0);
}

void ToolsPanelWnd::PaintFocus(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToQColor(site_.Colours()[SkinColour::sheetAccent]), Scale()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(ToQRect(Pixels(model_->Focused()).Inset(Scale()))), kFocusRadius * Scale(),
                            kFocusRadius * Scale());
    painter.setRenderHint(QPainter::Antialiasing, false);
}

int ToolsPanelWnd::AccessibleCellCount() const {
    return model_ ? static_cast<int>(model_->Parts().size()) : 0;
}

QString ToolsPanelWnd::AccessibleCellName(int index) const {
    const SheetPart part = model_->Parts()[static_cast<std::size_t>(index)];
    switch (part.kind) {
        case SheetPart::Kind::tile: return ToQString(kCategoryNames[static_cast<std::size_t>(part.index)]);
        case SheetPart::Kind::tool: return ToQString(kToolNames[part.index]);
        case SheetPart::Kind::pageBack: return QStringLiteral("previous page");
        default: return QStringLiteral("next page");
    }
}

QRect ToolsPanelWnd::AccessibleCellRect(int index) const {
    return OnDesktop(Pixels(model_->Parts()[static_cast<std::size_t>(index)]));
}

bool ToolsPanelWnd::AccessibleCellDown(int index) const {
    const SheetPart part = model_->Parts()[static_cast<std::size_t>(index)];
    return part == model_->Pressed() ||
           (part.kind == SheetPart::Kind::tile && part.index == model_->Current());
}

void ToolsPanelWnd::PressAccessibleCell(int index) {
    const Rect rect = model_->RectOf(model_->Parts()[static_cast<std::size_t>(index)]);
    const Point centre{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    model_->PenDown(centre);
    Take(model_->PenUp(centre));
}

void ToolsPanelWnd::OnPenDown(Point at) {
    model_->PenDown(Units(at));
    InvalidateAll();
}

void ToolsPanelWnd::OnPenMove(Point at) {
    if (model_->Pressed().kind != SheetPart::Kind::none && model_->PartAt(Units(at)) != model_->Pressed()) {
        model_->PenUp(Units(at));
        InvalidateAll();
    }
}

void ToolsPanelWnd::OnPenUp(Point at) {
    Take(model_->PenUp(Units(at)));
}

void ToolsPanelWnd::Key(SheetKey key) {
    byKeyboard_ = true;
    Take(model_->Key(key));
}

void ToolsPanelWnd::Take(const std::optional<SheetPart>& chosen) {
    InvalidateAll();
    if (!chosen) {
        return;
    }
    CMainFrame& frame = site_.Frame();
    frame.KeySound();
    switch (chosen->kind) {
        case SheetPart::Kind::tile: frame.SwitchCategory(chosen->index); break;
        case SheetPart::Kind::tool: frame.ChooseTool(static_cast<Tool>(chosen->index)); break;
        default: frame.CloseChooser(); break;
    }
}

}  // namespace quorix
