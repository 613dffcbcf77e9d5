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
    kTransparent,  ///< Alpha; what cannot be seen carries the body colour.
};

/// In which scales a strip is drawn.
enum class Densities {
    kScreens,  ///< Those of the device screens, 1 and 2.
    kDesktop,  ///< 3 and 4 too: what a zoomed window or a dense desktop shows.
};

/// One picture of a skin. `key` is its key in the skin file; the file is called the same.
struct Strip {
    const char* key;
    int width;  ///< Units.
    int height;
    Ground ground;
    Densities densities;
    void (*draw)(Picture& picture, const Tools& tools);
};

/// The scales of a strip, ascending.
std::span<const int> ScalesOf(const Strip& strip);

/// What stands behind the base name of a picture's file, by its scale.
const char* ScaleMark(int scale);

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

}  // namespace quorix::art
