#pragma once

#include <string>

#include "console/console_session.h"

namespace quorix {

/// Reads lines at the terminal with editing and a history that is kept in the user's data folder, until the
/// end of input or the word "exit" or "quit".
void RunPrompt(ConsoleSession& session);

/// File of the history below $XDG_DATA_HOME or ~/.local/share; empty when there is neither.
std::string HistoryPath();

}  // namespace quorix
