#pragma once

// What a line was before each edit, so that edits can be taken back and done again.

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace quorix {

/// A line between two edits.
struct LineState {
    std::u16string text;
    std::u16string lengths;
    int cursor = 0;
    /// The base in which the line was written.
    std::int32_t base = 0;
};

/// The history of one line. Both ways are bounded: the oldest steps go when there are more than kMostSteps or
/// when their texts together pass kMostCharacters.
class LineHistory {
  public:
    static constexpr std::size_t kMostSteps = 200;
    static constexpr std::size_t kMostCharacters = std::size_t{1} << 17U;

    /// An edit was made to `before`: what was taken back cannot be done again.
    void Record(LineState before);
    /// The line before the last edit; `now` can then be done again. Nothing when there is no edit left.
    std::optional<LineState> Undo(LineState now) { return Step(past_, future_, std::move(now)); }
    /// The line before the last Undo.
    std::optional<LineState> Redo(LineState now) { return Step(future_, past_, std::move(now)); }

    [[nodiscard]] bool CanUndo() const { return !past_.empty(); }
    [[nodiscard]] bool CanRedo() const { return !future_.empty(); }

  private:
    using Steps = std::deque<LineState>;

    static std::optional<LineState> Step(Steps& from, Steps& to, LineState now);
    static void Push(Steps& steps, LineState state);

    Steps past_;
    Steps future_;
};

}  // namespace quorix
