#include "tools/solar_date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <random>

#include "date_printer.h"
#include "support/fake_clock.h"
#include "tools/calendar_clock.h"

namespace quorix {
namespace {

TEST(SolarDate, ResetsOrPullsWhatIsOutOfRange) {
    struct Row {
        int given[6];
        SolarDate constructed;
        SolarDate clamped;
        bool normalised;
    };
    const Row rows[] = {
        {{2007, 2, 29, 1, 2, 3}, {2007, 2, 1, 1, 2, 3}, {2007, 2, 28, 1, 2, 3}, true},
        {{2008, 2, 29, 24, 60, -1}, {2008, 2, 29, 0, 0, 0}, {2008, 2, 29, 23, 59, 0}, true},
        {{2007, 13, 31, 0, 0, 0}, {2007, 1, 31}, {2007, 12, 31}, true},
        {{2007, 0, 0, -5, -5, 60}, {2007, 1, 1}, {2007, 1, 1, 0, 0, 59}, true},
        {{2007, 0, -3, 5, 5, 5}, {2007, 1, 1, 5, 5, 5}, {2007, 1, 1, 5, 5, 5}, false},
        {{0, 4, 30, 0, 0, 0}, {0, 4, 30}, {1, 4, 30}, true},
        {{1900, 2, 28, 23, 59, 59}, {1900, 2, 28, 23, 59, 59}, {1900, 2, 28, 23, 59, 59}, false},
    };
    for (const auto& [g, constructed, clamped, normalised] : rows) {
        EXPECT_EQ(SolarDate(g[0], g[1], g[2], g[3], g[4], g[5]), constructed);
        SolarDate date(1, 1, 1);
        date.year = g[0];
        date.month = g[1];
        date.day = g[2];
        date.hour = g[3];
        date.minute = g[4];
        date.second = g[5];
        EXPECT_EQ(date.Normalise(), normalised) << ::testing::PrintToString(clamped);
        EXPECT_EQ(date, clamped);
    }
}

TEST(SolarDate, IsNowByTheClock) {
    struct NoonClock : testing::FakeClock {
        LocalTime Now() override { return {{2024, 2, 29}, 12, 34, 56}; }
    } clock;
    SetCalendarClock(&clock);
    EXPECT_EQ(SolarDate(), SolarDate(2024, 2, 29, 12, 34, 56));
    SetCalendarClock(nullptr);
    EXPECT_GT(SolarDate().year, 2020);
}

TEST(SolarDate, ComparesTimesWithoutLookingAtTheMonthAgain) {
    EXPECT_TRUE(IsAfter({2026, 3, 5, 13}, {2026, 4, 5, 12}));
    EXPECT_FALSE(IsAfter({2026, 3, 5, 13}, {2026, 4, 6, 12}));
    EXPECT_TRUE(IsAfter({2026, 4, 5, 12}, {2026, 3, 6, 12}));
    EXPECT_FALSE(IsAfter({2025, 12, 31, 23}, {2026, 1, 1, 0}));
    EXPECT_FALSE(IsAfter({2026, 3, 5, 13}, {2026, 3, 5, 13}));
    EXPECT_TRUE(IsAfter({2026, 3, 5, 13, 0, 1}, {2026, 3, 5, 13}));
}

TEST(SolarDate, CountsDaysAsSteppingDoes) {
    const SolarDate start(1799, 12, 31);
    SolarDate day = start;
    for (std::int64_t n = 0; n < 146500; ++n, day.NextDay()) {
        ASSERT_EQ(DaysBetween(day, start), n);
        ASSERT_EQ(DaysBetween(start, day), -n);
        SolarDate sum = start;
        sum.AddDays(n);
        ASSERT_EQ(sum, day);
        sum.SubDays(n);
        ASSERT_EQ(sum, start);
        SolarDate back = day;
        back.NextDay();
        back.PreviousDay();
        ASSERT_EQ(back, day);
    }
    SolarDate wrong(1, 1, 1);
    wrong.month = 14;
    wrong.day = 40;
    wrong.hour = 99;
    EXPECT_EQ(DaysBetween(wrong, {0, 12, 30, 23}), 366);  // taken as 31 December
}

/// Seconds since 1970 by the calendar of the standard library, which knows nothing of ours.
std::chrono::sys_seconds ByLibrary(const SolarDate& date) {
    using namespace std::chrono;
    const auto day = year{date.year} / month(static_cast<unsigned>(date.month)) /
                     std::chrono::day(static_cast<unsigned>(date.day));
    return sys_days{day} + hours{date.hour} + minutes{date.minute} + seconds{date.second};
}

TEST(SolarDate, AddsTimesAsTheLibraryDoes) {
    using namespace std::chrono;
    std::mt19937 random(2);
    std::uniform_int_distribution<std::int64_t> count(-200000, 200000);
    for (int i = 0; i < 20; ++i) {
        SolarDate start(2000, 2, 28, 13, 7, 59);
        const std::int64_t n = count(random);
        SolarDate later = start, earlier = start;
        later.AddHours(n);
        EXPECT_EQ(ByLibrary(later), ByLibrary(start) + hours{n}) << n;
        earlier.SubMinutes(n);
        EXPECT_EQ(ByLibrary(earlier), ByLibrary(start) - minutes{n}) << n;
        EXPECT_EQ(ByLibrary(start.AddSeconds(n)), ByLibrary(start) + seconds{n}) << n;
        EXPECT_EQ(start.AddSeconds(n).SubSeconds(n), start);
    }
}

TEST(SolarDate, StaysWithinTheLastYears) {
    using Limits = std::numeric_limits<std::int64_t>;
    SolarDate date(2026, 5, 6, 7, 8, 9);
    date.AddDays(Limits::max());
    EXPECT_EQ(date.year, std::numeric_limits<std::int32_t>::max());
    date.NextDay();
    EXPECT_EQ(date.year, std::numeric_limits<std::int32_t>::max());
    date.SubDays(Limits::min());
    date.SubHours(Limits::max());
    date.AddDays(Limits::min());
    EXPECT_EQ(date.year, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(SolarDate(1970, 1, 1).SubSeconds(Limits::min()).year, std::numeric_limits<std::int32_t>::max());
}

TEST(SolarDate, KnowsItsWeekday) {
    EXPECT_EQ(SolarDate(2024, 2, 29).DayOfWeek(false), 4);
    EXPECT_EQ(SolarDate(2000, 2, 29).DayOfWeek(false), 2);
    EXPECT_EQ(SolarDate(2026, 11, 22).DayOfWeek(false), 7);
    EXPECT_EQ(SolarDate(2026, 11, 22).DayOfWeek(true), 0);
    for (SolarDate day(0, 1, 1); day.year < 3000; day.AddDays(1 + day.day % 5)) {
        const std::chrono::weekday expected(std::chrono::floor<std::chrono::days>(ByLibrary(day)));
        ASSERT_EQ(day.DayOfWeek(false), static_cast<int>(expected.iso_encoding()))
            << ::testing::PrintToString(day);
    }
}

TEST(SolarDate, IsWrittenByATemplate) {
    const SolarDate date(2007, 2, 3, 0, 5, 9);
    const SolarDate evening(12345, 12, 25, 13, 45, 59);
    struct Row {
        const SolarDate& date;
        const char16_t* pattern;
        const char16_t* text;
    };
    const Row rows[] = {
        {date, u"Y y M m D d", u"2007 07 02 2 03 3"},
        {date, u"N n J j", u"Feb Feb Sat Sat"},
        {date, u"H:h G:g I:i S:s", u"00:0 12:12 05:5 09:9"},
        {evening, u"Y-y H G g", u"2345-45 13 01 1"},
        {date, u"/Year //, d/", u"Year /, 3"},
        {date, u"", u""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.date.FormatDate(row.pattern), row.text);
    }
}

}  // namespace
}  // namespace quorix
