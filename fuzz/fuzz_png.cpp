#include <cstdlib>

#include "platform/png_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const quorix::DecodedPicture picture = quorix::DecodePng({data, size});
    const auto expected =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) * 4;
    if (picture.pixels.size() != expected) {
        std::abort();
    }
    return 0;
}
