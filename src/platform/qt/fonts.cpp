#include "platform/qt/fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace quorix {

namespace {

constexpr const char* kFontFiles[] = {
    "Roboto-Regular.ttf",          "Roboto-Medium.ttf",          "Roboto-Bold.ttf",
    "RobotoCondensed-Regular.ttf", "RobotoCondensed-Medium.ttf", "RobotoCondensed-Bold.ttf",
};

}  // namespace

bool LoadShippedFonts(const std::filesystem::path& folder) {
    return std::all_of(std::begin(kFontFiles), std::end(kFontFiles), [&](const char* name) {
        return QFontDatabase::addApplicationFont(QString::fromStdU16String((folder / name).u16string())) >= 0;
    });
}

QFont ScreenFont(const TextFont& text, int scale) {
    QStringList families;
    if (text.face != kInterfaceFace) {
        families << text.face.toString();
    }
    if (text.condensed) {
        families << QStringLiteral("Roboto Condensed");
    }
    families << QStringLiteral("Roboto") << QStringLiteral("Noto Sans") << QStringLiteral("DejaVu Sans");

    QFont font;
    font.setFamilies(families);
    font.setPixelSize(std::max(1, static_cast<int>(text.em * scale)));
    font.setWeight(static_cast<QFont::Weight>(text.weight));
    font.setHintingPreference(scale == 1 ? QFont::PreferVerticalHinting : QFont::PreferNoHinting);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    font.setKerning(false);
    return font;
}

QFont FormFont(double pixelsPerUnit) {
    constexpr double kFormText = 10.5;
    constexpr int kSmallestPixels = 11;
    QFont font = ScreenFont({.em = kFormText, .weight = kRegularWeight}, 1);
    font.setPixelSize(std::max(kSmallestPixels, static_cast<int>(std::lround(kFormText * pixelsPerUnit))));
    return font;
}

}  // namespace quorix
