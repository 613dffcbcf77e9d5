#pragma once

// Typeset equations as pictures, and where a picture stands in its view.

#include <array>
#include <string_view>

#include "platform/color.h"
#include "platform/equation_rasteriser.h"
#include "platform/geometry.h"
#include "platform/png_loader.h"

namespace quorix {

/// Size commands of the rasteriser. The equation pages take the third on a standard screen and the seventh on
/// one of double density.
inline constexpr std::array<std::string_view, 8> kSizeLadder = {
    "\\tiny", "\\small", "\\normalsize", "\\large", "\\Large", "\\LARGE", "\\huge", "\\Huge"};
/// scale: 1 or 2.
constexpr std::string_view PageSizeCommand(int scale) {
    return kSizeLadder[scale == 2 ? 6 : 2];
}

/// For a message box when rendering fails.
inline constexpr std::u16string_view kRenderFailed = u"A memory error or overlength string";

struct EquationColors {
    ColorRef background = kWhite;
    ColorRef text = 0;
};

/// What a display control of equations keeps.
struct EquationView {
    EquationColors normal;
    EquationColors inverted{0, kWhite};
    bool isInverted = false;
    /// Opaque; empty when there is nothing to show.
    DecodedPicture picture;
};

/// A raster in colours: set bits in the text colour, clear bits beside them softened by up to half of it, an
/// eighth of that half for each set neighbour.
DecodedPicture PaintRaster(const EquationRaster& raster, const EquationColors& colors);

/// Typesets a TeX text in the view's colours. Without the library, or when it gives no raster, the picture is
/// released. False when the text with its size command reaches kTexBufferSize or memory runs out: then
/// kRenderFailed is to be shown.
bool RenderEquation(EquationRasteriser& rasteriser, EquationView& view, std::string_view text,
                    std::string_view sizeCommand);
/// The same for the formula library.
bool RenderEquationDirect(EquationRasteriser& rasteriser, EquationView& view, std::string_view text,
                          std::string_view sizeCommand);

/// In device pixels.
struct PictureSize {
    int width = 0;
    int height = 0;
};

/// Where a picture's left top corner stands at first: in the middle, or 10 screen units from the left.
Point PictureOffset(PictureSize view, PictureSize picture, bool centred);
/// A dragged offset held so that at least half of the view stays covered.
Point HeldOffset(Point offset, PictureSize view, PictureSize picture);

}  // namespace quorix
