#pragma once

// The names that the calendars show. The lunar tables have two rows, one per language, of which the second
// was never filled but for the week days; positions run on from one row into the next.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorix {

/// "Jan" to "Dec"; empty outside 1 to 12.
std::u16string_view ShortMonthName(std::int32_t month);
/// "Mon" to "Sun" of 1 to 7; empty outside.
std::u16string_view ShortWeekDayName(std::int32_t weekday);

inline constexpr std::int64_t kStemCount = 10;
inline constexpr std::int64_t kBranchCount = 12;
inline constexpr std::int32_t kSolarTermCount = 24;

// `index` counts from 0; an index behind its row reads on in the next one, and empty behind the last.
std::u16string_view StemName(std::int32_t language, std::int64_t index);
std::u16string_view BranchName(std::int32_t language, std::int64_t index);
/// index: 0 (no term, empty) to 24; term i starts where the sun reaches 15 (i - 1) degrees.
std::u16string_view SolarTermText(std::int32_t language, std::int64_t index);
/// index: 0 Monday to 6 Sunday.
std::u16string_view WeekDayText(std::int32_t language, std::int64_t index);
std::u16string_view LeapWordText(std::int32_t language);

}  // namespace quorix
