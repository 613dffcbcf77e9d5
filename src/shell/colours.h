#pragma once

// The lines and frames that a skin colours, from its colour file.

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>

#include "platform/color.h"

namespace quorix {

enum class SkinColour : std::uint8_t {
    border0,  ///< outer frame of the panels
    border1,  ///< second frame line
    border2,  ///< first frame line of the display; frame of text boxes
    border3,  ///< second frame line of the display
    border4,  ///< third frame line of the display
    editBoxBorder,
    listBoxBorder,
    solverBorder0,
    solverBorder1,
    solverBorder2,
    count
};

inline constexpr std::size_t kSkinColourCount = static_cast<std::size_t>(SkinColour::count);

class SkinColours {
  public:
    [[nodiscard]] ColorRef operator[](SkinColour which) const {
        return colours_[static_cast<std::size_t>(which)];
    }

    /// Takes the colours that a text of 'key = R,G,B' lines names; keys are blind to case, numbers are
    /// decimal and taken modulo 256. A value with fewer than two commas, or nothing after the second, leaves
    /// its colour alone.
    void Read(std::span<const std::uint8_t> text);

    /// The same from a file; false when it cannot be read.
    bool LoadColours(const std::filesystem::path& path);

  private:
    std::array<ColorRef, kSkinColourCount> colours_ = {
        0x866651, 0xAA8570, 0xB08B76, 0xA87E65, 0xA18877, 0x866651, 0x976341, 11963251, 10909019, 11309948,
    };
};

}  // namespace quorix
