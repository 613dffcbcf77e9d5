#include "shell/skin.h"

#include "platform/files.h"
#include "platform/path.h"
#include "shell/key_value_lines.h"

namespace quorix {

namespace {

struct PathKeys {
    std::string_view key;
    std::string_view squareKey;  ///< What a square screen reads instead.
};

constexpr PathKeys Everywhere(std::string_view key) {
    return {key, key};
}

/// In the order of SkinPath. The page of Trigonometry is spelt "Geonometry".
constexpr std::array<PathKeys, kSkinPathCount> kPathKeys = {{
    {"LargeButtons", "LargeButtonsSquare"},
    {"LargeFonts", "LargeFontsSquare"},
    Everywhere("SmallButtons"),
    Everywhere("SmallFonts"),
    Everywhere("SmallFontsArithmetic"),
    Everywhere("SmallFontsGeonometry"),
    Everywhere("SmallFontsBaseConversion"),
    Everywhere("SmallFontsStatistics"),
    Everywhere("SmallFontsMatrix"),
    Everywhere("SmallFontsFinance"),
    Everywhere("SmallFontsGeneral"),
}};
static_assert(!kPathKeys.back().key.empty(), "a key for each path");

constexpr std::u16string_view kVgaMark = u"_VGA";

}  // namespace

std::u16string ScreenValue(std::string_view value, bool vga) {
    std::u16string text;
    for (const char c : value) {
        // The file's single-byte code page is Latin-1, whose codes are those of the 16-bit text.
        text.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    }
    if (vga) {
        const std::size_t point = text.rfind(u'.');
        text.insert(point == text.npos || point == 0 ? text.size() : point, kVgaMark);
    }
    return text;
}

std::optional<std::u16string> FindInSkinText(std::span<const std::uint8_t> text, std::string_view key,
                                             bool vga) {
    std::optional<std::u16string> found;
    ForEachKeyValue(text, [&](std::string_view lineKey, std::string_view value) {
        if (SameKey(lineKey, key)) {
            found = ScreenValue(value, vga);
        }
        return !found;
    });
    return found;
}

Skin::Skin(const std::filesystem::path& programFolder, const DeviceScreen& screen)
    : folder_(ResolvePath(programFolder, kInterfacesFolder)), screen_(screen) {}

std::filesystem::path Skin::FindSkinValue(std::string_view key, std::u16string_view skinFile) const {
    const auto text = ReadWholeFile(ResolvePath(folder_, skinFile.empty() ? skinFile_ : skinFile));
    if (!text) {
        return {};
    }
    const auto value = FindInSkinText(*text, key, screen_.IsVga());
    return value ? ResolvePath(folder_, *value) : std::filesystem::path{};
}

std::string_view Skin::KeyOf(SkinPath which) const {
    const PathKeys& keys = kPathKeys[static_cast<std::size_t>(which)];
    return screen_.IsSquare() ? keys.squareKey : keys.key;
}

bool Skin::LoadSkinPaths() {
    const auto text = ReadWholeFile(ResolvePath(folder_, skinFile_));
    if (!text) {
        return false;
    }
    std::array<std::optional<std::u16string>, kSkinPathCount> values;
    ForEachKeyValue(*text, [&](std::string_view key, std::string_view value) {
        for (std::size_t i = 0; i < kSkinPathCount; ++i) {
            if (SameKey(key, KeyOf(static_cast<SkinPath>(i)))) {
                values[i] = ScreenValue(value, screen_.IsVga());
            }
        }
        return true;
    });
    for (std::size_t i = 0; i < kSkinPathCount; ++i) {
        paths_[i] = values[i] ? ResolvePath(folder_, *values[i]) : std::filesystem::path{};
    }
    return true;
}

}  // namespace quorix
