#pragma once

// Lunisolar dates by the Vietnamese calendar, and the solar terms.

#include <cstdint>
#include <string>

#include "tools/solar_date.h"

namespace quorix {

class LunarDate {
  public:
    /// Every number 0.
    LunarDate() = default;
    /// A month outside 1 to 12 becomes 1, a day outside 1 to 30 becomes 1. leap: 0 or 1.
    LunarDate(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t leapMonth);
    LunarDate(const LunarDate&) = default;
    LunarDate(LunarDate&&) = default;
    LunarDate& operator=(const LunarDate&) = default;
    LunarDate& operator=(LunarDate&&) = default;
    virtual ~LunarDate() = default;

    void SetToday();
    void Set(const SolarDate& date);

    /// Stem and branch with a blank between. A day before 1900 whose branch would be the first has an empty
    /// one, which is intended.
    [[nodiscard]] std::u16string YearName() const;
    [[nodiscard]] std::u16string MonthName() const;
    [[nodiscard]] std::u16string DayName() const;
    /// Empty on days without a solar term.
    [[nodiscard]] std::u16string SolarTermName() const;
    [[nodiscard]] std::u16string WeekDayName() const;
    /// The word for a leap month; empty for others.
    [[nodiscard]] std::u16string LeapWord() const;

    friend bool operator==(const LunarDate& a, const LunarDate& b) {
        return a.year == b.year && a.month == b.month && a.day == b.day && a.leap == b.leap &&
               a.hour == b.hour && a.minute == b.minute && a.second == b.second;
    }

    std::int32_t hour = 0;
    std::int32_t minute = 0;
    std::int32_t second = 0;
    /// 0 Sunday to 6 Saturday.
    std::int32_t weekDay = 0;
    std::int32_t year = 0;
    std::int32_t month = 0;
    std::int32_t day = 0;
    std::int32_t leap = 0;
    /// Row of the name tables: 0, or 1 for the language whose names were never supplied.
    std::int32_t language = 0;
    /// 0 to 24, 0 for none.
    std::int32_t solarTerm = 0;
};

LunarDate SolarToLunar(const SolarDate& date);

/// The solar day with the time of day of `lunar`; now, when its year has no such month.
SolarDate LunarToSolar(const LunarDate& lunar);

/// The solar term that starts on a day, between its local midnight and the next: 1 to 24, or 0.
std::int32_t SolarTermOf(std::int32_t day, std::int32_t month, std::int32_t year);

}  // namespace quorix
