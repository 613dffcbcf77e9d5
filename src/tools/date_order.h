#pragma once

// Dates as "day/month/year" or "month/day/year" texts.

#include <cstdint>
#include <string>
#include <string_view>

#include "tools/solar_date.h"

namespace quorix {

enum class DateOrder : std::uint8_t { dayFirst = 0, monthFirst = 1 };

/// "European" and "English (UK)" write the day first, "English (US)" and unknown names the month.
DateOrder DateOrderOf(std::u16string_view numberLocale);

/// The three numbers without padding, joined with "/".
std::u16string DateText(const SolarDate& date, DateOrder order);

/// What stands for a date that cannot be read.
inline constexpr std::u16string_view kUnreadableDate = u"1/1/1980";

/// The date of three numbers joined with "/", at midnight; values out of range are reset as SolarDate's
/// constructor does. A text with fewer than two "/" is read as "1/1/1980".
SolarDate ReadDateText(std::u16string_view text, DateOrder order);

}  // namespace quorix
