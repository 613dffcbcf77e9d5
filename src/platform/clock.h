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

/// Time as the program sees it; tests hand in their own. No call fails or handles messages.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Milliseconds since an arbitrary start; never goes back.
    virtual std::uint64_t TickCount() = 0;
    /// Today by local time.
    virtual CalendarDay Today() = 0;
};

/// The machine's own clock.
class SystemClock : public Clock {
  public:
    std::uint64_t TickCount() override;
    CalendarDay Today() override;
};

}  // namespace quorix
