#pragma once

// Whole files in and out, so that nothing a user owns is lost to a crash or a full disk.
// No call handles messages before it returns.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace quorix {

/// State and data files above this size (bytes) are treated as unreadable: memory stays bounded.
inline constexpr std::uintmax_t kLargestFile = 64U * 1024U * 1024U;

/// The file's bytes; nothing when it is absent, no regular file, too large or unreadable.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::filesystem::path& path);

/// Writes to a temporary file in the same folder, flushes it to the disk and renames it over `path`, so that
/// `path` holds either the old or the new content at every moment. False leaves the old file untouched.
bool WriteFileAtomically(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

/// Removes the temporary files that killed programs have left in `folder`; those of running programs stay.
void RemoveAbandonedTemporaries(const std::filesystem::path& folder);

/// Renames a damaged file to "NAME.bad" (an older one of that name is replaced). False when it cannot.
bool KeepDamagedFile(const std::filesystem::path& path);

}  // namespace quorix
