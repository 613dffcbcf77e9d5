#include "tools/lunar_date.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/calendar_names.h"
#include "tools/calendar_rules.h"
#include "tools/julian_day.h"
#include "tools/lunar_astronomy.h"
#include "tools/lunar_year.h"

namespace quorix {

namespace {

constexpr double kDegrees = 180.0 / std::numbers::pi;
constexpr double kDegreesPerTerm = 15.0;
/// Months from this one on open the table of the next year.
constexpr std::int32_t kFirstMonthOfTable = 11;

std::u16string StemAndBranch(std::int32_t language, std::int64_t stem, std::int64_t branch) {
    std::u16string name(StemName(language, stem));
    name.push_back(u' ');
    name += BranchName(language, branch);
    return name;
}

std::int32_t BoundedYear(std::int32_t year) {
    return std::clamp(year, kFirstLunarYear, kLastLunarYear - 1);
}

}  // namespace

LunarDate::LunarDate(std::int32_t y, std::int32_t m, std::int32_t d, std::int32_t leapMonth)
    : year(y), month(m >= 1 && m <= 12 ? m : 1), day(d >= 1 && d <= 30 ? d : 1), leap(leapMonth) {}

void LunarDate::SetToday() {
    Set(SolarDate());
}

void LunarDate::Set(const SolarDate& date) {
    *this = SolarToLunar(date);
}

std::u16string LunarDate::YearName() const {
    const std::int64_t y = year;
    return StemAndBranch(language, FloorModulo(y + 6, kStemCount), FloorModulo(y + 8, kBranchCount));
}

std::u16string LunarDate::MonthName() const {
    const std::int64_t months = 12 * static_cast<std::int64_t>(year) + month + 3;
    return StemAndBranch(language, FloorModulo(months, kStemCount),
                         FloorModulo(static_cast<std::int64_t>(month) + 1, kBranchCount));
}

std::u16string LunarDate::DayName() const {
    const std::int64_t n = DaysBetween(LunarToSolar(*this), SolarDate(1900, 1, 1));
    if (n >= 0) {
        return StemAndBranch(language, n % kStemCount, (n + 10) % kBranchCount);
    }
    return StemAndBranch(language, 9 - (-n + 9) % kStemCount, 12 - (-n + 2) % kBranchCount);
}

std::u16string LunarDate::SolarTermName() const {
    return std::u16string(SolarTermText(language, solarTerm));
}

std::u16string LunarDate::WeekDayName() const {
    constexpr std::int64_t kMondayToSunday = 6;
    return std::u16string(WeekDayText(language, FloorModulo(weekDay + kMondayToSunday, 7)));
}

std::u16string LunarDate::LeapWord() const {
    return leap == 0 ? std::u16string() : std::u16string(LeapWordText(language));
}

LunarDate SolarToLunar(const SolarDate& date) {
    std::int32_t year = BoundedYear(date.year);
    const double x = LocalJulianDay(date.day, date.month, year);
    if (x >= CachedLunarYear(year).firstDays.back()) {
        ++year;
    }
    const LunarYear& table = CachedLunarYear(year);
    std::size_t row = table.rows.size() - 1;
    while (row > 0 && table.firstDays[row] > x) {
        --row;
    }
    const LunarMonthRow& month = table.rows[row];

    LunarDate lunar;
    lunar.day = static_cast<std::int32_t>(std::lround(x - table.firstDays[row])) + 1;
    lunar.month = month.lunarMonth;
    lunar.leap = month.leap;
    lunar.year = month.lunarMonth >= kFirstMonthOfTable ? year - 1 : year;
    lunar.solarTerm = SolarTermOf(date.day, date.month, date.year);
    lunar.weekDay = date.DayOfWeek(true);
    lunar.hour = date.hour;
    lunar.minute = date.minute;
    lunar.second = date.second;
    return lunar;
}

SolarDate LunarToSolar(const LunarDate& lunar) {
    const std::int32_t year = BoundedYear(lunar.year);
    const LunarYear& table = CachedLunarYear(lunar.month >= kFirstMonthOfTable ? year + 1 : year);
    const auto row = std::ranges::find_if(table.rows, [&lunar](const LunarMonthRow& candidate) {
        return candidate.lunarMonth == lunar.month && candidate.leap == lunar.leap;
    });
    if (row == table.rows.end()) {
        return SolarDate();
    }
    const SolarDate day =
        LocalDateFromJulianDay(LocalJulianDay(row->day, row->month, row->year) + lunar.day - 1);
    return SolarDate(day.year, day.month, day.day, lunar.hour, lunar.minute, lunar.second);
}

std::int32_t SolarTermOf(std::int32_t day, std::int32_t month, std::int32_t year) {
    const double today = LocalJulianDay(day, month, year);
    const double begin = SunLongitude(today) * kDegrees;
    const double end = SunLongitude(today + 1.0) * kDegrees;
    for (std::int32_t term = 2; term <= kSolarTermCount; ++term) {
        const double longitude = kDegreesPerTerm * (term - 1);
        if (begin <= longitude && end > longitude) {
            return term;
        }
    }
    // The first term lies where the longitude starts anew.
    return begin > 360.0 - kDegreesPerTerm && end > 0.0 && end < kDegreesPerTerm ? 1 : 0;
}

}  // namespace quorix
