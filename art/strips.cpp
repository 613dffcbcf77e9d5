#include "strips.h"

#include "picture.h"

namespace quorix::art {

namespace {

constexpr Strip kSkinStrips[] = {
    {"LargeButtons", 94, 114, Ground::kBody, DrawLargeButtons},
    {"LargeButtonsSquare", 94, 78, Ground::kBody, DrawLargeButtonsSquare},
    {"LargeFonts", 205, 136, Ground::kTransparent, DrawLargeFonts},
    {"LargeFontsSquare", 205, 88, Ground::kTransparent, DrawLargeFontsSquare},
    {"SmallButtons", 78, 112, Ground::kBody, DrawSmallButtons},
    {"SmallFonts", 396, 24, Ground::kTransparent, DrawSmallFonts},
    {"SmallFontsArithmetic", 396, 24, Ground::kTransparent, DrawSmallFontsPage<0>},
    {"SmallFontsGeonometry", 396, 24, Ground::kTransparent, DrawSmallFontsPage<1>},
    {"SmallFontsBaseConversion", 396, 24, Ground::kTransparent, DrawSmallFontsPage<2>},
    {"SmallFontsStatistics", 396, 24, Ground::kTransparent, DrawSmallFontsPage<3>},
    {"SmallFontsMatrix", 396, 24, Ground::kTransparent, DrawSmallFontsPage<4>},
    {"SmallFontsFinance", 396, 24, Ground::kTransparent, DrawSmallFontsPage<5>},
    {"SmallFontsGeneral", 198, 24, Ground::kTransparent, DrawSmallFontsGeneral},
    {"Category", 384, 48, Ground::kTransparent, DrawCategory},
    {"CategoryLabels", 928, 40, Ground::kTransparent, DrawCategoryLabels},
    {"CategoryButtons", 174, 45, Ground::kSheet, DrawCategoryButtons},
    {"NormalPanelSymbols", 64, 16, Ground::kTransparent, DrawToolSymbols},
    {"ChangePageButtons", 48, 48, Ground::kSheet, DrawPageButtons},
    {"Logo", 234, 50, Ground::kBody, DrawLogo},
};

constexpr Strip kTexButton = {"TexButton", 28, 14, Ground::kTransparent, DrawTexButton};

QColor GroundColor(const Strip& strip, const Palette& palette) {
    switch (strip.ground) {
        case Ground::kBody: return palette.Color("body");
        case Ground::kSheet: return palette.Color("sheet");
        case Ground::kTransparent: break;
    }
    return QColor(0, 0, 0, 0);
}

}  // namespace

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
