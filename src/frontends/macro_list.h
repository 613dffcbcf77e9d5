#pragma once

// The user's macros: named expressions with parameters, kept in the order of their names.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Code of a call that cannot be expanded.
inline constexpr int kInvalidMacro = -52;

struct Macro {
    std::u16string name;
    /// Parameter names, separated by ",".
    std::u16string parameters;
    std::uint8_t parameterCount = 0;
    /// Free text, shown behind the name in the function list.
    std::u16string remark;
    /// The body as display text of the editor line, and the lengths of its tokens.
    std::u16string expression;
    std::u16string tokenLengths;
    friend bool operator==(const Macro&, const Macro&) = default;
};

class MacroList {
  public:
    [[nodiscard]] const std::vector<Macro>& All() const { return macros_; }
    /// The macro of a name, blind to case; null when there is none.
    [[nodiscard]] const Macro* Find(std::u16string_view name) const;

    /// Overwrites the macro of that name (blind to case) or inserts a new one behind the last whose name
    /// sorts below. Control characters go; a macro without a name is none.
    void Store(Macro macro);
    void Remove(std::u16string_view name);
    /// The number locale has changed: the bodies, display text as they are, keep their values.
    void ExchangeDecimalSigns();

    /// Adds a macro of a file. When its name is taken it gets the first free one of "Ma" to "Mz"; when none
    /// is free, or the very same macro is there already, it is dropped. False when it was dropped for want of
    /// a name.
    bool Merge(Macro macro);

  private:
    std::vector<Macro> macros_;
};

/// "name(p1, p2)", as the function list and the hints show a macro.
std::u16string CallTextOf(const Macro& macro);

/// What choosing a macro puts into the line: its name with "(" (and ")" where it takes nothing), as few
/// tokens as their length allows.
struct CallTokens {
    std::u16string text;
    std::u16string lengths;
};
CallTokens CallTokensOf(const Macro& macro);

/// Replaces every call of a macro in a display line by its body, parenthesised. Calls in arguments are
/// expanded, those inside bodies are not. False, with calcError -52, when a call has unbalanced parentheses,
/// too few arguments or too many levels. Stops growing a line that is longer than kLongestLine.
bool ExpandMacros(const MacroList& macros, std::u16string& line);

}  // namespace quorix
