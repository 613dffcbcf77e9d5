#include "tools/lunar_date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

#include "date_printer.h"
#include "tools/julian_day.h"
#include "tools/lunar_astronomy.h"
#include "tools/lunar_year.h"

namespace quorix {
namespace {

TEST(JulianDay, SwitchesCalendarsIn1582) {
    EXPECT_EQ(JulianDayFromDate(4, 10, 1582), 2299159.5);
    EXPECT_EQ(JulianDayFromDate(14, 10, 1582), 2299169.5);
    EXPECT_EQ(JulianDayFromDate(15, 10, 1582), 2299160.5);
    EXPECT_EQ(JulianDayFromDate(1, 1, 2000), 2451544.5);
    EXPECT_EQ(JulianDayFromDate(1, 1, -4712), -0.5);
    EXPECT_EQ(DateFromJulianDay(JulianDayFromDate(29, 2, 1500)), SolarDate(1500, 2, 28, 12));
    EXPECT_EQ(LocalJulianDay(1, 1, 2000), 2451544.5 - 7.0 / 24.0);
    EXPECT_EQ(LocalDateFromJulianDay(2451544.3), SolarDate(2000, 1, 1, 12));
}

TEST(JulianDay, ComesBackForEveryDay) {
    for (SolarDate day(1200, 1, 1, 12); day.year < 2400; day.NextDay()) {
        if (day == SolarDate(1582, 10, 5, 12)) {
            day = SolarDate(1582, 10, 15, 12);  // the days between never were
        }
        ASSERT_EQ(DateFromJulianDay(JulianDayFromDate(day.day, day.month, day.year)), day);
        ASSERT_EQ(LocalDateFromJulianDay(LocalJulianDay(day.day, day.month, day.year)), day);
    }
}

TEST(LunarAstronomy, AgreesWithTheAlmanac) {
    // Meeus, "Astronomical Algorithms", examples 49.a (less 48 s of delta T) and 25.a (less aberration).
    EXPECT_NEAR(NewMoon(std::lround((1977.126 - 1900.0) * 12.3685)), 2443192.65118 - 48.0 / 86400.0, 0.002);
    EXPECT_NEAR(SunLongitude(2448908.5) * 180.0 / std::acos(-1.0), 199.90988, 0.001);
}

TEST(LunarDate, EveryDayComesBackAndFollowsTheOneBefore) {
    LunarDate before = SolarToLunar({1799, 12, 31});
    for (SolarDate day(1800, 1, 1, 3, 4, 5); day.year < 2200; day.NextDay()) {
        const LunarDate lunar = SolarToLunar(day);
        ASSERT_EQ(LunarToSolar(lunar), day) << ::testing::PrintToString(lunar);
        ASSERT_EQ(lunar.weekDay, day.DayOfWeek(true));
        if (lunar.day != 1) {
            ASSERT_EQ(lunar.day, before.day + 1) << ::testing::PrintToString(day);
            ASSERT_EQ(lunar.month, before.month);
        } else {
            ASSERT_TRUE(before.day == 29 || before.day == 30) << ::testing::PrintToString(day);
            const int expected = lunar.leap != 0 ? before.month : before.month % 12 + 1;
            ASSERT_EQ(lunar.month, expected) << ::testing::PrintToString(day);
            ASSERT_EQ(lunar.year, before.year + (lunar.month == 1 && lunar.leap == 0 ? 1 : 0));
        }
        before = lunar;
    }
}

TEST(LunarDate, HasThePublishedNewYears) {
    const SolarDate newYears[] = {
        {1900, 1, 31}, {1945, 2, 13}, {1954, 2, 3},  {1968, 1, 29}, {1969, 2, 16}, {1975, 2, 11},
        {1976, 1, 31}, {1985, 1, 21}, {2000, 2, 5},  {2006, 1, 29}, {2007, 2, 17}, {2012, 1, 23},
        {2023, 1, 22}, {2024, 2, 10}, {2025, 1, 29}, {2026, 2, 17}, {2030, 2, 2},  {2034, 2, 19},
    };
    for (const SolarDate& day : newYears) {
        EXPECT_EQ(SolarToLunar(day), LunarDate(day.year, 1, 1, 0)) << ::testing::PrintToString(day);
    }
    EXPECT_EQ(SolarToLunar({1900, 1, 1}), LunarDate(1899, 12, 1, 0));
}

TEST(LunarDate, HasThePublishedLeapMonths) {
    const std::map<int, int> leapMonths = {{1984, 0}, {1985, 2}, {1987, 7},  {1990, 5}, {1995, 8},
                                           {1998, 5}, {2001, 4}, {2004, 2},  {2006, 7}, {2009, 5},
                                           {2012, 4}, {2014, 9}, {2017, 6},  {2020, 4}, {2023, 2},
                                           {2025, 6}, {2028, 5}, {2033, 11}, {2034, 0}, {2036, 6}};
    for (const auto& [year, month] : leapMonths) {
        for (int m = 1; m <= 12; ++m) {
            const LunarDate lunar(year, m, 1, 1);
            EXPECT_EQ(SolarToLunar(LunarToSolar(lunar)) == lunar, m == month) << year << " month " << m;
        }
    }
    EXPECT_EQ(SolarToLunar({2006, 8, 23}), LunarDate(2006, 7, 30, 0));
    EXPECT_EQ(SolarToLunar({2006, 8, 24}), LunarDate(2006, 7, 1, 1));
    const LunarYearTable table = BuildLunarYear(2006);
    ASSERT_EQ(table.size(), 14U);
    EXPECT_EQ(table[8], (LunarMonthRow{25, 7, 2006, 7, 0}));
    EXPECT_EQ(table[9], (LunarMonthRow{24, 8, 2006, 7, 1}));
}

TEST(LunarDate, FollowsTheTimeZone) {
    SetCalendarTimeZone(8);
    EXPECT_EQ(SolarToLunar({1985, 2, 20}), LunarDate(1985, 1, 1, 0));
    EXPECT_EQ(SolarToLunar({2007, 2, 18}), LunarDate(2007, 1, 1, 0));
    SetCalendarTimeZone(7);
    EXPECT_EQ(SolarToLunar({1985, 1, 21}), LunarDate(1985, 1, 1, 0));
}

TEST(LunarDate, KeptYearsAreTheBuiltOnes) {
    for (const int year : {1850, 1914, 1850, 1978, 2042, -5000, 30000}) {
        EXPECT_EQ(CachedLunarYear(year).rows, BuildLunarYear(year)) << year;
    }
}

TEST(LunarDate, SolarTermsComeInTurn) {
    std::int32_t last = SolarTermOf(20, 3, 1900) != 0 ? 0 : 24;
    int count = 0;
    for (SolarDate day(1900, 3, 21); day.year < 2100; day.NextDay()) {
        if (const std::int32_t term = SolarTermOf(day.day, day.month, day.year); term != 0) {
            ASSERT_EQ(term, last % 24 + 1) << ::testing::PrintToString(day);
            last = term;
            ++count;
        }
    }
    EXPECT_EQ(count, 200 * 24 - 5);  // the first five of 1900 lie before the start
    EXPECT_EQ(SolarToLunar({2007, 2, 4}).SolarTermName(), u"Lap xuan");
    EXPECT_EQ(SolarToLunar({2007, 2, 5}).SolarTermName(), u"");
    EXPECT_EQ(SolarToLunar({2026, 12, 22}).SolarTermName(), u"Dong chi");
}

TEST(LunarDate, HasNames) {
    const LunarDate tet = SolarToLunar({2007, 2, 17});
    EXPECT_EQ(tet.YearName(), u"Dinh Hoi");
    EXPECT_EQ(tet.MonthName(), u"Nham Dan");
    EXPECT_EQ(tet.DayName(), u"Nham Ngo");
    EXPECT_EQ(tet.WeekDayName(), u"Thu bay");
    EXPECT_EQ(tet.LeapWord(), u"");
    EXPECT_EQ(LunarDate(2006, 7, 1, 1).LeapWord(), u"Nhuan");
    EXPECT_EQ(SolarToLunar({1900, 1, 1}).DayName(), u"Giap Tuat");
    EXPECT_EQ(SolarToLunar({1899, 12, 31}).DayName(), u"Quy Dau");
    // The branch "Ty" of days before 1900 reads the row of the other language.
    EXPECT_EQ(SolarToLunar({1899, 12, 22}).DayName(), u"Giap ");
    LunarDate other = tet;
    other.language = 1;
    other.weekDay = 4;
    EXPECT_EQ(other.YearName(), u" ");
    EXPECT_EQ(other.WeekDayName(), u"ThursdayFriday");
    other.weekDay = 0;
    EXPECT_EQ(other.WeekDayName(), u"");
}

TEST(LunarDate, TakesAnyNumbers) {
    EXPECT_EQ(LunarDate(2007, 13, 31, 0), LunarDate(2007, 1, 1, 0));
    EXPECT_EQ(LunarDate(2007, 12, 30, 0).day, 30);
    const SolarDate now;
    EXPECT_EQ(LunarToSolar(LunarDate(2007, 3, 5, 1)).year, now.year);
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t year : {Limits::min(), -4713, 0, 1, 1582, 9999, Limits::max()}) {
        const LunarDate lunar = SolarToLunar({year, 12, 31});
        EXPECT_GE(lunar.month, 1);
        EXPECT_LE(lunar.month, 12);
        EXPECT_FALSE(lunar.YearName().empty());
        EXPECT_FALSE(lunar.DayName().empty());
    }
    EXPECT_EQ(DateFromJulianDay(std::numeric_limits<double>::quiet_NaN()), DateFromJulianDay(0.0));
    EXPECT_GT(DateFromJulianDay(std::numeric_limits<double>::infinity()).year, 2000000000);
}

}  // namespace
}  // namespace quorix
