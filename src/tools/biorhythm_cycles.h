#pragma once

// The four cycles, and what a day of a cycle is by a fixed table.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/color.h"

namespace quorix {

enum class DayClass : std::uint8_t { critical1, critical2, medium, high, low, maximum, minimum };
inline constexpr std::size_t kDayClassCount = 7;

enum class Trend : std::uint8_t { none, increase, decrease };

/// Days of a cycle, counted from 0; both ends belong to it.
struct DayRange {
    std::int32_t first;
    std::int32_t last;
    [[nodiscard]] constexpr bool Contains(std::int32_t day) const { return day >= first && day <= last; }
};

struct BiorhythmCycle {
    std::u16string_view name;
    /// Days.
    std::int32_t period;
    ColorRef color;
    /// The same colour as HTML writes it.
    std::u16string_view htmlColor;
    std::int32_t critical2;
    std::int32_t maximum;
    std::int32_t minimum;
    DayRange high;
    DayRange low;
    DayRange decrease;
};

inline constexpr std::size_t kCycleCount = 4;

/// In the order of the advice file and of the curves.
inline constexpr std::array<BiorhythmCycle, kCycleCount> kCycles = {{
    {u"Physical", 23, MakeColor(0xFF, 0, 0), u"#FF0000", 11, 5, 17, {3, 8}, {14, 20}, {6, 16}},
    {u"Emotional", 28, MakeColor(0, 0x80, 0), u"#008000", 13, 6, 20, {4, 9}, {16, 24}, {7, 19}},
    {u"Intellectual", 33, MakeColor(0, 0, 0xFF), u"#0000FF", 16, 8, 24, {5, 11}, {20, 29}, {9, 23}},
    {u"Intuitional", 38, MakeColor(0x80, 0, 0), u"#800000", 18, 9, 28, {5, 13}, {22, 34}, {10, 27}},
}};

/// The cycle with a period of 23, 28, 33 or 38 days; null for others.
const BiorhythmCycle* CycleOfPeriod(std::int32_t period);

/// days: since birth; below 0 counts as 0. Critical days come before Medium, Maximum and Minimum before all.
DayClass ClassOfDay(std::int64_t days, const BiorhythmCycle& cycle);
Trend TrendOfDay(std::int64_t days, const BiorhythmCycle& cycle);

/// The same by period; an unknown one gives Medium and no trend.
DayClass ClassOfDay(std::int64_t days, std::int32_t period);
Trend TrendOfDay(std::int64_t days, std::int32_t period);

/// "Critical", "Medium", "High", "Low", "Maximum", "Minimum".
std::u16string_view LabelOf(DayClass dayClass);

}  // namespace quorix
