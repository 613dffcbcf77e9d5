#pragma once

// A date of the Gregorian calendar with time of day. Nothing here fails: values out of range are reset or
// pulled, as each call tells.

#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

class SolarDate {
  public:
    /// Now, by CalendarClock().
    SolarDate();
    /// Hour outside 0 to 23, minute and second outside 0 to 59 become 0; a month outside 1 to 12 becomes 1,
    /// and a day that the month does not have becomes 1.
    SolarDate(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t h = 0, std::int32_t min = 0,
              std::int32_t s = 0);
    SolarDate(const SolarDate&) = default;
    SolarDate(SolarDate&&) = default;
    SolarDate& operator=(const SolarDate&) = default;
    SolarDate& operator=(SolarDate&&) = default;
    virtual ~SolarDate() = default;

    /// Takes the values and pulls what is out of range to the nearest valid value.
    void SetClamped(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t h, std::int32_t min,
                    std::int32_t s);
    /// Pulls year to at least 1 and the rest as SetClamped does. True when the result differs from what the
    /// constructor makes of the old values: a month or a day below 1 becomes 1 both ways and gives false.
    bool Normalise();

    // Steps from a valid date (one out of range is clamped first). Years beyond 32 bits stay at the limit.
    void AddDays(std::int64_t n);
    void AddHours(std::int64_t n);
    void AddMinutes(std::int64_t n);
    [[nodiscard]] SolarDate AddSeconds(std::int64_t n) const;
    void SubDays(std::int64_t n);
    void SubHours(std::int64_t n);
    void SubMinutes(std::int64_t n);
    [[nodiscard]] SolarDate SubSeconds(std::int64_t n) const;
    void NextDay();
    void PreviousDay();

    /// 1 Monday to 7 Sunday; with the flag 0 Sunday to 6 Saturday. The true one for every date.
    [[nodiscard]] int DayOfWeek(bool sundayIsZero) const;

    /// `pattern` with its letters replaced: Y y year in 4 and 2 digits; M m, D d, H h, G g, I i, S s month,
    /// day, hour, hour of a 12-hour clock, minute and second in 2 digits and without padding; N n and J j the
    /// short names of month and week day. "/" is dropped and the character behind it copied as it is. Numbers
    /// longer than their place keep the lowest digits.
    [[nodiscard]] std::u16string FormatDate(std::u16string_view pattern) const;

    friend bool operator==(const SolarDate& a, const SolarDate& b) {
        return a.year == b.year && a.month == b.month && a.day == b.day && a.hour == b.hour &&
               a.minute == b.minute && a.second == b.second;
    }

    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
    std::int32_t hour;
    std::int32_t minute;
    std::int32_t second;

  private:
    /// Adds `n` units of which `perDay` make a day and which hold `seconds` seconds each.
    void Add(std::int64_t n, std::int64_t perDay, std::int64_t seconds);
};

/// Compares year, month and day, and then, with equal day numbers, the times of day without looking at the
/// month again: 5 March 13:00 is after 5 April 12:00. That is intended; between dates at the same time of day
/// it cannot arise.
bool IsAfter(const SolarDate& a, const SolarDate& b);

/// a minus b in whole days, both clamped and taken at the same time of day.
std::int64_t DaysBetween(const SolarDate& a, const SolarDate& b);

}  // namespace quorix
