// The advice file and the persons file, whole and damaged.

#include <gtest/gtest.h>

#include <set>

#include "platform/archive.h"
#include "support/temporary_folder.h"
#include "tools/biorhythm_advice.h"
#include "tools/date_order.h"
#include "tools/persons.h"

namespace quorix {
namespace {

BiorhythmAdvice Parsed(std::string_view text) {
    BiorhythmAdvice advice;
    advice.Parse({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    return advice;
}

std::size_t LineCount(const BiorhythmAdvice& advice) {
    std::size_t count = 0;
    for (std::size_t cycle = 0; cycle < kCycleCount; ++cycle) {
        for (std::size_t kind = 0; kind < kDayClassCount; ++kind) {
            count += advice.Of(cycle, static_cast<DayClass>(kind)).size();
        }
    }
    return count;
}

using Lines = BiorhythmAdvice::Lines;

TEST(AdviceFile, ReadsCountsAsNumbersBeforeText) {
    const BiorhythmAdvice advice = Parsed(
        "PHYSICAL\r\n 2 lines follow\r\nfirst\r\nsecond\r\n0\n-3\nnone\n+1\nhigh\n1x\nlow\n"
        "99999999999999999999\nmax 1\nmax 2");
    EXPECT_EQ(advice.Of(0, DayClass::critical1), (Lines{u"first\r\n", u"second\r\n"}));
    EXPECT_TRUE(advice.Of(0, DayClass::critical2).empty());
    EXPECT_TRUE(advice.Of(0, DayClass::medium).empty());
    EXPECT_TRUE(advice.Of(0, DayClass::high).empty());  // "none" is no number
    EXPECT_EQ(advice.Of(0, DayClass::low), (Lines{u"high\n"}));
    EXPECT_EQ(advice.Of(0, DayClass::maximum), (Lines{u"low\n"}));
    EXPECT_EQ(advice.Of(0, DayClass::minimum), (Lines{u"max 1\n", u"max 2"}));
    EXPECT_EQ(LineCount(advice), 6U);
}

TEST(AdviceFile, TakesEveryMalformedShape) {
    EXPECT_EQ(LineCount(Parsed("")), 0U);
    EXPECT_EQ(LineCount(Parsed("heading")), 0U);
    EXPECT_EQ(LineCount(Parsed("heading\n5\n")), 0U);
    EXPECT_EQ(LineCount(Parsed(std::string(5000, '\n'))), 0U);
    EXPECT_EQ(LineCount(Parsed(std::string(5000, '\0'))), 0U);
    const BiorhythmAdvice longLine = Parsed("heading\n2\n" + std::string(1500, 'a') + "\nnext\n");
    EXPECT_EQ(longLine.Of(0, DayClass::critical1),
              (Lines{std::u16string(1023, u'a'), std::u16string(477, u'a') + u"\n"}));
    using namespace std::string_literals;
    EXPECT_EQ(Parsed("heading\n1\nab\0cd\n"s).Of(0, DayClass::critical1), (Lines{u"ab"}));
    EXPECT_EQ(Parsed("heading\n1\n\xFF\xC3\xA9\n").Of(0, DayClass::critical1), (Lines{u"\uFFFD\u00E9\n"}));

    const testing::TemporaryFolder folder;
    BiorhythmAdvice advice = Parsed("heading\n1\nold\n");
    EXPECT_FALSE(advice.Load(folder / "biorythm.dat"));
    EXPECT_EQ(LineCount(advice), 0U);
    folder.Write("large.dat", std::string(kLargestAdviceFile + 1, '\n'));
    EXPECT_FALSE(advice.Load(folder / "large.dat"));
}

TEST(AdviceFile, ShipsWithSixLinesOfEveryKind) {
    BiorhythmAdvice advice;
    ASSERT_TRUE(advice.Load(std::filesystem::path(QUORIX_SOURCE_DIR) / "assets" / "biorythm.dat"));
    std::set<std::u16string> all;
    for (std::size_t cycle = 0; cycle < kCycleCount; ++cycle) {
        for (std::size_t kind = 0; kind < kDayClassCount; ++kind) {
            const Lines& lines = advice.Of(cycle, static_cast<DayClass>(kind));
            EXPECT_GE(lines.size(), 6U) << cycle << " " << kind;
            for (const std::u16string& line : lines) {
                EXPECT_TRUE(all.insert(line).second) << "twice: " << std::string(line.begin(), line.end());
                EXPECT_GT(line.size(), 40U);
                EXPECT_TRUE(line.ends_with(u".\n")) << std::string(line.begin(), line.end());
                EXPECT_EQ(line.find_first_of(u"<>&"), std::u16string::npos);
            }
        }
    }
}

std::vector<std::uint8_t> PersonsBytes(std::uint32_t count, std::uint32_t current) {
    ArchiveWriter archive;
    archive.WriteU32(count);
    archive.WriteU32(current);
    for (const std::u16string_view text : {u"Ann", u"2/29/2000", u"Bob", u"nonsense"}) {
        archive.WriteString(text);
    }
    return archive.Bytes();
}

TEST(PersonsFile, ComesBack) {
    const testing::TemporaryFolder folder;
    const auto path = folder / "persons";
    folder.Write("persons", PersonsBytes(2, 1));
    Persons persons;
    persons.Load(path);
    ASSERT_EQ(persons.List().size(), 2U);
    EXPECT_EQ(persons.CurrentPerson()->name, u"Bob");
    EXPECT_TRUE(persons.Save(path));
    Persons again;
    again.Load(path);
    EXPECT_EQ(again.List(), persons.List());
    EXPECT_EQ(again.Current(), 1);
    EXPECT_FALSE(std::filesystem::exists(folder / "persons.bad"));
    for (const std::uint32_t current : {2U, 0xFFFFFFFFU, 0x80000000U}) {
        folder.Write("persons", PersonsBytes(2, current));
        persons.Load(path);
        EXPECT_EQ(persons.Current(), 0);
    }
}

TEST(PersonsFile, KeepsADamagedFileAside) {
    const testing::TemporaryFolder folder;
    const auto path = folder / "persons";
    const auto whole = PersonsBytes(2, 0);
    std::vector<std::vector<std::uint8_t>> shapes;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        shapes.emplace_back(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    }
    shapes.push_back(PersonsBytes(3, 0));           // fewer persons than told
    shapes.push_back(PersonsBytes(0xFFFFFFFF, 0));  // a negative number of them
    shapes.emplace_back(kLargestPersonsFile + 1, std::uint8_t{0});
    for (const auto& bytes : shapes) {
        folder.Write("persons", bytes);
        Persons persons;
        persons.AddNew();
        persons.Load(path);
        EXPECT_TRUE(persons.List().empty());
        EXPECT_EQ(persons.Current(), -1);
        ASSERT_TRUE(std::filesystem::exists(folder / "persons.bad")) << bytes.size();
        EXPECT_EQ(std::filesystem::file_size(folder / "persons.bad"), bytes.size());
        std::filesystem::remove(folder / "persons.bad");
    }
}

TEST(Persons, LowerTheCurrentIndexOnRemoval) {
    Persons persons;
    for (int i = 0; i < 4; ++i) persons.AddNew();
    persons.Choose(2);
    persons.Remove(3);
    EXPECT_EQ(persons.Current(), 2);
    persons.Remove(0);
    EXPECT_EQ(persons.Current(), 1);
    persons.Remove(1);
    EXPECT_EQ(persons.Current(), 0);
    persons.Remove(7);
    persons.Remove(0);
    EXPECT_EQ(persons.Current(), -1);
    persons.Rename(u"nobody");
    persons.SetBirth({2000, 1, 1});
    EXPECT_TRUE(persons.List().empty());
}

TEST(DateText, IsReadFromAnyText) {
    struct Row {
        std::u16string_view text;
        SolarDate monthFirst;
    };
    const Row rows[] = {
        {u"2/29/2000", {2000, 2, 29}}, {u" 12 / 5 /1999 x", {1999, 12, 5}},
        {u"13/45/1999", {1999, 1, 1}}, {u"", {1980, 1, 1}},
        {u"1/2", {1980, 1, 1}},        {u"//", {0, 1, 1}},
        {u"a/b/c", {0, 1, 1}},         {u"1/1/99999999999", {2147483647, 1, 1}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ReadDateText(row.text, DateOrder::monthFirst), row.monthFirst);
    }
    EXPECT_EQ(ReadDateText(u"3/4/2000", DateOrderOf(u"English (UK)")), SolarDate(2000, 4, 3));
    EXPECT_EQ(DateText({2000, 4, 3}, DateOrderOf(u"European")), u"3/4/2000");
    EXPECT_EQ(DateText({2000, 4, 3}, DateOrderOf(u"English (US)")), u"4/3/2000");
}

}  // namespace
}  // namespace quorix
