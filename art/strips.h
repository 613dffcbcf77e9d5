#pragma once

#include <QImage>
#include <span>

#include "palette.h"
#include "typeface.h"

namespace quorix::art {

class Picture;

/// What a strip is drawn with.
struct Tools {
    const Palette& palette;
    const Typeface& typeface;
};

/// How a strip treats the body colour.
enum class Ground {
    kBody,         ///< Opaque, on the body colour.
    kSheet,        ///< Opaque, on the colour of the chooser's sheet.
    kPicture,      ///< Opaque and full of its own colours.
    kTransparent,  ///< Alpha; what cannot be seen carries the body colour.
};

/// In which scales a strip is drawn.
enum class Densities {
    kDesktop,  ///< Those of the device screens, 1 and 2, and 3 and 4 for zoomed windows and dense desktops.
    kSparse,   ///< Without 3: where the file would be large, that of scale 4 is reduced instead.
};

/// One picture of a skin. `key` is its key in the skin file.
struct Strip {
    const char* key;
    int width;  ///< Units.
    int height;
    Ground ground;
    void (*draw)(Picture& picture, const Tools& tools);
    Densities densities = Densities::kDesktop;
    const char* file = nullptr;  ///< Its file's name; without one, the key and ".png".
};

/// The scales of a strip, ascending.
std::span<const int> ScalesOf(const Strip& strip);

/// A file's name at a scale: the scale's mark stands before the ending.
QString NameAtScale(const QString& name, int scale);

/// The file name of a strip as the skin file has it, that of scale 1.
QString FileNameOf(const Strip& strip);

/// Every picture that belongs to a skin, in the order of the skin file.
std::span<const Strip> SkinStrips();

/// The picture of the display's TeX button, the same in every skin: the up look at left, the down look at
/// right.
const Strip& TexButtonStrip();

/// Draws a strip for one of its scales, with straight alpha.
QImage DrawStrip(const Strip& strip, const Tools& tools, int scale);

// The painters, by family.
void DrawSmallButtons(Picture& picture, const Tools& tools);
void DrawLargeButtons(Picture& picture, const Tools& tools);
void DrawLargeButtonsSquare(Picture& picture, const Tools& tools);
void DrawLargeFonts(Picture& picture, const Tools& tools);
void DrawLargeFontsSquare(Picture& picture, const Tools& tools);
void DrawSmallFonts(Picture& picture, const Tools& tools);
void DrawChooserLabels(Picture& picture, const Tools& tools);
template <int category>
void DrawSmallFontsPage(Picture& picture, const Tools& tools);
void DrawSmallFontsGeneral(Picture& picture, const Tools& tools);
void DrawCategory(Picture& picture, const Tools& tools);
void DrawCategoryLabels(Picture& picture, const Tools& tools);
void DrawCategoryButtons(Picture& picture, const Tools& tools);
void DrawToolSymbols(Picture& picture, const Tools& tools);
void DrawPageButtons(Picture& picture, const Tools& tools);
void DrawLogo(Picture& picture, const Tools& tools);
void DrawTexButton(Picture& picture, const Tools& tools);
void DrawNumberKeyboard(Picture& picture, const Tools& tools);
void DrawPadCommands(Picture& picture, const Tools& tools);
void DrawLetterKeyboard(Picture& picture, const Tools& tools);
void DrawFormulaKeyboard(Picture& picture, const Tools& tools);
void DrawSolverKeys(Picture& picture, const Tools& tools);
void DrawGraphKeys(Picture& picture, const Tools& tools);
void DrawDateKeys(Picture& picture, const Tools& tools);
void DrawFormulaListKeys(Picture& picture, const Tools& tools);
void DrawFormulaKeys(Picture& picture, const Tools& tools);
void DrawFormulaSwitch(Picture& picture, const Tools& tools);
void DrawBackKey(Picture& picture, const Tools& tools);
void DrawNextKey(Picture& picture, const Tools& tools);
void DrawPlayKey(Picture& picture, const Tools& tools);
void DrawToolsPanel(Picture& picture, const Tools& tools);
void DrawToolsPanelMask(Picture& picture, const Tools& tools);
void DrawFormulaPanel(Picture& picture, const Tools& tools);
void DrawListRows(Picture& picture, const Tools& tools);
void DrawListButtons(Picture& picture, const Tools& tools);
void DrawListUp(Picture& picture, const Tools& tools);
void DrawListDown(Picture& picture, const Tools& tools);
void DrawListDelete(Picture& picture, const Tools& tools);
void DrawListThumb(Picture& picture, const Tools& tools);
void DrawTreeIcons(Picture& picture, const Tools& tools);
void DrawGraphNew(Picture& picture, const Tools& tools);
void DrawGraphClose(Picture& picture, const Tools& tools);
void DrawCentreNames(Picture& picture, const Tools& tools);
void DrawSkinPreview(Picture& picture, const Tools& tools);

}  // namespace quorix::art
