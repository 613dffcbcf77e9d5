#include "platform/image.h"

#include "platform/files.h"

namespace quorix {

bool Image::Load(const std::filesystem::path& path) {
    Free();
    path_ = path;
    if (const auto file = ReadWholeFile(path)) {
        picture_ = DecodePng(*file);
    }
    return !IsEmpty();
}

void Image::Free() {
    path_.clear();
    picture_ = {};
}

ColorRef Image::BackgroundColor() const {
    const auto& pixels = picture_.pixels;
    return pixels.empty() ? kWhite : MakeColor(pixels[0], pixels[1], pixels[2]);
}

}  // namespace quorix
