#pragma once

// What the pages of the preferences dialog offer and change, without the dialog.

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "shell/preferences.h"

namespace quorix {

using CategoryOrder = std::array<std::uint8_t, kCategoryCount>;

enum class RowMove : std::uint8_t { top, up, down, bottom };

/// Moves row `row` (0 to 15) of the order; the others keep theirs. Returns the row where it stands now.
int MoveRow(CategoryOrder& order, int row, RowMove move);

/// A file that can be chosen: as the list shows it, and its name.
struct FileChoice {
    std::u16string shown;
    std::u16string file;
};

/// The files that match a pattern ("Sounds\*.wav"), shown without their ending, sorted by name.
std::vector<FileChoice> FilesIn(const std::filesystem::path& programFolder, std::u16string_view pattern);
/// The skins of the program folder; "default.inf" is shown as "Default" and stands first.
std::vector<FileChoice> SkinChoices(const std::filesystem::path& programFolder);
std::vector<FileChoice> SoundChoices(const std::filesystem::path& programFolder);

/// Input mode of a choice of "String" or "Basic", and of "Standard" or "RPN" for the latter.
std::u16string_view InputModeOf(bool basic, bool reversePolish);

inline constexpr std::array<std::u16string_view, 3> kLocaleChoices = {u"English (US)", u"English (UK)",
                                                                      u"European"};
inline constexpr std::array<std::u16string_view, 3> kFractionChoices = {u"1/1.000", u"1/1.000.000",
                                                                        u"1/1.000.000.000"};

}  // namespace quorix
