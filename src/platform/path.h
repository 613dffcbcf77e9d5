#pragma once

// Names as the system's files and tables write them, with backslashes and blind to case, as real files.

#include <filesystem>
#include <string_view>

namespace quorix {

/// The file or folder that `name`, relative to `folder`, means. Both "\" and "/" part folders; empty parts
/// and "." are skipped. Each part is taken as written when such an entry exists, else the entry that differs
/// in case alone (the first by name, if several do), else as written: the path of a file still to be made. A
/// name with ".." or an embedded zero yields an empty path, so that no name leads out of `folder`.
std::filesystem::path ResolvePath(const std::filesystem::path& folder, std::u16string_view name);

/// The small letter of A to Z and of the capitals of Latin-1; any other character as it is.
char16_t FoldCase(char16_t c);

/// True when both names are equal but for the case of letters A to Z and of the letters of Latin-1.
bool SameFileName(std::u16string_view a, std::u16string_view b);

}  // namespace quorix
