#pragma once

#include "platform/clock.h"

namespace quorix::testing {

/// A clock that is told the time.
class FakeClock : public Clock {
  public:
    explicit FakeClock(CalendarDay today = {2026, 1, 1}) : today_(today) {}
    std::uint64_t TickCount() override { return ticks; }
    CalendarDay Today() override { return today_; }
    std::uint64_t ticks = 0;

  private:
    CalendarDay today_;
};

}  // namespace quorix::testing
