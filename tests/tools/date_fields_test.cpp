// The date and time fields and the two calculators over them.

#include <gtest/gtest.h>

#include <limits>

#include "date_printer.h"
#include "tools/date_calculator.h"
#include "tools/time_calculator.h"

namespace quorix {
namespace {

void TypeAll(DateCtrl& field, std::u16string_view keys) {
    for (const char16_t key : keys) {
        EXPECT_TRUE(field.Type(key));
    }
}

TEST(DateCtrl, WritesDatesByTheOrder) {
    DateCtrl field(CalendarKind::solar, DateOrder::dayFirst);
    field.Set({2007, 2, 17, 3, 4, 5});
    EXPECT_EQ(field.Text(), u"Sat-17/02/2007-03-04-05");
    field.SetOrder(DateOrder::monthFirst);
    EXPECT_EQ(field.Text(), u"Sat-02/17/2007-03-04-05");
    DateCtrl lunar(CalendarKind::lunar, DateOrder::dayFirst);
    lunar.Set({2006, 8, 24, 3, 4, 5});
    EXPECT_EQ(lunar.Text(), u"Thu-01/07/2006-03-04-05");
    EXPECT_EQ(lunar.LunarNames(), u"Binh Tuat, Binh Than Nhuan, At Dau");
    std::u16string parts;
    for (const DatePartText& part : lunar.Parts()) {
        parts += lunar.Text().substr(part.position, part.length) + u" ";
    }
    EXPECT_EQ(parts, u"Thu 01 07 2006 03 04 05 ");
}

TEST(DateCtrl, TypedNumbersStayValid) {
    DateCtrl field(CalendarKind::solar, DateOrder::dayFirst);
    const SolarDate start(2024, 2, 29, 10, 20, 30);
    struct Row {
        std::size_t tap;
        std::u16string_view keys;
        SolarDate expected;
    };
    const Row rows[] = {
        {0, u"5", {2024, 2, 5, 10, 20, 30}},    // the week day gives way to the day
        {5, u"31", {2024, 2, 29, 10, 20, 30}},  // clamped
        {5, u"0", {2024, 2, 1, 10, 20, 30}},      {8, u"12", {2024, 12, 29, 10, 20, 30}},
        {8, u"123", {2024, 3, 29, 10, 20, 30}},    // a third digit starts anew
        {11, u"2028", {2028, 2, 29, 10, 20, 30}},  // the 29th survives the years 2, 20 and 202
        {11, u"2027", {2027, 2, 28, 10, 20, 30}}, {11, u"\b\b", {20, 2, 29, 10, 20, 30}},
        {15, u"99", {2024, 2, 29, 23, 20, 30}},   {22, u"07", {2024, 2, 29, 10, 20, 7}},
    };
    for (const Row& row : rows) {
        field.Set(start);
        field.SelectAt(row.tap);
        TypeAll(field, row.keys);
        EXPECT_EQ(field.Solar(), row.expected) << "tap " << row.tap;
    }
    EXPECT_FALSE(field.Type(u'.'));
    EXPECT_FALSE(field.Type(u'x'));
}

TEST(DateCtrl, StepsAndMovesAmongParts) {
    DateCtrl field(CalendarKind::solar, DateOrder::monthFirst);
    field.Set({2024, 12, 31, 23, 59, 0});
    field.SelectPrevious();
    EXPECT_EQ(field.Selected(), DatePart::month);
    field.Step(1);
    EXPECT_EQ(field.Solar(), SolarDate(2024, 1, 31, 23, 59, 0));
    field.Step(1);
    EXPECT_EQ(field.Solar(), SolarDate(2024, 2, 29, 23, 59, 0));
    field.SelectNext();
    field.Step(1);
    EXPECT_EQ(field.Solar(), SolarDate(2024, 2, 1, 23, 59, 0));
    for (int i = 0; i < 9; ++i) field.SelectNext();
    EXPECT_EQ(field.Selected(), DatePart::second);
    field.Step(-1);
    EXPECT_EQ(field.Solar().second, 59);
    field.Set({2147483647, 12, 31});  // as a computed date may be
    field.SelectAt(10);
    field.Step(1);
    EXPECT_EQ(field.Solar(), SolarDate(9999, 12, 31));
}

TEST(DateFields, ShowTheSameDayInBothCalendars) {
    DateFields fields(DateOrder::dayFirst);
    fields.Set({2006, 8, 23, 7, 0, 0});
    fields.Field(CalendarKind::lunar).SelectAt(4);
    fields.Type(CalendarKind::lunar, u'1');
    EXPECT_EQ(fields.Date(), SolarDate(2006, 7, 25, 7));
    fields.Type(CalendarKind::lunar, u'.');
    EXPECT_EQ(fields.Date(), SolarDate(2006, 8, 24, 7));
    fields.Field(CalendarKind::solar).SelectAt(4);
    fields.Step(CalendarKind::solar, -1);
    EXPECT_EQ(fields.Field(CalendarKind::lunar).Text(), u"Wed-30/07/2006-07-00-00");
    // A leap month that the year lacks is now.
    fields.Set({2007, 8, 23, 7, 0, 0});
    fields.Type(CalendarKind::lunar, u'.');
    EXPECT_EQ(fields.Date().year, SolarDate().year);
}

TEST(DateCalculator, ComputesAnyOfTheThree) {
    DateCalculator calculator(DateOrder::dayFirst);
    calculator.from.Set({2026, 1, 31, 22, 30, 0});
    calculator.interval.Set({28, 1, 45, 30});
    EXPECT_EQ(calculator.ComputeTo(), u"");
    EXPECT_EQ(calculator.to.Date(), SolarDate(2026, 3, 1, 0, 15, 30));
    calculator.interval.Set({});
    EXPECT_EQ(calculator.ComputeInterval(), u"");
    EXPECT_EQ(calculator.interval.Interval(), (TimeInterval{28, 1, 45, 30}));
    calculator.from.Set({1, 1, 1});
    EXPECT_EQ(calculator.ComputeFrom(), u"");
    EXPECT_EQ(calculator.from.Date(), SolarDate(2026, 1, 31, 22, 30, 0));
    EXPECT_EQ(calculator.from.Field(CalendarKind::lunar).Text(), u"Sat-13/12/2025-22-30-00");
}

TEST(DateCalculator, RefusesAnEarlierTo) {
    struct Row {
        SolarDate from, to;
        bool refused;
        TimeInterval interval;
    };
    const Row rows[] = {
        {{2026, 3, 5, 13}, {2026, 4, 5, 12}, false, {30, 23, 0, 0}},  // earlier month, later time
        {{2026, 3, 5, 13}, {2026, 3, 5, 12}, true, {}},
        {{2026, 3, 5, 13}, {2026, 3, 4, 14}, true, {}},
        {{2026, 3, 5, 13}, {2026, 3, 5, 13}, false, {}},
        {{2026, 3, 5, 23, 59, 59}, {2026, 3, 6}, false, {0, 0, 0, 1}},
        {{1800, 1, 1}, {2199, 12, 31, 23, 59, 59}, false, {146096, 23, 59, 59}},
    };
    for (const Row& row : rows) {
        DateCalculator calculator(DateOrder::dayFirst);
        calculator.interval.Set({9, 9, 9, 9});
        calculator.from.Set(row.from);
        calculator.to.Set(row.to);
        EXPECT_EQ(calculator.ComputeInterval(),
                  row.refused ? u"The \"To\" date occured ealier than the \"From\" one!" : u"");
        EXPECT_EQ(calculator.interval.Interval(), row.interval);
    }
}

TEST(DateCalculator, DoesNotUseADateOutOfRange) {
    DateCalculator calculator(DateOrder::dayFirst);
    SolarDate wrong(2026, 2, 1);
    wrong.day = 30;
    calculator.from.Set(wrong);
    calculator.to.Set({2020, 1, 1});
    calculator.ComputeTo();
    EXPECT_EQ(calculator.to.Date(), SolarDate(2020, 1, 1));
    EXPECT_EQ(calculator.from.Date(), SolarDate(2026, 2, 28));
    calculator.interval.Set({1000000, 0, 0, 0});
    calculator.ComputeFrom();
    EXPECT_EQ(calculator.from.Date().year, 1);  // and not before
}

TEST(TimeCtrl, TakesTheSingularBelowTwo) {
    TimeCtrl field;
    EXPECT_EQ(field.Text(), u"0 day, 0 hour, 0 minute, 0 second");
    field.Set({2, -3, 1, 50});
    EXPECT_EQ(field.Text(), u"2 days, -3 hour, 1 minute, 50 seconds");
    EXPECT_EQ(field.Text().substr(field.PartPosition(2), 8), u"1 minute");
}

TEST(TimeCtrl, EditsCounts) {
    TimeCtrl field;
    field.Set({12, 3, 4, 5});
    field.SelectAt(10);
    for (const char16_t key : u"90\b") {
        field.Type(key);
    }
    field.SelectPrevious();
    field.Type(u'-');
    EXPECT_EQ(field.Interval(), (TimeInterval{-12, 9, 4, 5}));
    for (int i = 0; i < 30; ++i) field.Type(u'9');
    EXPECT_EQ(field.Interval().days, 999999999999999999);
    field.SelectNext();
    for (int i = 0; i < 12; ++i) field.Step(-1);
    EXPECT_EQ(field.Interval().hours, 0);
}

TEST(TimeCalculator, ComputesAnyOfTheThree) {
    TimeCalculator calculator;
    calculator.from.Set({1, 23, 59, 50});
    calculator.interval.Set({0, 0, 0, 100});
    EXPECT_EQ(calculator.ComputeTo(), u"");
    EXPECT_EQ(calculator.to.Interval(), (TimeInterval{2, 0, 1, 30}));
    EXPECT_EQ(calculator.ComputeInterval(), u"");
    EXPECT_EQ(calculator.interval.Interval(), (TimeInterval{0, 0, 1, 40}));
    calculator.from.Set({});
    EXPECT_EQ(calculator.ComputeFrom(), u"");
    EXPECT_EQ(calculator.from.Interval(), (TimeInterval{1, 23, 59, 50}));

    calculator.to.Set({1, 0, 0, 0});
    EXPECT_EQ(calculator.ComputeInterval(), u"From > To");
    EXPECT_EQ(calculator.interval.Interval(), (TimeInterval{0, 0, 1, 40}));
    calculator.interval.Set({0, 25, 0, 0});
    EXPECT_EQ(calculator.ComputeFrom(), u"From > Interval");
    EXPECT_EQ(calculator.from.Interval(), (TimeInterval{1, 23, 59, 50}));
}

TEST(TimeCalculator, HoldsTheLargestCounts) {
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    TimeCalculator calculator;
    calculator.from.Set({kMost, kMost, kMost, kMost});
    calculator.interval.Set({kMost, kMost, kMost, kMost});
    calculator.ComputeTo();
    EXPECT_EQ(calculator.to.Interval().days, kMost);
    EXPECT_EQ(Normalised({0, 0, 0, -90061}), (TimeInterval{-1, -1, -1, -1}));
}

}  // namespace
}  // namespace quorix
