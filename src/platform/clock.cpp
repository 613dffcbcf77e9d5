#include "platform/clock.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace quorix {

std::uint64_t SystemClock::TickCount() {
    using std::chrono::duration_cast;
    using std::chrono::milliseconds;
    return static_cast<std::uint64_t>(
        duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch()).count());
}

CalendarDay SystemClock::Today() {
    return Now().date;
}

LocalTime SystemClock::Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) {
        return {{1970, 1, 1}, 0, 0, 0};
    }
    const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
    constexpr int kLastSecond = 59;  // a leap second counts as the one before
    return {{number(local.tm_year + 1900), number(local.tm_mon + 1), number(local.tm_mday)},
            number(local.tm_hour),
            number(local.tm_min),
            number(std::min(local.tm_sec, kLastSecond))};
}

}  // namespace quorix
