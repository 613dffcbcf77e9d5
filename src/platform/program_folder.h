#pragma once

// Where the program's files lie: one folder that it can write to.

#include <filesystem>
#include <span>
#include <string_view>

namespace quorix {

/// The installed folder itself when it is writable (portable use); otherwise `userFolder`, created and seeded
/// with the installed files that it lacks. When neither can be written the installed folder is returned: the
/// program then runs without saving.
std::filesystem::path FindProgramFolder(const std::filesystem::path& installed,
                                        const std::filesystem::path& userFolder);

/// Copies the shipped content (not the programs) that `folder` lacks; what is there stays.
void SeedFolder(const std::filesystem::path& installed, const std::filesystem::path& folder);

/// $XDG_DATA_HOME/quorix, or ~/.local/share/quorix; empty when neither is known.
std::filesystem::path UserDataFolder();

/// The folder of the running executable; empty when the system does not tell.
std::filesystem::path ExecutableFolder();

}  // namespace quorix
