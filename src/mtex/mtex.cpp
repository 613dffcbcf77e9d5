// The exports of the equation rasteriser.

#include <unistd.h>

#include <array>
#include <exception>
#include <string>

#include "mtex/child_process.h"
#include "mtex/gif_raster.h"
#include "mtex/tex_guard.h"
#include "platform/mtex_exports.h"

namespace {

using namespace quorix::mtex;

constexpr std::array<const char*, 3> kPrograms = {"/usr/local/bin/mimetex", "/usr/bin/mimetex",
                                                  "/usr/lib/cgi-bin/mimetex.cgi"};
constexpr ChildLimits kLimits{std::chrono::milliseconds(2000), std::size_t{4} << 20U,
                              std::size_t{256} << 20U};

const char* FindProgram() {
    for (const char* path : kPrograms) {
        if (access(path, X_OK) == 0) return path;
    }
    return nullptr;
}

Raster* Rasterise(const char* expression) {
    const char* program = FindProgram();
    if (program == nullptr || expression == nullptr || !IsHarmlessTex(expression)) return nullptr;
    const auto gif = RunChild(program, {"-d", PreparedTex(expression)}, kLimits);
    if (!gif) return nullptr;
    std::optional<Raster> raster = DecodeGif(*gif);
    return raster ? new Raster(std::move(*raster)) : nullptr;
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) int CreateGifFromEq(const char* expression, const char* /*fileName*/,
                                                           int* width, int* height, void** raster) {
    *width = 0;
    *height = 0;
    *raster = nullptr;
    try {
        Raster* created = Rasterise(expression);
        if (created == nullptr) return 0;
        *width = created->width;
        *height = created->height;
        *raster = created;
        return 1;
    } catch (const std::exception&) {
        return 0;
    }
}

__attribute__((visibility("default"))) const unsigned char* GetPixelArray(void* raster, void* /*entry*/) {
    return raster != nullptr ? static_cast<const Raster*>(raster)->bits.data() : nullptr;
}

__attribute__((visibility("default"))) void del_subraster(void* raster) {
    delete static_cast<Raster*>(raster);
}
}
