#pragma once

// How the calendars' values print in a failing test.

#include <ostream>

#include "tools/lunar_date.h"
#include "tools/solar_date.h"
#include "tools/time_ctrl.h"

namespace quorix {

inline void PrintTo(const SolarDate& d, std::ostream* out) {
    *out << d.year << "-" << d.month << "-" << d.day << " " << d.hour << ":" << d.minute << ":" << d.second;
}

inline void PrintTo(const LunarDate& d, std::ostream* out) {
    *out << "lunar " << d.year << "-" << d.month << (d.leap != 0 ? "+" : "") << "-" << d.day;
}

inline void PrintTo(const TimeInterval& i, std::ostream* out) {
    *out << i.days << " days " << i.hours << ":" << i.minutes << ":" << i.seconds;
}

}  // namespace quorix
