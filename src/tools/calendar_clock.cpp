#include "tools/calendar_clock.h"

namespace quorix {

namespace {

Clock*& ChosenClock() {
    static constinit Clock* clock = nullptr;
    return clock;
}

}  // namespace

Clock& CalendarClock() {
    static SystemClock machine;
    return ChosenClock() != nullptr ? *ChosenClock() : machine;
}

void SetCalendarClock(Clock* clock) {
    ChosenClock() = clock;
}

}  // namespace quorix
