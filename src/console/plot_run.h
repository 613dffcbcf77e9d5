#pragma once

#include <string>

#include "console/console_options.h"
#include "console/console_session.h"

namespace quorix {

struct PlotOutcome {
    /// Whether the file was written and every function has a value somewhere in it.
    bool succeeded = false;
    /// What went wrong (UTF-8), a line each.
    std::string messages;
};

/// Draws the functions of x that are the arguments into options.plotFile.
PlotOutcome RunPlot(const ConsoleSession& session, const ConsoleOptions& options);

}  // namespace quorix
