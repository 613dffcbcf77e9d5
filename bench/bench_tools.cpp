// Calendars and biorhythm beside the plainest way to the same numbers.

#include <array>
#include <chrono>
#include <cmath>

#include "ratio_report.h"
#include "tools/lunar_astronomy.h"
#include "tools/lunar_date.h"
#include "tools/lunar_year.h"
#include "tools/remarkable_days.h"
#include "tools/solar_date.h"

namespace {

using namespace quorix;

std::int64_t ChronoDays(int year) {
    using namespace std::chrono;
    const auto days = [](int y, unsigned m, unsigned d) {
        return sys_days(year_month_day(std::chrono::year(y), month(m), day(d)));
    };
    return (days(year + 400, 11, 30) - days(year, 2, 28)).count();
}

/// Days with two cycles at their maximum or minimum, by four remainders a day.
int DaysByRemainders(std::int64_t first, std::int64_t last) {
    int count = 0;
    for (std::int64_t n = first; n < last; ++n) {
        const std::int64_t r[] = {n % 23, n % 28, n % 33, n % 38};
        count += (r[0] == 5) + (r[1] == 6) + (r[2] == 8) + (r[3] == 9) >= 2;
        count += (r[0] == 17) + (r[1] == 20) + (r[2] == 24) + (r[3] == 28) >= 2;
    }
    return count;
}

/// Sixty sines and cosines, as many as are allowed, for each of `newMoons`.
double SinesAndCosines(int newMoons, double angle) {
    constexpr int kPairsPerNewMoon = 30;
    double sum = 0.0;
    for (int i = 0; i < newMoons * kPairsPerNewMoon; ++i) {
        sum += std::sin(angle + i) + std::cos(angle - i);
    }
    return sum;
}

/// Counts through `count` values, so that no call has the arguments of the one before.
int Turn(int count) {
    static int turn = 0;
    turn = (turn + 1) % count;
    return turn;
}

void RegisterCalendars() {
    bench::RegisterPair("days between over 400 years", bench::Loop([] {
                            const int year = 1600 + Turn(400);
                            return DaysBetween(SolarDate(year + 400, 11, 30), SolarDate(year, 2, 28));
                        }),
                        bench::Loop([] { return ChronoDays(1600 + Turn(400)); }), 100);
    // Its day needs one new moon: that of its month.
    bench::RegisterPair("solar to lunar, year kept",
                        bench::Loop([] { return SolarToLunar(SolarDate(2026, 1 + Turn(12), 15)); }),
                        bench::Loop([] { return SinesAndCosines(1, Turn(12)); }), 1.0);
    // A year that was not asked for before needs the new moons of its thirteen months.
    bench::RegisterPair("solar to lunar, new year",
                        bench::Loop([] { return SolarToLunar(SolarDate(1700 + Turn(600), 10, 15)); }),
                        bench::Loop([] { return SinesAndCosines(13, Turn(600)); }), 1.0);
    bench::RegisterPair("lunar to solar, year kept",
                        bench::Loop([] { return LunarToSolar(LunarDate(2026, 1 + Turn(12), 15, 0)); }),
                        bench::Loop([] { return SinesAndCosines(1, Turn(12)); }), 1.0);
}

}  // namespace

int main(int argc, char** argv) {
    RegisterCalendars();
    const SolarDate birth(1980, 2, 29);
    const SolarDate view(2026, 11, 23);
    const std::int64_t first = DaysBetween(view, birth) + 1;
    const std::int64_t last = DaysBetween(SolarDate(2076, 11, 23), birth);
    bench::RegisterPair("remarkable days of 50 years", bench::Loop([=] {
                            return FindRemarkableDays(birth, view, 50, true, true, DateOrder::dayFirst);
                        }),
                        bench::Loop([=] {
                            std::int64_t from = first;
                            benchmark::DoNotOptimize(from);
                            return DaysByRemainders(from, last);
                        }),
                        10);
    return bench::RunPairs(argc, argv);
}
