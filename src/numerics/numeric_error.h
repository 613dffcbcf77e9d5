#pragma once

// The debug stream that reports of the number core go to.

#include <string_view>

namespace quorix {

/// Writes one line to the debug stream; nothing happens while none is set.
void WriteDebugLine(std::string_view line);

}  // namespace quorix
