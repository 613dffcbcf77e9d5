#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

/// A folder of this process for the files that a target feeds; made at the first call.
inline const std::filesystem::path& ScratchFolder() {
    static const std::filesystem::path folder = [] {
        auto path = std::filesystem::temp_directory_path() / ("quorix-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder;
}
