#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorix::mtex {

struct ChildLimits {
    std::chrono::milliseconds time;
    std::size_t outputBytes;
    std::size_t memoryBytes;
};

/// Runs the program at `path` with `arguments` (behind its name), without a shell, with an empty environment,
/// in the root folder, and takes its standard output. Nothing when it cannot be started, ends with a signal,
/// or passes a limit, in which case it is killed. It can write no files. Blocks; handles no messages.
std::optional<std::vector<std::uint8_t>> RunChild(const std::string& path,
                                                  const std::vector<std::string>& arguments,
                                                  const ChildLimits& limits);

}  // namespace quorix::mtex
