#pragma once

// A length of time in four counts, and the field that shows and edits it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quorix {

struct TimeInterval {
    std::int64_t days = 0;
    std::int64_t hours = 0;
    std::int64_t minutes = 0;
    std::int64_t seconds = 0;
    friend bool operator==(const TimeInterval&, const TimeInterval&) = default;
};

/// Seconds carried into minutes, minutes into hours, hours into days; a negative total has no positive count.
/// Counts that 64 bits do not hold stay at the limit.
TimeInterval Normalised(const TimeInterval& interval);
TimeInterval operator+(const TimeInterval& a, const TimeInterval& b);
TimeInterval operator-(const TimeInterval& a, const TimeInterval& b);
/// Whether the total lies below zero.
bool IsNegative(const TimeInterval& interval);

class TimeCtrl {
  public:
    static constexpr std::size_t kPartCount = 4;
    /// Digits that a count can have.
    static constexpr std::size_t kLongestCount = 18;

    void Set(const TimeInterval& interval);
    [[nodiscard]] const TimeInterval& Interval() const { return interval_; }

    /// "1 day, 2 hours, 3 minutes, 4 seconds"; counts below 2 take the singular, so zero and negative ones.
    [[nodiscard]] std::u16string Text() const;
    /// Where the count of a part (0 days to 3 seconds) starts in Text().
    [[nodiscard]] std::size_t PartPosition(std::size_t part) const;

    [[nodiscard]] std::size_t Selected() const { return selected_; }
    /// Chooses the part at or next before a character of Text().
    void SelectAt(std::size_t character);
    void SelectNext();
    void SelectPrevious();

    /// A digit, kBackspaceKey (8), or "-", which changes the sign. The first digit behind a choice starts a
    /// new count. False when the key means nothing here or the count is full.
    bool Type(char16_t key);
    /// Moves the chosen count up or down by one, not below zero.
    void Step(int direction);

  private:
    [[nodiscard]] std::int64_t& Count(std::size_t part);
    void Choose(std::size_t part);

    TimeInterval interval_;
    std::size_t selected_ = 0;
    bool isTyping_ = false;
};

}  // namespace quorix
