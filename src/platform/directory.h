#pragma once

// Which files of a folder match a pattern. Handles no messages.

#include <filesystem>
#include <string_view>
#include <vector>

namespace quorix {

/// The regular files that match `pattern`, a name relative to `folder` as ResolvePath takes it whose last
/// part may hold "*" (any text, also none) and "?" (any one character): "Sounds\*.wav". Blind to case, as
/// full paths, sorted by name without regard to case. Empty when the folder is absent or unreadable.
std::vector<std::filesystem::path> ListFiles(const std::filesystem::path& folder,
                                             std::u16string_view pattern);

/// Whether a name matches a pattern of that kind, blind to case.
bool MatchesPattern(std::u16string_view name, std::u16string_view pattern);

}  // namespace quorix
