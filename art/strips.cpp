#include "strips.h"

#include "picture.h"

namespace quorix::art {

namespace {

constexpr Strip kSkinStrips[] = {
    {"LargeButtons", 94, 114, Ground::kBody, Densities::kDesktop, DrawLargeButtons},
    {"LargeButtonsSquare", 94, 78, Ground::kBody, Densities::kDesktop, DrawLargeButtonsSquare},
    {"LargeFonts", 205, 136, Ground::kTransparent, Densities::kDesktop, DrawLargeFonts},
    {"LargeFontsSquare", 205, 88, Ground::kTransparent, Densities::kDesktop, DrawLargeFontsSquare},
    {"SmallButtons", 78, 112, Ground::kBody, Densities::kDesktop, DrawSmallButtons},
    {"SmallFonts", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFonts},
    {"SmallFontsArithmetic", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<0>},
    {"SmallFontsGeonometry", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<1>},
    {"SmallFontsBaseConversion", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<2>},
    {"SmallFontsStatistics", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<3>},
    {"SmallFontsMatrix", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<4>},
    {"SmallFontsFinance", 396, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsPage<5>},
    {"SmallFontsGeneral", 198, 24, Ground::kTransparent, Densities::kDesktop, DrawSmallFontsGeneral},
    {"Category", 384, 48, Ground::kTransparent, Densities::kScreens, DrawCategory},
    {"CategoryLabels", 928, 40, Ground::kTransparent, Densities::kScreens, DrawCategoryLabels},
    {"CategoryButtons", 174, 45, Ground::kSheet, Densities::kScreens, DrawCategoryButtons},
    {"NormalPanelSymbols", 64, 16, Ground::kTransparent, Densities::kScreens, DrawToolSymbols},
    {"ChangePageButtons", 48, 48, Ground::kSheet, Densities::kScreens, DrawPageButtons},
    {"Logo", 234, 50, Ground::kBody, Densities::kScreens, DrawLogo},
};

constexpr Strip kTexButton = {"TexButton", 28, 14, Ground::kTransparent, Densities::kDesktop, DrawTexButton};

QColor GroundColor(const Strip& strip, const Palette& palette) {
    switch (strip.ground) {
        case Ground::kBody: return palette.Color("body");
        case Ground::kSheet: return palette.Color("sheet");
        case Ground::kTransparent: break;
    }
    return QColor(0, 0, 0, 0);
}

}  // namespace

std::span<const int> ScalesOf(const Strip& strip) {
    static constexpr int kScales[] = {1, 2, 3, 4};
    return std::span(kScales).first(strip.densities == Densities::kDesktop ? 4 : 2);
}

const char* ScaleMark(int scale) {
    constexpr const char* kMarks[] = {"", "_VGA", "_VGA@1.5x", "_VGA@2x"};
    return kMarks[scale - 1];
}

std::span<const Strip> SkinStrips() {
    return kSkinStrips;
}

const Strip& TexButtonStrip() {
    return kTexButton;
}

QImage DrawStrip(const Strip& strip, const Tools& tools, int scale) {
    Picture picture(strip.width, strip.height, scale, GroundColor(strip, tools.palette));
    strip.draw(picture, tools);
    if (strip.ground == Ground::kTransparent) {
        picture.FinishTransparency(tools.palette.Color("body"));
    }
    return picture.Image();
}

}  // namespace quorix::art
