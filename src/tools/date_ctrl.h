#pragma once

// A date and its time of day as parts that are chosen by a tap and changed with the number pad.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tools/date_order.h"
#include "tools/lunar_date.h"
#include "tools/solar_date.h"

namespace quorix {

enum class DatePart : std::uint8_t { weekDay, day, month, year, hour, minute, second };

enum class CalendarKind : std::uint8_t { solar, lunar };

/// Where a part stands in the text of its field.
struct DatePartText {
    DatePart part;
    std::size_t position;
    std::size_t length;
};

inline constexpr char16_t kBackspaceKey = 8;

class DateCtrl {
  public:
    DateCtrl(CalendarKind kind, DateOrder order);

    void SetOrder(DateOrder order) { order_ = order; }
    /// Shows a date; a typed number ends. The date is taken as it is.
    void Set(const SolarDate& date);

    /// The date on show. In a lunar field a date that does not exist is now.
    [[nodiscard]] const SolarDate& Solar() const { return solar_; }
    [[nodiscard]] const LunarDate& Lunar() const { return lunar_; }

    /// Week day, day, month, year, hour, minute and second, "DoW-dd/mm/yyyy-hh-mm-ss" or with the month
    /// first. Years have at least four digits.
    [[nodiscard]] std::u16string Text() const;
    /// The parts of Text() from left to right.
    [[nodiscard]] std::vector<DatePartText> Parts() const;
    /// Of a lunar field: the names of year, month (with the word of a leap month), day and solar term.
    [[nodiscard]] std::u16string LunarNames() const;

    [[nodiscard]] DatePart Selected() const { return selected_; }
    /// Chooses the part at or next before a character of Text(); a week day cannot be chosen, the part
    /// behind it is.
    void SelectAt(std::size_t character);
    /// Chooses the neighbour, stopping at the ends.
    void SelectNext();
    void SelectPrevious();

    /// A digit, or kBackspaceKey. Digits gather to a number, which is put into the date as it was before the
    /// first of them, and normalised; a number as long as its part is followed by a new one. "." in a lunar
    /// field turns a plain month into a leap month and back. False when the key means nothing here.
    bool Type(char16_t key);
    /// Moves the chosen part up or down by one, around its end; years stop at 1 and 9999.
    void Step(int direction);

  private:
    [[nodiscard]] std::int32_t Value(DatePart part) const;
    [[nodiscard]] std::vector<DatePart> EditableParts() const;
    [[nodiscard]] std::int32_t HighestDay() const;
    void SelectNeighbour(int direction);
    void Choose(DatePart part);
    /// Puts `value` into the chosen part of the date from before the number was typed.
    void Put(std::int32_t value);
    void PutSolar(std::int32_t value);
    void PutLunar(std::int32_t value);
    void ShowLunar(LunarDate lunar);

    CalendarKind kind_;
    DateOrder order_;
    SolarDate solar_;
    LunarDate lunar_;
    DatePart selected_;
    std::u16string typed_;
    SolarDate solarBefore_;
    LunarDate lunarBefore_;
};

}  // namespace quorix
