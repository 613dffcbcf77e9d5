#include "shell/colours.h"

#include <optional>
#include <string_view>

#include "platform/files.h"
#include "shell/key_value_lines.h"

namespace quorix {

namespace {

/// In the order of SkinColour. "Boder" is the files' own spelling.
constexpr std::array<std::string_view, kSkinColourCount> kColourKeys = {
    "BoderColor0",
    "BoderColor1",
    "BoderColor2",
    "BoderColor3",
    "BoderColor4",
    "EditBoxBoderColor",
    "ListBoxBoderColor",
    "EquationSolver_Border0",
    "EquationSolver_Border1",
    "EquationSolver_Border2",
    "Sheet",
    "SheetInk",
    "SheetLine",
    "SheetAccent",
    "Chosen",
    "ChosenInk",
    "GraphSurface",
    "GraphCurve0",
    "GraphCurve1",
    "GraphCurve2",
    "CrossHair",
};
static_assert(!kColourKeys.back().empty(), "a key for each colour");

/// The decimal number at the start of a text, modulo 256; 0 when there is none.
std::uint8_t LeadingNumber(std::string_view text) {
    std::size_t at = text.find_first_not_of(" \t");
    if (at == text.npos) {
        return 0;
    }
    const bool negative = text[at] == '-';
    if (negative || text[at] == '+') {
        ++at;
    }
    unsigned value = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
        value = (value * 10 + static_cast<unsigned>(text[at] - '0')) % 256;
    }
    return static_cast<std::uint8_t>(negative ? 256 - value : value);
}

std::optional<ColorRef> ParseColour(std::string_view value) {
    const std::size_t first = value.find(',');
    if (first == value.npos) {
        return std::nullopt;
    }
    const std::size_t second = value.find(',', first + 1);
    if (second == value.npos || second + 1 == value.size()) {
        return std::nullopt;
    }
    return MakeColor(LeadingNumber(value.substr(0, first)), LeadingNumber(value.substr(first + 1)),
                     LeadingNumber(value.substr(second + 1)));
}

}  // namespace

void SkinColours::Read(std::span<const std::uint8_t> text) {
    ForEachKeyValue(text, [&](std::string_view key, std::string_view value) {
        for (std::size_t i = 0; i < kSkinColourCount; ++i) {
            if (SameKey(key, kColourKeys[i])) {
                colours_[i] = ParseColour(value).value_or(colours_[i]);
            }
        }
        return true;
    });
}

bool SkinColours::LoadColours(const std::filesystem::path& path) {
    const auto text = ReadWholeFile(path);
    if (!text) {
        return false;
    }
    Read(*text);
    return true;
}

}  // namespace quorix
