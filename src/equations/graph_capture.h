#pragma once

// Saving the graph as a picture of a size that the user chooses.

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "equations/graph_view.h"
#include "platform/png_loader.h"

namespace quorix {

inline constexpr std::u16string_view kCaptureTitle = u"Capture Graph Options";
inline constexpr std::u16string_view kCaptureInitialWidth = u"1000";
inline constexpr std::u16string_view kCaptureInitialHeight = u"768";
/// First of the list of places; the storage cards follow.
inline constexpr std::u16string_view kCaptureMainMemory = u"Main memory";
inline constexpr std::u16string_view kCaptureFileType = u"Bitmap 24 bits (*.bmp)";
inline constexpr std::u16string_view kNothingToCapture = u"There is no graph to capture.";
inline constexpr std::u16string_view kNoCaptureDialog = u"Cannot create GraphCaptureDlg.";

/// What keeps the dialog open; empty when pictures of that size (pixels) can be made: 64 to 1024 each way.
std::u16string_view CaptureSizeFault(std::int32_t width, std::int32_t height);

/// The path "Capture N.bmp" in `folder`, N being the greatest number there plus 1, or 1.
std::filesystem::path NextCaptureName(const std::filesystem::path& folder);

/// The graph in a picture of that size: the same middle, the scales grown by the factor at which all that is
/// on the surface is still in the picture, and the curves sampled for it.
DecodedPicture CaptureGraph(const GraphView& view, std::int32_t width, std::int32_t height,
                            ColorRef background, ColorRef ink);

/// Writes a BMP file and makes its folder; replaces a file of that name. False, silently, when it cannot.
bool SaveCapture(const std::filesystem::path& path, const DecodedPicture& picture);

}  // namespace quorix
