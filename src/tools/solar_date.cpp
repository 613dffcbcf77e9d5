#include "tools/solar_date.h"

#include <algorithm>
#include <limits>

#include "tools/calendar_clock.h"
#include "tools/calendar_rules.h"

namespace quorix {

namespace {

using Limits32 = std::numeric_limits<std::int32_t>;
using Limits64 = std::numeric_limits<std::int64_t>;

constexpr std::int64_t kHoursPerDay = 24;
constexpr std::int64_t kMinutesPerDay = 24 * 60;
constexpr std::int64_t kSecondsPerDay = 24 * 60 * 60;

constexpr std::int64_t kFirstSerial = DaySerial(Limits32::min(), 1, 1);
constexpr std::int64_t kLastSerial = DaySerial(Limits32::max(), 12, 31);

constexpr bool IsWithin(std::int32_t value, std::int32_t low, std::int32_t high) {
    return value >= low && value <= high;
}

constexpr std::int64_t Negated(std::int64_t n) {
    return n == Limits64::min() ? Limits64::max() : -n;
}

std::int64_t ClampedSerial(const SolarDate& date) {
    const std::int32_t month = std::clamp(date.month, 1, 12);
    return DaySerial(date.year, month, std::clamp(date.day, 1, DaysInMonth(date.year, month)));
}

}  // namespace

SolarDate::SolarDate() {
    const LocalTime now = CalendarClock().Now();
    const auto number = [](std::uint32_t value) { return static_cast<std::int32_t>(value); };
    *this = SolarDate(number(now.date.year), number(now.date.month), number(now.date.day), number(now.hour),
                      number(now.minute), number(now.second));
}

SolarDate::SolarDate(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t h, std::int32_t min,
                     std::int32_t s)
    : year(y),
      month(IsWithin(m, 1, 12) ? m : 1),
      day(IsWithin(d, 1, DaysInMonth(y, month)) ? d : 1),
      hour(IsWithin(h, 0, 23) ? h : 0),
      minute(IsWithin(min, 0, 59) ? min : 0),
      second(IsWithin(s, 0, 59) ? s : 0) {}

void SolarDate::SetClamped(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t h, std::int32_t min,
                           std::int32_t s) {
    year = y;
    month = std::clamp(m, 1, 12);
    day = std::clamp(d, 1, DaysInMonth(year, month));
    hour = std::clamp(h, 0, 23);
    minute = std::clamp(min, 0, 59);
    second = std::clamp(s, 0, 59);
}

bool SolarDate::Normalise() {
    const SolarDate constructed(year, month, day, hour, minute, second);
    SetClamped(std::max(year, 1), month, day, hour, minute, second);
    return *this != constructed;
}

void SolarDate::Add(std::int64_t n, std::int64_t perDay, std::int64_t seconds) {
    SetClamped(year, month, day, hour, minute, second);
    const std::int64_t wholeDays = FloorDivide(n, perDay);
    const std::int64_t time =
        hour * 3600 + minute * 60 + second + FloorModulo(n, perDay) * seconds;  // below two days
    // A count beyond the calendar's ends means its end; this also keeps the sum below from overflowing.
    const std::int64_t span = kLastSerial - kFirstSerial;
    const std::int64_t serial = DaySerial(year, month, day) + std::clamp(wholeDays, -span - 1, span) +
                                FloorDivide(time, kSecondsPerDay);
    const CivilDay civil = DayOfSerial(std::clamp(serial, kFirstSerial, kLastSerial));
    const auto rest = static_cast<std::int32_t>(FloorModulo(time, kSecondsPerDay));
    *this = SolarDate(static_cast<std::int32_t>(civil.year), civil.month, civil.day, rest / 3600,
                      rest / 60 % 60, rest % 60);
}

void SolarDate::AddDays(std::int64_t n) {
    Add(n, 1, kSecondsPerDay);
}

void SolarDate::AddHours(std::int64_t n) {
    Add(n, kHoursPerDay, 3600);
}

void SolarDate::AddMinutes(std::int64_t n) {
    Add(n, kMinutesPerDay, 60);
}

SolarDate SolarDate::AddSeconds(std::int64_t n) const {
    SolarDate sum = *this;
    sum.Add(n, kSecondsPerDay, 1);
    return sum;
}

void SolarDate::SubDays(std::int64_t n) {
    AddDays(Negated(n));
}

void SolarDate::SubHours(std::int64_t n) {
    AddHours(Negated(n));
}

void SolarDate::SubMinutes(std::int64_t n) {
    AddMinutes(Negated(n));
}

SolarDate SolarDate::SubSeconds(std::int64_t n) const {
    return AddSeconds(Negated(n));
}

void SolarDate::NextDay() {
    if (day < DaysInMonth(year, month)) {
        ++day;
        return;
    }
    day = 1;
    if (month < 12) {
        ++month;
        return;
    }
    month = 1;
    year = year < Limits32::max() ? year + 1 : year;
}

void SolarDate::PreviousDay() {
    if (day > 1) {
        --day;
        return;
    }
    if (month > 1) {
        --month;
    } else {
        month = 12;
        year = year > Limits32::min() ? year - 1 : year;
    }
    day = DaysInMonth(year, month);
}

int SolarDate::DayOfWeek(bool sundayIsZero) const {
    constexpr std::int64_t kThursday = 3;  // of 1 January 1970, counted from Monday
    const int weekday = static_cast<int>(FloorModulo(ClampedSerial(*this) + kThursday, 7)) + 1;
    return sundayIsZero ? weekday % 7 : weekday;
}

bool IsAfter(const SolarDate& a, const SolarDate& b) {
    if (a.year != b.year) {
        return a.year > b.year;
    }
    if (a.month > b.month || (a.month == b.month && a.day > b.day)) {
        return true;
    }
    // From here on the months are not looked at any more, which is intended.
    if (a.day != b.day) {
        return false;
    }
    if (a.hour != b.hour) {
        return a.hour > b.hour;
    }
    return a.minute > b.minute || (a.minute == b.minute && a.second > b.second);
}

std::int64_t DaysBetween(const SolarDate& a, const SolarDate& b) {
    return ClampedSerial(a) - ClampedSerial(b);
}

}  // namespace quorix
