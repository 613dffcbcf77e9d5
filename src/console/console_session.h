#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "console/assignment.h"
#include "console/console_options.h"
#include "engine/calc_value.h"

namespace quorix {

/// Evaluates lines one after the other; each good result is [ans] of the next.
class ConsoleSession {
  public:
    explicit ConsoleSession(const ConsoleOptions& options) : options_(options) {}

    /// Appends the result of a line (UTF-8, display notation) to `output`, or the message when it has an
    /// error. Result: whether it is a result. The angle unit is that of the options for each line anew. A
    /// line may set a variable; its result is the value. The matrix operators are those handed to
    /// SetMatrixOperators.
    bool Evaluate(std::string_view line, std::string& output);

    /// A text in display notation as the engine takes it, radix 10; nothing when it is too long.
    [[nodiscard]] std::optional<std::u16string> EngineText(std::string_view text) const;

  private:
    // Each gives nothing when it fails; what is wrong stands in error_, or a code in calcError.
    std::optional<CalcValue> Compute(std::u16string_view displayText);
    std::optional<CalcValue> Assign(const Assignment& assignment);
    std::optional<CalcValue> ValueToAssign(const Assignment& assignment);
    void AppendValue(const CalcValue& value, std::string& output) const;
    [[nodiscard]] char16_t DecimalSign() const;

    ConsoleOptions options_;
    std::string error_;
};

}  // namespace quorix
