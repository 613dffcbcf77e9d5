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
    {"ChooserLabels", 528, 24, Ground::kTransparent, DrawChooserLabels},
    {"Category", 384, 48, Ground::kTransparent, DrawCategory},
    {"CategoryLabels", 928, 40, Ground::kTransparent, DrawCategoryLabels},
    {"CategoryButtons", 174, 45, Ground::kSheet, DrawCategoryButtons},
    {"NormalPanelSymbols", 64, 16, Ground::kTransparent, DrawToolSymbols},
    {"ChangePageButtons", 48, 48, Ground::kSheet, DrawPageButtons},
    {"ToolsPanel", 234, 208, Ground::kBody, DrawToolsPanel},
    {"ToolsPanelMask", 234, 208, Ground::kTransparent, DrawToolsPanelMask},
    {"Logo", 234, 50, Ground::kBody, DrawLogo},
    {"DateTime", 468, 28, Ground::kBody, DrawDateKeys, Densities::kSparse},
    {"NumberKeyboard", 468, 84, Ground::kBody, DrawNumberKeyboard},
    {"NumberKeyboardFunctions", 234, 112, Ground::kBody, DrawPadCommands},
    {"Keyboard", 468, 140, Ground::kBody, DrawLetterKeyboard},
    {"ListBox", 40, 20, Ground::kSheet, DrawListRows},
    {"ListBoxButtons", 40, 40, Ground::kSheet, DrawListButtons},
    {"EquationsSolver_Operators", 546, 28, Ground::kBody, DrawSolverKeys, Densities::kSparse},
    {"EquationsSolver_Back", 78, 28, Ground::kBody, DrawBackKey},
    {"EquationsSolver_DeleteButtons", 40, 20, Ground::kSheet, DrawListDelete},
    {"EquationsSolver_ScrollUpButton", 40, 20, Ground::kSheet, DrawListUp},
    {"EquationsSolver_ScrollDownButton", 40, 20, Ground::kSheet, DrawListDown},
    {"EquationScroll", 40, 20, Ground::kSheet, DrawListThumb, Densities::kDesktop, "MIMEScroll.PNG"},
    {"GraphOperators", 468, 46, Ground::kBody, DrawGraphKeys, Densities::kSparse},
    {"GraphNewIcon", 40, 20, Ground::kTransparent, DrawGraphNew},
    {"GraphCloseIcon", 40, 20, Ground::kTransparent, DrawGraphClose},
    {"GraphTextXY", 16, 24, Ground::kTransparent, DrawCentreNames},
    {"FormulaButtons", 468, 28, Ground::kBody, DrawFormulaListKeys, Densities::kSparse},
    {"Formula_Back", 78, 28, Ground::kBody, DrawBackKey},
    {"Formula_Next", 78, 28, Ground::kBody, DrawNextKey},
    {"Formula_Play", 78, 28, Ground::kBody, DrawPlayKey},
    {"Formula_Panel", 234, 92, Ground::kBody, DrawFormulaPanel},
    {"Formula_Operators", 468, 28, Ground::kBody, DrawFormulaKeys, Densities::kSparse},
    {"Formula_Switch_ClearAll", 156, 28, Ground::kBody, DrawFormulaSwitch},
    {"Formula_List_Background", 40, 20, Ground::kSheet, DrawListRows},
    {"Formula_List_DownArrow", 40, 20, Ground::kSheet, DrawListDown},
    {"Formula_List_UpArrow", 40, 20, Ground::kSheet, DrawListUp},
    {"Formula_List_IconItem", 60, 40, Ground::kTransparent, DrawTreeIcons},
    {"Formula_List_Thumb", 40, 20, Ground::kSheet, DrawListThumb},
    {"FormulaKeyboard", 468, 28, Ground::kBody, DrawFormulaKeyboard, Densities::kSparse},
    {"SkinPreview", 120, 147, Ground::kPicture, DrawSkinPreview, Densities::kSparse},
};

constexpr Strip kTexButton = {"TexButton", 28, 14, Ground::kTransparent, DrawTexButton};

QColor GroundColor(const Strip& strip, const Palette& palette) {
    switch (strip.ground) {
        case Ground::kBody:
        case Ground::kPicture: return palette.Color("body");
        case Ground::kSheet: return palette.Color("sheet");
        case Ground::kTransparent: break;
    }
    return QColor(0, 0, 0, 0);
}

}  // namespace

std::span<const int> ScalesOf(const Strip& strip) {
    static constexpr int kAll[] = {1, 2, 3, 4};
    static constexpr int kWithoutThree[] = {1, 2, 4};
    return strip.densities == Densities::kDesktop ? std::span<const int>(kAll) : kWithoutThree;
}

QString NameAtScale(const QString& name, int scale) {
    constexpr const char* kMarks[] = {"", "_VGA", "_VGA@1.5x", "_VGA@2x"};
    QString marked = name;
    return marked.insert(name.lastIndexOf('.'), kMarks[scale - 1]);
}

QString FileNameOf(const Strip& strip) {
    return strip.file != nullptr ? QString(strip.file) : QString(strip.key) + ".png";
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
