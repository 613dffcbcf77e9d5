#include "platform/program_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <system_error>

namespace quorix {

namespace {

namespace fs = std::filesystem;

/// What is copied into a user's folder: the shipped content, not the programs.
constexpr std::string_view kSeededFolders[] = {"Interfaces", "Resources", "Sounds",
                                               "Formulas",   "fonts",     "Help"};
/// Of these what a newer installation brings replaces what was copied before; the others hold the user's own
/// work.
constexpr std::string_view kReplacedFolders[] = {"Interfaces", "Resources", "Sounds", "Help", "fonts"};
constexpr std::string_view kReplacedEnding = ".htm";
constexpr std::string_view kSeededEndings[] = {".dat", ".htm", ".mcr"};

bool IsSeeded(const fs::directory_entry& entry) {
    std::error_code error;
    const std::string name = entry.path().filename().string();
    if (entry.is_directory(error)) {
        return std::find(std::begin(kSeededFolders), std::end(kSeededFolders), name) !=
               std::end(kSeededFolders);
    }
    const std::string ending = entry.path().extension().string();
    return std::find(std::begin(kSeededEndings), std::end(kSeededEndings), ending) !=
           std::end(kSeededEndings);
}

bool IsReplaced(const fs::directory_entry& entry) {
    return entry.path().extension() == kReplacedEnding ||
           std::find(std::begin(kReplacedFolders), std::end(kReplacedFolders), entry.path().filename()) !=
               std::end(kReplacedFolders);
}

/// Asks by doing: permissions alone do not tell of read-only file systems.
bool IsWritable(const fs::path& folder) {
    const fs::path probe = folder / (".quorix-" + std::to_string(::getpid()));
    const int descriptor = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return false;
    }
    ::close(descriptor);
    ::unlink(probe.c_str());
    return true;
}

/// Copies files that are not there yet, or older ones, too. What comes out is the user's own, whoever may not
/// write to the original.
void CopyShipped(const fs::path& from, const fs::path& to, fs::copy_options existing) {
    std::error_code error;
    if (fs::is_directory(from, error)) {
        fs::create_directory(to, error);
        fs::permissions(to, fs::perms::owner_all, fs::perm_options::add, error);
        for (const fs::directory_entry& entry : fs::directory_iterator(from, error)) {
            CopyShipped(entry.path(), to / entry.path().filename(), existing);
        }
    } else if (fs::copy_file(from, to, existing, error)) {
        fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, error);
    }
}

}  // namespace

void SeedFolder(const fs::path& installed, const fs::path& folder) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(installed, error)) {
        if (IsSeeded(entry)) {
            CopyShipped(
                entry.path(), folder / entry.path().filename(),
                IsReplaced(entry) ? fs::copy_options::update_existing : fs::copy_options::skip_existing);
        }
    }
}

fs::path FindProgramFolder(const fs::path& installed, const fs::path& userFolder) {
    if (IsWritable(installed) || userFolder.empty()) {
        return installed;
    }
    std::error_code error;
    fs::create_directories(userFolder, error);
    if (!IsWritable(userFolder)) {
        return installed;
    }
    SeedFolder(installed, userFolder);
    return userFolder;
}

fs::path UserDataFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
        return fs::path(data) / "quorix";
    }
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return fs::path(home) / ".local" / "share" / "quorix";
    }
    return {};
}

fs::path ExecutableFolder() {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::path() : executable.parent_path();
}

}  // namespace quorix
