#pragma once

// One line of the expression editor: text cut into tokens, a cursor that steps over tokens, and the part in
// view.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// Longest text of a line; further insertions are dropped. Longer than any expression that can be evaluated,
/// so that an overlong line can be seen and shortened.
inline constexpr std::size_t kLongestLine = 8192;
/// A token's length is one decimal digit.
inline constexpr std::size_t kLongestToken = 9;

/// How the next paint finds the part in view.
enum class ScrollState : std::uint8_t {
    none,
    keepFirst,  ///< the first visible token stays, the last is found from it
    keepLast,   ///< the view follows: the last visible token stays, the first is found from it
};

/// The text and its tokens. Token k is the next TokenLengths()[k] - '0' characters.
/// Positions (cursor, first and last visible) are indices of tokens; the cursor may stand behind the last
/// one.
class TokenLine {
  public:
    [[nodiscard]] const std::u16string& Text() const { return text_; }
    [[nodiscard]] const std::u16string& TokenLengths() const { return lengths_; }
    [[nodiscard]] int TokenCount() const { return static_cast<int>(lengths_.size()); }
    [[nodiscard]] bool IsEmpty() const { return text_.empty(); }
    [[nodiscard]] int Cursor() const { return cursor_; }
    [[nodiscard]] int FirstVisible() const { return firstVisible_; }
    /// -1 until the first paint.
    [[nodiscard]] int LastVisible() const { return lastVisible_; }
    [[nodiscard]] std::u16string_view Token(int index) const;
    /// Character offset of token `at` (0 to TokenCount()).
    [[nodiscard]] std::size_t OffsetOf(int at) const;

    void Clear();
    /// Replaces everything. Lengths that do not add up to the text are cut anew into tokens of width 1.
    void Set(std::u16string_view text, std::u16string_view lengths);
    /// The text of the other number locale; tokens and positions stay.
    void ExchangeDecimalSigns();
    /// Cursor and view to the start, as behind an inserted result.
    void ResetPositions();

    /// Inserts a token (1 to 9 characters) before token `at`, moves the cursor one right and lets the view
    /// follow. A token that would make the line longer than kLongestLine is dropped.
    void InsertToken(int at, std::u16string_view token);
    /// Inserts every character as a token of width 1 at the cursor.
    void InsertCharacters(std::u16string_view text);
    /// Inserts a text cut into tokens at the cursor; tokens that do not fit the line any more are left out.
    /// Lengths that do not add up to the text are cut anew into tokens of width 1.
    void InsertTokens(std::u16string_view text, std::u16string_view lengths);
    /// Removes the token at `at`; behind the last token the cursor steps back and the last one goes.
    void DeleteToken(int at);

    void MoveLeft(int count);
    void MoveRight(int count);
    /// 0 to TokenCount(); others are clamped.
    void SetCursor(int at);

    /// Finds the part in view. widths: one per token, any unit; room: of the row in the same unit, that kept
    /// free for the cursor at the end excluded.
    void UpdateView(std::span<const int> widths, int room);
    /// The row has another width: the view is to be filled again from its last token.
    void RefillView() { scroll_ = ScrollState::keepLast; }
    /// True when UpdateView has to run before the next paint.
    [[nodiscard]] ScrollState Scroll() const { return scroll_; }

  private:
    void ShowForward(std::span<const int> widths, int room);
    void ShowBackward(std::span<const int> widths, int room);

    std::u16string text_;
    std::u16string lengths_;
    int cursor_ = 0;
    int firstVisible_ = 0;
    int lastVisible_ = -1;
    ScrollState scroll_ = ScrollState::none;
};

}  // namespace quorix
