#pragma once

// The port to the equation rasteriser, a shared library that is loaded at run time.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <list>
#include <string>
#include <vector>

namespace quorix {

/// One bit a pixel; width is a multiple of 8.
struct EquationRaster {
    int width = 0;
    int height = 0;
    /// Rows of width / 8 bytes, first row on top, least significant bit leftmost.
    std::vector<std::uint8_t> bits;

    [[nodiscard]] bool IsEmpty() const { return bits.empty(); }
    [[nodiscard]] bool At(int x, int y) const {
        const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(width / 8);
        return (bits[row + static_cast<std::size_t>(x / 8)] >> (x % 8) & 1) != 0;
    }
};

/// Without the library every raster is empty and nothing else happens.
class EquationRasteriser {
  public:
    /// libraryFile: the library's path; a bare name is looked for where the system looks.
    explicit EquationRasteriser(const std::filesystem::path& libraryFile);
    ~EquationRasteriser();
    EquationRasteriser(const EquationRasteriser&) = delete;
    EquationRasteriser& operator=(const EquationRasteriser&) = delete;

    [[nodiscard]] bool IsLoaded() const { return library_ != nullptr; }
    /// The raster of a TeX text; empty when there is none. The last few are kept. Blocks for at most the
    /// library's time limit; no messages are handled. Throws std::bad_alloc.
    EquationRaster Rasterise(const std::string& tex);

  private:
    struct Kept {
        std::string tex;
        EquationRaster raster;
    };

    [[nodiscard]] EquationRaster Create(const std::string& tex) const;

    void* library_ = nullptr;
    std::list<Kept> kept_;  ///< latest first
};

}  // namespace quorix
