#include "tools/biorhythm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "date_printer.h"
#include "support/fake_clock.h"
#include "support/temporary_folder.h"
#include "tools/biorhythm_page.h"
#include "tools/remarkable_days.h"

namespace quorix {
namespace {

std::span<const std::uint8_t> Bytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// One line of advice for every kind: "cycle kind".
BiorhythmAdvice NumberedAdvice() {
    std::string file;
    for (std::size_t cycle = 0; cycle < kCycleCount; ++cycle) {
        file += "heading\n";
        for (std::size_t kind = 0; kind < kDayClassCount; ++kind) {
            file += "1\nadvice " + std::to_string(cycle) + std::to_string(kind) + "\n";
        }
    }
    BiorhythmAdvice advice;
    advice.Parse(Bytes(file));
    return advice;
}

TEST(BiorhythmCycles, ClassifyEveryDay) {
    // A letter for each day: 0 and 1 critical, X maximum, N minimum, H high, L low, m medium; below it the
    // trend: + increase, - decrease, blank none.
    const std::pair<std::string_view, std::string_view> cycles[] = {
        {"0mmHHXHHHmm1mmLLLNLLLmm", "+++++ ----------- +++++"},
        {"0mmmHHXHHHmmm1mmLLLLNLLLLmmm", "++++++ ------------- +++++++"},
        {"0mmmmHHHXHHHmmmm1mmmLLLLNLLLLLmmm", "++++++++ --------------- ++++++++"},
        {"0mmmmHHHHXHHHHmmmm1mmmLLLLLLNLLLLLLmmm", "+++++++++ ------------------ +++++++++"},
    };
    constexpr std::string_view kLetters = "01mHLXN";
    for (std::size_t i = 0; i < kCycleCount; ++i) {
        const auto& [classes, trends] = cycles[i];
        const auto period = static_cast<std::int64_t>(classes.size());
        ASSERT_EQ(period, kCycles[i].period);
        for (std::int64_t r = 0; r < period; ++r) {
            const std::int64_t days = r + 1000 * period;
            const auto index = static_cast<std::size_t>(r);
            EXPECT_EQ(kLetters[static_cast<std::size_t>(ClassOfDay(days, kCycles[i].period))], classes[index])
                << i << " day " << r;
            EXPECT_EQ(std::string_view(" +-")[static_cast<std::size_t>(TrendOfDay(days, kCycles[i]))],
                      trends[index])
                << i << " day " << r;
        }
    }
    EXPECT_EQ(ClassOfDay(-5, kCycles[0]), DayClass::critical1);
}

TEST(BiorhythmCurve, TouchesTheEdgesAndFillsTheWidth) {
    for (const BiorhythmCycle& cycle : kCycles) {
        for (const auto& [width, height] : {std::pair{464, 200}, {29, 10}, {1, 1}, {3, 7}, {600, 33}}) {
            for (std::int64_t days = 0; days < cycle.period; ++days) {
                const BiorhythmCurve curve = DrawCurve(days, cycle.period, width, height);
                ASSERT_GE(curve.percentage, 0.0F);
                ASSERT_LE(curve.percentage, 100.0F);
                std::vector<bool> drawn(static_cast<std::size_t>(width) + 1);
                for (const Point& point : curve.points) {
                    ASSERT_TRUE(point.x >= 0 && point.x <= width && point.y >= 0 && point.y < height);
                    drawn[static_cast<std::size_t>(point.x)] = true;
                }
                ASSERT_TRUE(std::ranges::all_of(drawn, [](bool column) { return column; })) << width;
            }
        }
    }
    EXPECT_TRUE(DrawCurve(5, 23, 0, 100).points.empty());
}

TEST(BiorhythmCurve, ReadsThePercentageHalfADayOn) {
    // 928 columns are 32 a day, so the middle column lies at 14.5 days, half a day behind the one in view.
    // The parabola with its vertex a quarter of the period after a crossing, by exact arithmetic.
    for (const BiorhythmCycle& cycle : kCycles) {
        const double quarter = cycle.period / 4.0;
        for (std::int64_t days = 0; days < 2 * cycle.period; ++days) {
            double day = std::fmod(static_cast<double>(days) + 0.5, cycle.period);
            const bool upper = day < 2 * quarter;
            const double fromVertex = (upper ? day : day - 2 * quarter) / quarter - 1.0;
            const double half = 50.0 * (1.0 - fromVertex * fromVertex);
            EXPECT_NEAR(DrawCurve(days, cycle.period, 928, 1000).percentage, upper ? 50 + half : 50 - half,
                        0.7)
                << cycle.period << " day " << days;
        }
    }
}

TEST(Biorhythm, ReportsInFixedWords) {
    testing::FakeClock clock;
    Biorhythm biorhythm(clock);
    const std::u16string head =
        u"<table border=\"0\" width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">\t\t<tr>\t\t\t<td><font "
        u"color=\"#FF0000\">Physical</font> 0.0%</td>\t\t\t<td><font color=\"#0000FF\">Intellectual</font> "
        u"0.0%</td>\t\t</tr>\t\t<tr>\t\t\t<td><font color=\"#008000\">Emotional</font> "
        u"0.0%</td>\t\t\t<td><font color=\"#800000\">Intuitional</font> 0.0%</td>\t\t\t</tr></table><hr "
        u"size=\"1\">";
    EXPECT_EQ(biorhythm.BuildReport(6), u"<html><body>" + head + u"</body></html>");
    biorhythm.SetAdvice(NumberedAdvice());
    EXPECT_EQ(
        biorhythm.AdviceBlock(6, 23),
        u"<table border=\"0\"><tr><td with=\"10%\"><font color=\"#FF0000\"><b>Physical</b></font></td><td "
        u"halign=\"left\">0.0%.</td></tr></table><table width=\"100%\"  border=\"0\"><tr><td "
        u"with=\"10%\" valign=\"top\"><font color=\"#FF0000\"><b>Trend</b></font></td><td>High, "
        u"Decrease.</td></tr><tr><td valign=\"top\"><font color=\"#FF0000\"><b>Advice</b></font></td>"
        u"<td>advice 03\n</td></tr></table>");
    EXPECT_NE(biorhythm.AdviceBlock(6, 28).find(u"<td>Maximum.</td>"), std::u16string::npos);
    EXPECT_NE(biorhythm.AdviceBlock(0, 38).find(u"<td>Critical, Increase.</td>"), std::u16string::npos);
    EXPECT_EQ(biorhythm.AdviceBlock(6, 24), u"");
    EXPECT_EQ(biorhythm.BuildReport(0), u"<html><body>" + head + biorhythm.AdviceBlock(0, 23) +
                                            biorhythm.AdviceBlock(0, 28) + biorhythm.AdviceBlock(0, 33) +
                                            biorhythm.AdviceBlock(0, 38) + u"</body></html>");
}

TEST(Biorhythm, ReachesEveryPieceOfAdvice) {
    testing::FakeClock clock;
    Biorhythm biorhythm(clock);
    BiorhythmAdvice advice;
    advice.Parse(Bytes("heading\n3\none\ntwo\nthree\n"));
    biorhythm.SetAdvice(advice);
    std::map<std::u16string, int> blocks;
    for (clock.ticks = 0; clock.ticks < 3000; ++clock.ticks) {
        ++blocks[biorhythm.AdviceBlock(0, 23)];
    }
    ASSERT_EQ(blocks.size(), 3U);
    for (const auto& [block, count] : blocks) {
        EXPECT_GT(count, 800);
    }
}

TEST(RemarkableDays, AreFoundAsByAFreshLookAtEachDay) {
    const SolarDate birth(1980, 2, 29), view(2026, 11, 23);
    std::vector<RemarkableDay> expected;
    SolarDate end(2076, 11, 23);
    SolarDate day = view;
    for (day.NextDay(); day != end; day.NextDay()) {
        std::u16string lists[2];
        int counts[2] = {};
        for (const BiorhythmCycle& cycle : kCycles) {
            const DayClass dayClass = ClassOfDay(DaysBetween(day, birth), cycle);
            if (dayClass == DayClass::maximum || dayClass == DayClass::minimum) {
                const int icon = dayClass == DayClass::minimum ? 1 : 0;
                lists[icon] += u", " + std::u16string(cycle.name);
                ++counts[icon];
            }
        }
        for (const int icon : {0, 1}) {
            if (counts[icon] >= 2) {
                expected.push_back({DateText(day, DateOrder::dayFirst), lists[icon].substr(2), icon});
            }
        }
    }
    const auto found = FindRemarkableDays(birth, view, 50, true, true, DateOrder::dayFirst);
    ASSERT_EQ(found.size(), expected.size());
    ASSERT_GT(found.size(), 100U);
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].date, expected[i].date);
        EXPECT_EQ(found[i].cycles, expected[i].cycles);
        EXPECT_EQ(found[i].icon, expected[i].icon);
    }
    const auto good = FindRemarkableDays(birth, view, 50, true, false, DateOrder::dayFirst);
    const auto bad = FindRemarkableDays(birth, view, 50, false, true, DateOrder::dayFirst);
    EXPECT_EQ(good.size() + bad.size(), found.size());
    EXPECT_TRUE(FindRemarkableDays({2050, 1, 1}, view, 5, true, true, DateOrder::dayFirst).empty());
}

TEST(ImportantDates, StartWithFiveYearsOfBoth) {
    const SolarDate birth(1980, 1, 1), view(2024, 2, 29);
    ImportantDates dates(birth, view, DateOrder::monthFirst);
    EXPECT_TRUE(dates.ShowsGood() && dates.ShowsBad());
    EXPECT_EQ(kRemarkableYears[dates.YearsChoice()], 5);
    const std::size_t five = dates.Rows().size();
    const SolarDate last = dates.DateOfRow(five - 1);
    EXPECT_EQ(DateText(last, DateOrder::monthFirst), dates.Rows().back().date);
    EXPECT_LT(DaysBetween(last, {2029, 2, 28}), 0);
    dates.ChooseYears(99);
    EXPECT_GT(dates.Rows().size(), 8 * five);
    dates.SetShowGood(false);
    dates.SetShowBad(false);
    EXPECT_TRUE(dates.Rows().empty());
}

TEST(BiorhythmPage, FollowsThePersons) {
    const testing::TemporaryFolder folder;
    testing::FakeClock clock({2026, 11, 23});
    BiorhythmPage page(clock, {1970, 5, 6}, DateOrder::dayFirst);
    EXPECT_EQ(page.Open(folder.Path()), u"Can not open data file!");
    EXPECT_EQ(page.BirthLabel(false), u"Date of birth: 6/5/1970");
    EXPECT_EQ(page.ViewLabel(true), u"V: 23/11/2026");
    EXPECT_EQ(page.PersonItems(), (std::vector<std::u16string>{u"New person..."}));
    EXPECT_TRUE(page.ChoosePersonItem(0));
    EXPECT_EQ(page.Name(), u"No name");
    EXPECT_EQ(page.BirthLabel(true), u"B: 1/1/1980");
    page.SetName(u"Ann \u00E9");
    page.SetBirth({1999, 12, 31});
    EXPECT_TRUE(page.ChoosePersonItem(1));
    EXPECT_FALSE(page.ChoosePersonItem(0));
    page.SetOrder(DateOrder::monthFirst);
    EXPECT_EQ(page.BirthLabel(false), u"Date of birth: 12/31/1999");
    EXPECT_TRUE(page.Close());

    BiorhythmPage again(clock, {1970, 5, 6}, DateOrder::dayFirst);
    again.Open(folder.Path());
    EXPECT_EQ(again.Name(), u"Ann \u00E9");
    EXPECT_EQ(again.Birth(), SolarDate(1999, 12, 31));
    EXPECT_EQ(again.People().List()[0].birth, u"12/31/1999");
    again.ChoosePersonItem(1);
    again.RemovePerson(1);
    EXPECT_EQ(again.Name(), u"Ann \u00E9");
    again.RemovePerson(0);
    EXPECT_EQ(again.People().Current(), -1);
    EXPECT_EQ(again.Name(), u"");
    EXPECT_EQ(again.Birth(), SolarDate(1999, 12, 31));
    // A report does not wait for the graph to be painted with the new date.
    again.Draw({0, 0, 290, 100});
    again.SetView({2026, 12, 1});
    const std::u16string report = again.BuildReport();
    again.Draw({0, 0, 290, 100});
    EXPECT_EQ(again.BuildReport(), report);
    again.SetView({2026, 12, 4});
    EXPECT_NE(again.BuildReport(), report);
}

}  // namespace
}  // namespace quorix
