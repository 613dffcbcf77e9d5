#pragma once

// All pictures of the calculator come from a skin: a text file in the folder "Interfaces" that names PNG
// files and a colour file by key.

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/screen.h"

namespace quorix {

inline constexpr std::u16string_view kInterfacesFolder = u"Interfaces";
inline constexpr std::u16string_view kDefaultSkinFile = u"default.inf";

/// The pictures of the main window, whose paths are kept while a skin is in use.
enum class SkinPath : std::uint8_t {
    largeButtons,
    largeFonts,
    smallButtons,
    smallFonts,
    smallFontsArithmetic,
    smallFontsGeonometry,
    smallFontsBaseConversion,
    smallFontsStatistics,
    smallFontsMatrix,
    smallFontsFinance,
    smallFontsGeneral,
    count
};

inline constexpr std::size_t kSkinPathCount = static_cast<std::size_t>(SkinPath::count);

/// The small-font page of a category 0 to 5.
constexpr SkinPath SmallFontsOf(int category) {
    return static_cast<SkinPath>(static_cast<int>(SkinPath::smallFontsArithmetic) + category);
}

/// A value as the loader uses it: on a VGA screen "_VGA" stands before the last "." of the value, or at its
/// end when there is no "." at position 1 or beyond.
std::u16string ScreenValue(std::string_view value, bool vga);

/// The value of the first line with this key in the text of a skin file; nothing when there is none.
std::optional<std::u16string> FindInSkinText(std::span<const std::uint8_t> text, std::string_view key,
                                             bool vga);

class Skin {
  public:
    /// The folder "Interfaces" lies in `programFolder`. The skin is "default.inf" until Select.
    Skin(const std::filesystem::path& programFolder, const DeviceScreen& screen);

    /// Takes another skin file or screen; paths are read again by LoadSkinPaths.
    void Select(std::u16string_view skinFile) { skinFile_ = skinFile; }
    void SetScreen(const DeviceScreen& screen) { screen_ = screen; }
    [[nodiscard]] const std::u16string& SkinFile() const { return skinFile_; }

    /// The full path for a key (blind to case) in a skin file, or an empty path. An empty `skinFile` means
    /// the current skin. The file is read afresh at each call; the first match wins.
    [[nodiscard]] std::filesystem::path FindSkinValue(std::string_view key,
                                                      std::u16string_view skinFile = {}) const;

    /// Reads the paths of the main window's pictures; the last match of a key wins, a missing key leaves an
    /// empty path. On a square screen "LargeButtonsSquare" and "LargeFontsSquare" stand in for the keys
    /// without "Square". False when the skin file cannot be read: the paths then stay as they were.
    bool LoadSkinPaths();

    /// Full path of one of the main window's pictures; empty when the skin has none.
    [[nodiscard]] const std::filesystem::path& Path(SkinPath which) const {
        return paths_[static_cast<std::size_t>(which)];
    }

  private:
    [[nodiscard]] std::string_view KeyOf(SkinPath which) const;

    std::filesystem::path folder_;
    DeviceScreen screen_;
    std::u16string skinFile_{kDefaultSkinFile};
    std::array<std::filesystem::path, kSkinPathCount> paths_;
};

}  // namespace quorix
