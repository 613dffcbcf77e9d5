#pragma once

// Typing the name of a function: a list of names opens at the cursor, and the chosen one goes into the line
// as its key would enter it.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frontends/expression_editor.h"

namespace quorix {

/// Keys that the open list takes.
enum class TypeAheadKey : std::uint8_t { up, down, accept, backspace, escape };

class TypeAhead {
  public:
    /// One row of the list.
    struct Candidate {
        std::u16string_view name;
        std::int32_t key = KEY_NONE;  ///< KEY_NONE for a macro.
        /// What a macro's row puts into the line.
        std::u16string_view call = {};
    };
    struct Macro {
        std::u16string name;
        std::u16string call;
    };

    /// editor outlives this; `changed` is told of every change of the list.
    explicit TypeAhead(ExpressionEditor& editor, std::function<void()> changed = {})
        : editor_(editor), changed_(std::move(changed)) {}

    /// The user's macros; their rows stand among the others. Closes the list.
    void SetMacros(std::vector<Macro> macros);

    /// A typed character, before anybody else takes it. True when it is used up.
    ///   - Closed: a letter that begins some name opens the list. "x", "M" and "R" are keys and never do; nor
    ///     do the digits A to F of base 16.
    ///   - Open: a character that leads on to some name lengthens the prefix. Another one, behind a whole
    ///     name, first accepts that name; then it goes its own way, unless it is the "(" or "^" that the name
    ///     has brought. A digit behind "e" makes that the power of ten ("1e5"). Anything else is refused, so
    ///     that no half word is lost in silence.
    bool HandleCharacter(char16_t character);
    /// True while the list is open.
    bool HandleKey(TypeAheadKey key);
    /// Takes the row into the line and closes.
    void Accept(std::size_t row);
    void Choose(std::size_t row);
    /// A key of the pad ends the word: a whole name goes into the line, a part of one is given up.
    void Finish();
    /// Closes without a choice: another key, a tap, a change of category.
    void Close();

    [[nodiscard]] bool IsOpen() const { return !prefix_.empty(); }
    [[nodiscard]] const std::u16string& Prefix() const { return prefix_; }
    /// Names that begin with the prefix, blind to case: those that begin with it to the letter first, then
    /// the shorter ones, then by alphabet.
    [[nodiscard]] const std::vector<Candidate>& Candidates() const { return candidates_; }
    [[nodiscard]] std::size_t Chosen() const { return chosen_; }

  private:
    [[nodiscard]] bool MayOpen(char16_t character) const;
    [[nodiscard]] std::vector<Candidate> CandidatesFor(std::u16string_view prefix) const;
    void SetPrefix(std::u16string prefix);
    bool EndWord(char16_t character);
    void Insert(const Candidate& candidate);

    ExpressionEditor& editor_;
    std::function<void()> changed_;
    std::vector<Macro> macros_;
    std::u16string prefix_;
    std::vector<Candidate> candidates_;
    std::size_t chosen_ = 0;
};

}  // namespace quorix
