#pragma once

#include "console/console_session.h"

namespace quorix {

/// Evaluates each line of a file descriptor: results go to `output`, messages to `errors`, one a line; blank
/// lines are skipped. Results are collected and written in blocks. Result: whether every line had a result
/// and could be written.
bool RunBatch(ConsoleSession& session, int input, int output, int errors);

}  // namespace quorix
