#pragma once

#include <cstdint>

namespace quorix {

/// A day of the local calendar: month 1 to 12, day 1 to 31.
struct CalendarDay {
    std::uint32_t year = 0;
    std::uint32_t month = 0;
    std::uint32_t day = 0;
    friend bool operator==(const CalendarDay&, const CalendarDay&) = default;
};

/// A moment of local time: hour 0 to 23, minute and second 0 to 59.
struct LocalTime {
    CalendarDay date;
    std::uint32_t hour = 0;
    std::uint32_t minute = 0;
    std::uint32_t second = 0;
};

/// Time as the program sees it; tests hand in their own. No call fails or handles messages.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Milliseconds since an arbitrary start; never goes back.
    virtual std::uint64_t TickCount() = 0;
    /// Today by local time.
    virtual CalendarDay Today() = 0;
    /// Local date and time of day; midnight where the clock knows of days only.
    virtual LocalTime Now() { return {Today(), 0, 0, 0}; }
};

/// The machine's own clock.
class SystemClock : public Clock {
  public:
    std::uint64_t TickCount() override;
    CalendarDay Today() override;
    LocalTime Now() override;
};

}  // namespace quorix
