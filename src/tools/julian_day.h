#pragma once

// Julian days to dates and back: the Julian calendar before 15 October 1582, the Gregorian from then on.
// Formulas of the almanacs' reformed calendar arithmetic in 64-bit floating point.

#include <cstdint>

#include "tools/solar_date.h"

namespace quorix {

/// Hours from universal time, of all local days and of everything lunar; 7 unless set.
std::int32_t CalendarTimeZone();
void SetCalendarTimeZone(std::int32_t hours);

/// Julian day at universal midnight, ending in .5. Any integers are taken; 5 to 14 October 1582, which never
/// were, run on in the Julian calendar.
double JulianDayFromDate(std::int32_t day, std::int32_t month, std::int32_t year);

/// The day that holds `julianDay`, at 12:00:00. A day that the date's own calendar does not have (29 February
/// of the Julian 1500) becomes the last of its month. Values beyond some hundred million years, or no number,
/// count as the nearest of these, or as 0.
SolarDate DateFromJulianDay(double julianDay);

/// JulianDayFromDate less the time zone's part of a day: local midnight in universal time.
double LocalJulianDay(std::int32_t day, std::int32_t month, std::int32_t year);
/// The local day that holds the universal `julianDay`.
SolarDate LocalDateFromJulianDay(double julianDay);

}  // namespace quorix
