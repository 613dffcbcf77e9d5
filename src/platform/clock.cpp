#include "platform/clock.h"

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
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) {
        return {1970, 1, 1};
    }
    return {static_cast<std::uint32_t>(local.tm_year + 1900), static_cast<std::uint32_t>(local.tm_mon + 1),
            static_cast<std::uint32_t>(local.tm_mday)};
}

}  // namespace quorix
