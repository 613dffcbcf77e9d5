#include "tools/lunar_year.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "tools/julian_day.h"
#include "tools/lunar_astronomy.h"

namespace quorix {

namespace {

constexpr double kWinterSolstice = 3.0 * std::numbers::pi / 2.0;
/// A year between two months 11 that is longer than this holds thirteen months.
constexpr double kLongestPlainYear = 365.0;

double LocalJulianDayOf(const SolarDate& date) {
    return LocalJulianDay(date.day, date.month, date.year);
}

double LocalJulianDayOf(const LunarMonthRow& row) {
    return LocalJulianDay(row.day, row.month, row.year);
}

LunarMonthRow FirstDayRow(const SolarDate& date) {
    return {date.day, date.month, date.year, 0, 0};
}

/// Which of the twelve stretches between major solar terms holds the sun on the row's first day.
double MajorTermOf(const LunarMonthRow& row) {
    return std::floor(SunLongitude(LocalJulianDayOf(row)) * 6.0 / std::numbers::pi);
}

/// Number of the first row without a major term, or their count if every one has its term.
std::size_t LeapRow(const LunarYearTable& rows) {
    double term = MajorTermOf(rows.front());
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        const double next = MajorTermOf(rows[i + 1]);
        if (next == term) {
            return i;
        }
        term = next;
    }
    return rows.size();
}

std::int32_t MonthOfPosition(std::size_t position) {
    const auto month = static_cast<std::int32_t>(position % 12);
    return month == 0 ? 12 : month;
}

std::int32_t BoundedYear(std::int32_t year) {
    return std::clamp(year, kFirstLunarYear, kLastLunarYear);
}

struct CacheSlot {
    std::int32_t year = 0;
    std::int32_t zone = 0;
    LunarYear table;
};

/// A power of two, so that neighbouring years have slots of their own.
constexpr std::uint32_t kCachedYears = 64;

}  // namespace

SolarDate LunarMonth11(std::int32_t year) {
    const double lastDay = LocalJulianDay(31, 12, BoundedYear(year));
    const auto k = static_cast<std::int64_t>(std::floor((lastDay - kReferenceNewMoon) / kSynodicMonth));
    const SolarDate first = LocalDateFromJulianDay(NewMoon(k));
    return SunLongitude(LocalJulianDayOf(first)) > kWinterSolstice ? LocalDateFromJulianDay(NewMoon(k - 1))
                                                                   : first;
}

LunarYearTable BuildLunarYear(std::int32_t givenYear) {
    const std::int32_t year = BoundedYear(givenYear);
    const SolarDate begin = LunarMonth11(year - 1);
    const SolarDate end = LunarMonth11(year);
    const double beginDay = LocalJulianDayOf(begin);
    const auto k =
        static_cast<std::int64_t>(std::floor((beginDay - kReferenceNewMoon) / kSynodicMonth + 0.5));
    const bool isLong = LocalJulianDayOf(end) - beginDay > kLongestPlainYear;

    LunarYearTable rows(isLong ? 14 : 13);
    rows.front() = FirstDayRow(begin);
    rows.back() = FirstDayRow(end);
    for (std::size_t i = 1; i + 1 < rows.size(); ++i) {
        rows[i] = FirstDayRow(LocalDateFromJulianDay(NewMoon(k + static_cast<std::int64_t>(i))));
    }
    const std::size_t leapRow = isLong ? LeapRow(rows) : rows.size();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].lunarMonth = MonthOfPosition(i >= leapRow ? i + 10 : i + 11);
        rows[i].leap = i == leapRow ? 1 : 0;
    }
    return rows;
}

const LunarYear& CachedLunarYear(std::int32_t year) {
    static std::array<CacheSlot, kCachedYears> cache;
    CacheSlot& slot = cache[static_cast<std::uint32_t>(year) % kCachedYears];
    if (slot.table.rows.empty() || slot.year != year || slot.zone != CalendarTimeZone()) {
        slot.year = year;
        slot.zone = CalendarTimeZone();
        slot.table.rows = BuildLunarYear(year);
        slot.table.firstDays.clear();
        for (const LunarMonthRow& row : slot.table.rows) {
            slot.table.firstDays.push_back(LocalJulianDayOf(row));
        }
    }
    return slot.table;
}

}  // namespace quorix
