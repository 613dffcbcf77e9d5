#include "platform/dense_picture.h"

#include <string>
#include <string_view>

namespace quorix {

namespace {

struct DensityMark {
    int density;  ///< Pixels for one logical unit.
    std::string_view mark;
};

constexpr DensityMark kDensityMarks[] = {{1, ""}, {2, "_VGA"}, {3, "_VGA@1.5x"}, {4, "_VGA@2x"}};

/// Ratios of a desktop come as rounded numbers.
constexpr double kRatioTolerance = 0.01;

std::filesystem::path Marked(const std::filesystem::path& plain, std::string_view mark) {
    std::filesystem::path name = plain.stem();
    name += mark;
    name += plain.extension();
    return plain.parent_path() / name;
}

}  // namespace

std::vector<DenseFile> DenseFilesOf(const std::filesystem::path& plain, int scale, double pixelsPerPixel) {
    if (plain.empty() || pixelsPerPixel <= 1 + kRatioTolerance) {
        return {{plain, 1}};
    }
    // The plain file's own mark stands in its name already.
    const std::size_t marked = scale == 2 ? kDensityMarks[1].mark.size() : 0;
    std::vector<DenseFile> files;
    std::size_t denseEnough = 0;
    for (const auto& [density, mark] : kDensityMarks) {
        const double ratio = static_cast<double>(density) / scale;
        if (ratio < 1) {
            continue;
        }
        DenseFile file{Marked(plain, mark.substr(marked)), ratio};
        if (ratio >= pixelsPerPixel - kRatioTolerance) {
            files.insert(files.begin() + static_cast<std::ptrdiff_t>(denseEnough++), std::move(file));
        } else {
            files.insert(files.begin(), std::move(file));
        }
    }
    return files;
}

DensePicture LoadDense(const std::filesystem::path& plain, int scale, double pixelsPerPixel) {
    DensePicture picture;
    for (const DenseFile& file : DenseFilesOf(plain, scale, pixelsPerPixel)) {
        if (picture.image.Load(file.path)) {
            picture.ratio = file.ratio;
            break;
        }
    }
    return picture;
}

}  // namespace quorix
