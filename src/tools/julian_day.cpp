#include "tools/julian_day.h"

#include <algorithm>
#include <cmath>

#include "tools/calendar_rules.h"

namespace quorix {

namespace {

constexpr double kHoursPerDay = 24.0;
/// Days beyond this have no 32-bit year.
constexpr double kLargestJulianDay = 7.8e11;
/// 15 October 1582 at noon.
constexpr double kGregorianStart = 2299161.0;

std::int32_t& TimeZone() {
    static constinit std::int32_t hours = 7;
    return hours;
}

bool IsJulian(std::int32_t day, std::int32_t month, std::int32_t year) {
    return year < 1582 || (year == 1582 && (month < 10 || (month == 10 && day < 15)));
}

}  // namespace

std::int32_t CalendarTimeZone() {
    return TimeZone();
}

void SetCalendarTimeZone(std::int32_t hours) {
    TimeZone() = hours;
}

double JulianDayFromDate(std::int32_t day, std::int32_t month, std::int32_t year) {
    const std::int64_t d = day;
    const std::int64_t m = month;
    const std::int64_t y = year;
    const std::int64_t januaryBack = (m - 9) / 7;  // truncates: -1 in January and February, else 0
    const std::int64_t monthDays = FloorDivide(275 * m, 9);
    if (IsJulian(day, month, year)) {
        const std::int64_t leapDays = FloorDivide(7 * (y + 5001 + januaryBack), 4);
        return static_cast<double>(367 * y - leapDays + monthDays + d) + 1729776.5;
    }
    const std::int64_t leapDays = FloorDivide(7 * (y + FloorDivide(m + 9, 12)), 4);
    const std::int64_t centuries = FloorDivide(3 * (FloorDivide(y + januaryBack, 100) + 1), 4);
    return static_cast<double>(367 * y - leapDays - centuries + monthDays + d) + 1721028.5;
}

SolarDate DateFromJulianDay(double julianDay) {
    const double bounded =
        std::isnan(julianDay) ? 0.0 : std::clamp(julianDay, -kLargestJulianDay, kLargestJulianDay);
    double z = std::floor(bounded + 0.5);
    const double f = bounded + 0.5 - z;
    if (z >= kGregorianStart) {
        const double a = std::floor((z - 1867216.25) / 36524.25);
        z = z + a - std::floor(a / 4.0) + 1.0;
    }
    const double b = z + 1524.0;
    const double c = std::floor((b - 122.1) / 365.25);
    const double d = std::floor(365.25 * c);
    const double e = std::floor((b - d) / 30.6001);
    const auto day = static_cast<std::int32_t>(std::floor(b - std::floor(30.6001 * e) - d + f));
    const auto month = static_cast<std::int32_t>(e < 14.0 ? e - 1.0 : e - 13.0);
    const auto year = static_cast<std::int32_t>(month < 3 ? c - 4715.0 : c - 4716.0);
    SolarDate date(year, 1, 1);
    date.SetClamped(year, month, day, 12, 0, 0);
    return date;
}

double LocalJulianDay(std::int32_t day, std::int32_t month, std::int32_t year) {
    return JulianDayFromDate(day, month, year) - CalendarTimeZone() / kHoursPerDay;
}

SolarDate LocalDateFromJulianDay(double julianDay) {
    return DateFromJulianDay(julianDay + CalendarTimeZone() / kHoursPerDay);
}

}  // namespace quorix
