// GIF bytes to rasters, and texts past the guard of the rasteriser. The first byte picks one of the two.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "mtex/gif_raster.h"
#include "mtex/tex_guard.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorix::mtex;
    if (size == 0) return 0;
    if (data[0] == 't') {
        const std::string_view tex(reinterpret_cast<const char*>(data + 1), size - 1);
        if (!IsHarmlessTex(tex)) return 0;
        const std::string prepared = PreparedTex(tex);
        if (prepared.find("\\input") != prepared.npos || !prepared.starts_with("\\nosmash "))
            __builtin_trap();
        return 0;
    }
    const auto raster = DecodeGif({data + 1, size - 1});
    if (!raster) return 0;
    const std::size_t bytes =
        static_cast<std::size_t>(raster->width / 8) * static_cast<std::size_t>(raster->height);
    if (raster->width % 8 != 0 || raster->bits.size() != bytes) __builtin_trap();
    return 0;
}
