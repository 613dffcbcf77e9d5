#pragma once

// A picture comes in several files, one for each density: how many pixels it has for one logical unit. A skin
// names the file of scale 1; that of scale 2 bears "_VGA" and a denser one a factor behind that.

#include <filesystem>
#include <vector>

#include "platform/image.h"

namespace quorix {

/// A loaded picture and the pixels that it has for one pixel of the device screen.
struct DensePicture {
    Image image;
    double ratio = 1;
};

/// One file of a picture; `ratio` as in DensePicture.
struct DenseFile {
    std::filesystem::path path;
    double ratio = 1;
};

/// The files of a picture in the order in which they are to be tried. `plain` is the one that a skin names
/// for a screen of `scale` 1 or 2; `pixelsPerPixel` is how many pixels of the desktop one pixel of the device
/// screen covers. The sparsest file that is dense enough comes first, denser ones follow, then sparser ones
/// down to `plain`. Where `plain` is dense enough it stands alone.
std::vector<DenseFile> DenseFilesOf(const std::filesystem::path& plain, int scale, double pixelsPerPixel);

/// Loads the first of those files that is there and whole; an empty picture when none is.
DensePicture LoadDense(const std::filesystem::path& plain, int scale, double pixelsPerPixel);

}  // namespace quorix
