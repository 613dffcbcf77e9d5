#pragma once

// The months of a lunar year: each begins on the local day of a new moon; of thirteen between two winter
// solstices the first without a major solar term is the leap month.

#include <cstdint>
#include <vector>

#include "tools/solar_date.h"

namespace quorix {

/// Years beyond these count as the nearest; the formulas have lost all meaning long before.
inline constexpr std::int32_t kLastLunarYear = 100000;
inline constexpr std::int32_t kFirstLunarYear = -100000;

struct LunarMonthRow {
    /// The solar date of the month's first day.
    std::int32_t day = 0;
    std::int32_t month = 0;
    std::int32_t year = 0;
    /// 1 to 12.
    std::int32_t lunarMonth = 0;
    /// 1 for a leap month, which repeats the number of the month before.
    std::int32_t leap = 0;
    friend bool operator==(const LunarMonthRow&, const LunarMonthRow&) = default;
};

/// 13 rows, or 14 with a leap month; the first and the last are months 11.
using LunarYearTable = std::vector<LunarMonthRow>;

/// First day of the lunar month 11 of `year`, the month that holds the winter solstice; at 12:00:00.
SolarDate LunarMonth11(std::int32_t year);

/// The months from month 11 of the year before to month 11 of `year`.
LunarYearTable BuildLunarYear(std::int32_t year);

/// A year's table with the local Julian days of its first days.
struct LunarYear {
    LunarYearTable rows;
    std::vector<double> firstDays;
};

/// The same table, kept for later calls; by year and time zone. The reference holds until the next call.
const LunarYear& CachedLunarYear(std::int32_t year);

}  // namespace quorix
