#pragma once

// What quorix-calc does besides calculating lines.

#include <string>

#include "console/console_options.h"

namespace quorix {

/// Runs the task of the options and writes its lines (UTF-8) to `output`, or its message when it fails.
/// Result: whether it succeeded.
bool RunTask(const ConsoleOptions& options, std::string& output);

}  // namespace quorix
