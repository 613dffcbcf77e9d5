#pragma once

// What a function takes, shown while it is being typed.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorix {

/// The hints of the system's functions, in the order of entry: "gcd(number1, number2)". Rows with spellings
/// of their own ("salvalge", "symetric") are kept so.
std::span<const std::u16string_view> FunctionHints();

/// Whether the function `name` ("gcd", without parenthesis) has a row that lists several arguments.
bool TakesSeveralArguments(std::u16string_view name);

/// A row and where in it the cursor stands.
struct FunctionHint {
    std::u16string text;
    /// Index of the argument in which the cursor stands; 0 on the function itself. May pass the row's last
    /// one.
    int argument = 0;
    friend bool operator==(const FunctionHint&, const FunctionHint&) = default;
};

/// Offset and length of an argument in a row; the last one stands for those beyond it. Length 0 for a row
/// without arguments.
std::pair<std::size_t, std::size_t> ArgumentSpan(std::u16string_view row, int argument);

/// The hint table: the system's rows, then one row for each user macro.
class HintTable {
  public:
    /// Rows "name(p1, p2)" of the macros; replaces those before.
    void SetMacroRows(std::vector<std::u16string> rows) { macros_ = std::move(rows); }

    /// The function that the cursor (an index of tokens) stands in: the function token under the cursor, else
    /// the innermost call that is open there. Parentheses without a function belong to the call round them.
    [[nodiscard]] std::optional<FunctionHint> FindHint(std::u16string_view line,
                                                       std::u16string_view tokenLengths, int cursor) const;

  private:
    /// The row whose name ends the text; a macro's row wins over the system's.
    [[nodiscard]] std::u16string_view RowOfCall(std::u16string_view textBeforeParenthesis) const;

    std::vector<std::u16string> macros_;
};

}  // namespace quorix
