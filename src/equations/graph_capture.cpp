#include "equations/graph_capture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include "equations/bmp_file.h"
#include "equations/graph_picture.h"
#include "platform/directory.h"
#include "platform/files.h"

namespace quorix {
namespace {

constexpr std::int32_t kLargestSide = 1024;
constexpr std::int32_t kSmallestSide = 64;
constexpr std::size_t kPrefixLength = std::string_view("Capture ").size();
// Numbers from here on are not counted on from: the next ones must stay readable.
constexpr std::int32_t kNumberLimit = 1'000'000'000;
constexpr double kFarthestPixel = 1e9;

std::int32_t NumberOf(const std::filesystem::path& file) {
    const std::string name = file.filename().string();
    std::int32_t number = 0;
    std::from_chars(name.data() + std::min(kPrefixLength, name.size()), name.data() + name.size(), number);
    return number < kNumberLimit ? number : 0;
}

std::int32_t Grown(std::int32_t length, double factor) {
    return static_cast<std::int32_t>(
        std::lround(std::clamp(length * factor, -kFarthestPixel, kFarthestPixel)));
}

}  // namespace

std::u16string_view CaptureSizeFault(std::int32_t width, std::int32_t height) {
    if (width > kLargestSide) return u"The width is too large";
    if (height > kLargestSide) return u"The height is too large";
    if (width < kSmallestSide) return u"The width is too small";
    if (height < kSmallestSide) return u"The height is too small";
    return {};
}

std::filesystem::path NextCaptureName(const std::filesystem::path& folder) {
    std::int32_t greatest = 0;
    for (const std::filesystem::path& file : ListFiles(folder, u"Capture *.bmp")) {
        greatest = std::max(greatest, NumberOf(file));
    }
    std::filesystem::path name;
    std::error_code error;
    do {
        name = folder / ("Capture " + std::to_string(++greatest) + ".bmp");
    } while (std::filesystem::exists(name, error));
    return name;
}

DecodedPicture CaptureGraph(const GraphView& view, std::int32_t width, std::int32_t height,
                            ColorRef background, ColorRef ink) {
    const double factor = std::min(static_cast<double>(width) / std::max(view.surfaceWidth, 1),
                                   static_cast<double>(height) / std::max(view.surfaceHeight, 1));
    const GraphCentre centre = GraphCentreOfView(view);
    GraphView picture;
    picture.pixelsPerUnitX = std::max(Grown(view.pixelsPerUnitX, factor), 1);
    picture.pixelsPerUnitY = std::max(Grown(view.pixelsPerUnitY, factor), 1);
    picture.panX = Grown(picture.pixelsPerUnitX, -centre.x);
    picture.panY = Grown(picture.pixelsPerUnitY, centre.y);
    GraphSetSurface(picture, width, height, factor > 1.0 ? 2 : 1);
    for (const GraphCurve& curve : view.curves) {
        GraphAddCurve(picture, curve.expression, curve.variableName, curve.colour);
    }
    return DrawGraphPicture(picture, background, ink);
}

bool SaveCapture(const std::filesystem::path& path, const DecodedPicture& picture) {
    const std::vector<std::uint8_t> file = EncodeBmp(picture);
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    return !file.empty() && WriteFileAtomically(path, file);
}

}  // namespace quorix
