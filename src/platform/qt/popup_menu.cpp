#include "platform/qt/popup_menu.h"

#include <cmath>

#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"

namespace quorix {

namespace {

/// Text of list rows, in logical units.
constexpr int kRowText = 12;
constexpr int kRowPaddingY = 3;
constexpr int kRowPaddingX = 9;

}  // namespace

QMenu* NewPopupMenu(QWidget* parent, double pixelsPerUnit, const MenuColours& colours) {
    auto* const menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto pixels = [pixelsPerUnit](double units) {
        return static_cast<int>(std::lround(units * pixelsPerUnit));
    };
    QFont font = ScreenFont({.em = kRowText, .weight = kMediumWeight}, 1);
    font.setPixelSize(pixels(kRowText));
    menu->setFont(font);
    const auto name = [](ColorRef colour) { return ToQColor(colour).name(); };
    // What cannot be chosen now lies half way between ink and sheet.
    const QColor ink = ToQColor(colours.ink);
    const QColor sheet = ToQColor(colours.sheet);
    const QColor pale((ink.red() + sheet.red()) / 2, (ink.green() + sheet.green()) / 2,
                      (ink.blue() + sheet.blue()) / 2);
    menu->setStyleSheet(QStringLiteral("QMenu { background: %1; color: %2; border: 1px solid %3; }"
                                       "QMenu::item { padding: %4px %5px; }"
                                       "QMenu::item:selected { background: %6; color: %7; }"
                                       "QMenu::item:disabled { color: %8; background: transparent; }")
                            .arg(name(colours.sheet), name(colours.ink), name(colours.line))
                            .arg(pixels(kRowPaddingY))
                            .arg(pixels(kRowPaddingX))
                            .arg(name(colours.chosen), name(colours.chosenInk), pale.name()));
    return menu;
}

}  // namespace quorix
