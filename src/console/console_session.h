#pragma once

#include <string>
#include <string_view>

#include "console/console_options.h"

namespace quorix {

/// Evaluates lines one after the other; each good result is [ans] of the next.
class ConsoleSession {
  public:
    explicit ConsoleSession(const ConsoleOptions& options) : options_(options) {}

    /// Appends the result of a line (UTF-8, display notation) to `output`, or the message when it has an
    /// error. Result: whether it is a result. The angle unit is that of the options for each line anew.
    bool Evaluate(std::string_view line, std::string& output);

  private:
    ConsoleOptions options_;
};

}  // namespace quorix
