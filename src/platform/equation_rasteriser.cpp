#include "platform/equation_rasteriser.h"

#include <dlfcn.h>

#include <algorithm>
#include <memory>

#include "platform/mtex_exports.h"

namespace quorix {
namespace {

constexpr std::size_t kMostKept = 16;
// A row's length in bytes is held to 8 bits: what stands right of that is cut off.
constexpr int kMostRowBytes = 255;

template <typename Function>
Function FindExport(void* library, const char* name) {
    return reinterpret_cast<Function>(dlsym(library, name));
}

}  // namespace

EquationRasteriser::EquationRasteriser(const std::filesystem::path& libraryFile)
    : library_(dlopen(libraryFile.c_str(), RTLD_NOW | RTLD_LOCAL)) {}

EquationRasteriser::~EquationRasteriser() {
    if (library_ != nullptr) dlclose(library_);
}

EquationRaster EquationRasteriser::Rasterise(const std::string& tex) {
    if (library_ == nullptr) return {};
    const auto found = std::ranges::find(kept_, tex, &Kept::tex);
    if (found != kept_.end()) {
        kept_.splice(kept_.begin(), kept_, found);
        return kept_.front().raster;
    }
    EquationRaster raster = Create(tex);
    // A failure may be one of the moment and is not kept.
    if (raster.IsEmpty()) return raster;
    kept_.push_front({tex, raster});
    if (kept_.size() > kMostKept) kept_.pop_back();
    return raster;
}

EquationRaster EquationRasteriser::Create(const std::string& tex) const {
    const auto create = FindExport<CreateGifFromEqFunction>(library_, mtex::kCreateGifFromEq);
    const auto pixels = FindExport<GetPixelArrayFunction>(library_, mtex::kGetPixelArray);
    const auto free = FindExport<DelSubrasterFunction>(library_, mtex::kDelSubraster);
    if (create == nullptr || pixels == nullptr || free == nullptr) return {};
    int width = 0;
    int height = 0;
    void* handle = nullptr;
    create(tex.c_str(), mtex::kGifFileName, &width, &height, &handle);
    if (handle == nullptr) return {};
    const std::unique_ptr<void, DelSubrasterFunction> owner(handle, free);
    const unsigned char* bits = pixels(handle, reinterpret_cast<void*>(pixels));
    if (bits == nullptr || width < 8 || height < 1) return {};
    const int rowBytes = std::min(width / 8, kMostRowBytes);
    EquationRaster raster{rowBytes * 8, height, {}};
    raster.bits.reserve(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(height));
    for (int row = 0; row < height; ++row) {
        const unsigned char* start =
            bits + static_cast<std::size_t>(row) * static_cast<std::size_t>(width / 8);
        raster.bits.insert(raster.bits.end(), start, start + rowBytes);
    }
    return raster;
}

}  // namespace quorix
