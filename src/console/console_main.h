#pragma once

#include <span>
#include <string_view>

namespace quorix {

/// The program: arguments without its name, streams are the process's own. Result: the exit status.
int RunConsole(std::span<const std::string_view> arguments);

}  // namespace quorix
