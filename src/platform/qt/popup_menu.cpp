#include "platform/qt/popup_menu.h"

#include <cmath>

#include "platform/qt/fonts.h"

namespace quorix {

namespace {

/// Text of list rows, in logical units.
constexpr int kRowText = 12;
constexpr int kRowPaddingY = 3;
constexpr int kRowPaddingX = 9;

}  // namespace

QMenu* NewPopupMenu(QWidget* parent, double pixelsPerUnit) {
    auto* const menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto pixels = [pixelsPerUnit](double units) {
        return static_cast<int>(std::lround(units * pixelsPerUnit));
    };
    QFont font = ScreenFont({.em = kRowText, .weight = kMediumWeight}, 1);
    font.setPixelSize(pixels(kRowText));
    menu->setFont(font);
    // Sheet, ink, lines and chosen tile of the visual design.
    menu->setStyleSheet(
        QStringLiteral("QMenu { background: #F3F5F9; color: #24304A; border: 1px solid #C4CDDC; }"
                       "QMenu::item { padding: %1px %2px; }"
                       "QMenu::item:selected { background: #2F62B8; color: #FFFFFF; }"
                       "QMenu::item:disabled { color: #9AA5B8; background: transparent; }")
            .arg(pixels(kRowPaddingY))
            .arg(pixels(kRowPaddingX)));
    return menu;
}

}  // namespace quorix
