#pragma once

// The Gregorian calendar, carried on without end in both directions: leap years, months, and days counted
// from 1 January 1970.

#include <cstdint>

namespace quorix {

/// Divisible by 400, or by 4 and not by 100; for every year, also before 1582.
constexpr bool IsLeapYear(std::int64_t year) {
    return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
}

/// Days of a month from 1 to 12; other months count as the nearest of these.
constexpr std::int32_t DaysInMonth(std::int64_t year, std::int32_t month) {
    if (month == 2) {
        return IsLeapYear(year) ? 29 : 28;
    }
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// A quotient rounded downward, and what it leaves; the divisor is positive.
constexpr std::int64_t FloorDivide(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}
constexpr std::int64_t FloorModulo(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t rest = dividend % divisor;
    return rest < 0 ? rest + divisor : rest;
}

struct CivilDay {
    std::int64_t year;
    std::int32_t month;
    std::int32_t day;
};

namespace day_serial {
// Years are counted from 1 March, so that the leap day ends its year and the months before it follow one
// straight line: month m of such a year (0 for March) starts at day (153 m + 2) / 5.
inline constexpr std::int64_t kDaysOfEra = 146097;  // of 400 years
inline constexpr std::int64_t kYearsOfEra = 400;
inline constexpr std::int64_t kDaysToEpoch = 719468;  // 1 March of year 0 to 1 January 1970
}  // namespace day_serial

/// Days from 1 January 1970 to a day of the calendar; within +-2^31 years nothing overflows.
constexpr std::int64_t DaySerial(std::int64_t year, std::int32_t month, std::int32_t day) {
    using namespace day_serial;
    const std::int64_t marchYear = month > 2 ? year : year - 1;
    const std::int64_t era = FloorDivide(marchYear, kYearsOfEra);
    const std::int64_t yearOfEra = marchYear - era * kYearsOfEra;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysOfEra + dayOfEra - kDaysToEpoch;
}

/// The day that `serial` counts; the inverse of DaySerial.
constexpr CivilDay DayOfSerial(std::int64_t serial) {
    using namespace day_serial;
    const std::int64_t shifted = serial + kDaysToEpoch;
    const std::int64_t era = FloorDivide(shifted, kDaysOfEra);
    const std::int64_t dayOfEra = shifted - era * kDaysOfEra;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
    const auto day = static_cast<std::int32_t>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
    const auto month = static_cast<std::int32_t>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    return {yearOfEra + era * kYearsOfEra + (month <= 2 ? 1 : 0), month, day};
}

}  // namespace quorix
