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
    sheet,        ///< Ground of the chooser and of lists; with the colours below an addition of ours.
    sheetInk,     ///< Text on the sheet.
    sheetLine,    ///< Hair lines on the sheet.
    sheetAccent,  ///< What is to be seen first on the sheet.
    chosen,       ///< Ground of the chosen row or tile.
    chosenInk,    ///< Text on it.
    graphSurface,
    graphCurve0,
    graphCurve1,
    graphCurve2,
    crossHair,
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
        0x866651,
        0xAA8570,
        0xB08B76,
        0xA87E65,
        0xA18877,
        0x866651,
        0x976341,
        11963251,
        10909019,
        11309948,
        MakeColor(0xF3, 0xF5, 0xF9),
        MakeColor(0x24, 0x30, 0x4A),
        MakeColor(0xC4, 0xCD, 0xDC),
        MakeColor(0xCF, 0x6E, 0x08),
        MakeColor(0x2F, 0x62, 0xB8),
        MakeColor(0xFF, 0xFF, 0xFF),
        MakeColor(0xFB, 0xFC, 0xFE),
        MakeColor(0x0B, 0x5C, 0xAD),
        MakeColor(0xC2, 0x41, 0x0C),
        MakeColor(0x3B, 0x0A, 0x2A),
        MakeColor(0x7A, 0x1F, 0xE0),
    };
};

}  // namespace quorix
