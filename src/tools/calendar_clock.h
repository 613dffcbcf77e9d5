#pragma once

#include "platform/clock.h"

namespace quorix {

/// The clock that "today" of the calendars is read from: the machine's own unless another was set.
Clock& CalendarClock();
/// `clock` is not owned and must outlive its use; null gives the machine's own back.
void SetCalendarClock(Clock* clock);

}  // namespace quorix
