#include "reference/data_file_reader.h"

#include <gtest/gtest.h>

#include "platform/utf8.h"
#include "reference/unit_definition.h"
#include "support/temporary_folder.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

std::string Joined(const std::vector<GroupEntry>& groups) {
    std::string text;
    for (const GroupEntry& group : groups) {
        text += ToUtf8(group.name) + (group.hasChildren ? "+ " : " ");
    }
    return text;
}

std::string Joined(const std::vector<UnitRecord>& rows) {
    std::string text;
    for (const UnitRecord& row : rows) {
        text += ToUtf8(row.symbol) + " ";
    }
    return text;
}

std::string Joined(const std::vector<ConstantRow>& rows) {
    std::string text;
    for (const ConstantRow& row : rows) {
        text += ToUtf8(row.name) + "=" + ToUtf8(row.value) + " ";
    }
    return text;
}

/// Runs every operation on one file and tells list and error of each.
class DataFile : public ::testing::Test {
  protected:
    void Write(std::string_view text) { folder_.Write("data.dat", text); }
    template <class List, class... Arguments>
    std::string Run(bool (DataFileReader::*operation)(Arguments...),
                    std::optional<std::u16string> group = std::nullopt) {
        List list;
        bool read = false;
        if constexpr (sizeof...(Arguments) == 2) {
            read = (reader_.*operation)(*group, list);
        } else {
            read = (reader_.*operation)(list);
        }
        EXPECT_EQ(read, reader_.Error() == DATA_NO_ERROR);
        return Joined(list) + "(" + std::to_string(reader_.Error()) + ")";
    }
    std::string Groups() { return Run<std::vector<GroupEntry>>(&DataFileReader::ListGroups); }
    std::string UnitGroups() { return Run<std::vector<GroupEntry>>(&DataFileReader::ListUnitGroups); }
    std::string Children(std::u16string name) {
        return Run<std::vector<GroupEntry>>(&DataFileReader::ListChildGroups, std::move(name));
    }
    std::string Constants(std::u16string name) {
        return Run<std::vector<ConstantRow>>(&DataFileReader::ReadConstantRows, std::move(name));
    }
    std::string Units(std::u16string name) {
        return Run<std::vector<UnitRecord>>(&DataFileReader::ReadUnitRows, std::move(name));
    }

    testing::TemporaryFolder folder_;
    DataFileReader reader_{folder_ / "data.dat"};
};

TEST_F(DataFile, GroupsNestAndNamesHaveBlanks) {
    Write(
        "\xEF\xBB\xBF# a comment, and a row outside of groups\nstray row\r\n"
        "#begin:Speed_of_light:0\r\n\tvacuum:\t299792458_m/s\r\n#End of list\r\n"
        "#BEGIN:Nested:7\n#Begin:One\n a 1\n#end\n#Begin:Two:1\n#Begin:Deep:0\n b 2\n#End\n#End\n c 3\n#End\n"
        "#Begin:constant_things:0\n#End\n#Begin:Two:0\n d 4\n#End\n#Begin:Open:0\n e 5\n");
    EXPECT_EQ(Groups(), "Speed of light Nested+ constant things Two (0)");
    EXPECT_EQ(UnitGroups(), "Speed of light Nested+ Two (0)");
    EXPECT_EQ(Children(u"Nested"), "One Two+ (0)");
    // Both groups of that name.
    EXPECT_EQ(Children(u"Two"), "Deep (0)");
    EXPECT_EQ(Constants(u"Speed of light"), "vacuum=299792458 m/s (0)");
    EXPECT_EQ(Constants(u"Nested"), "a=1 b=2 c=3 (0)");
    // The first group of that name only, and one that is never closed.
    EXPECT_EQ(Constants(u"Two"), "b=2 (0)");
    EXPECT_EQ(Constants(u"Open"), "e=5 (0)");
    EXPECT_EQ(Constants(u"nested"), "(0)");
    GroupEntry first;
    EXPECT_TRUE(reader_.FirstGroup(first));
    EXPECT_EQ(first, (GroupEntry{u"Speed of light", false}));
}

TEST_F(DataFile, UnitRowsOfEveryGroupOfTheName) {
    Write(
        "#Begin:Length:0\nMetre m ! trailing words\nFoot\tft\t0.3048\t0\tm\n#End\n"
        "#Begin:Other:0\nbad\n#End\n#Begin:Length:0\nDegree \xB0 1 0 rad\nMile_US mi_US 5280 0 m / "
        "s\n#End\n");
    EXPECT_EQ(Units(u"Length"), "m ft ° mi US (0)");
    EXPECT_EQ(Units(u"Other"), "(6)");
}

TEST_F(DataFile, MalformedLinesStopWithTheirNumber) {
    const std::string overlong(300, 'x');
    const struct {
        std::string text;
        std::string groups;
        std::string units;
    } rows[] = {
        {"#Begin:A\n#End\n", "(1)", "(0)"},
        {"#Begin:A:0\n#End\n#Begin:\n", "A (3)", "(3)"},
        {"#End\n#End\n#Begin:A:0\nM m !\n#End\n", "A (0)", "m (0)"},
        {"#Begin:A:0\nM m !\nF f\n#End\n", "A (0)", "m (3)"},
        {"#Begin:A:0\nF f 2\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f 2 0\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f two 0 m\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f 1,5 0 m\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f 1e999 0 m\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f nan 0 m\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f 1 0 m^x\n", "(0)", "(2)"},
        {"#Begin:A:0\nF f 1 0 m " + overlong + "\n#End\n", "A (0)", "(2)"},
        {"#Begin:A:0\n#" + overlong + "\nM m !\n#End\n", "A (0)", "m (0)"},
        {"#Begin:A:0" + overlong + "\n#End\n", "(1)", "(1)"},
        {std::string("#Begin:A:0\nM m !\0 x\n#End\n", 26), "A (0)", "(2)"},
        {std::string("\0\0\0\0", 4), "(0)", "(0)"},
    };
    for (const auto& row : rows) {
        Write(row.text);
        EXPECT_EQ(Groups(), row.groups) << row.text;
        EXPECT_EQ(Units(u"A"), row.units) << row.text;
    }
    Write("#Begin:A:0\nx 1\ny\n#End\n");
    EXPECT_EQ(Constants(u"A"), "x=1 (3)");
    EXPECT_EQ(ToUtf8(reader_.ErrorText()), "Error on line 3 in " + (folder_ / "data.dat").string() + ".");
    DataFileReader absent(folder_ / "absent.dat");
    std::vector<GroupEntry> groups;
    EXPECT_FALSE(absent.ListGroups(groups));
    EXPECT_EQ(ToUtf8(absent.ErrorText()), "Loi mo tep " + (folder_ / "absent.dat").string() + ".");
}

TEST_F(DataFile, ListsGrowAndEndAtTheirBound) {
    std::string text = "#Begin:A:0\n";
    for (std::size_t i = 0; i <= kMostDataRows; ++i) {
        text += "x 1\n";
    }
    Write(text);
    std::vector<ConstantRow> rows;
    EXPECT_FALSE(reader_.ReadConstantRows(u"A", rows));
    EXPECT_EQ(rows.size(), kMostDataRows);
    EXPECT_EQ(reader_.ErrorText(), u"Stack over flow.");
}

std::string TermsOf(std::string_view definition) {
    std::vector<std::u16string> above;
    std::vector<std::u16string> below;
    if (!ParseUnitDefinition(FromUtf8(definition), above, below)) {
        return "fails";
    }
    std::string terms;
    for (const auto& term : above) {
        terms += ToUtf8(term) + " ";
    }
    terms += "/";
    for (const auto& term : below) {
        terms += " " + ToUtf8(term);
    }
    return terms;
}

TEST(UnitDefinition, TermsGoAboveAndBelowTheLine) {
    for (const auto& [definition, terms] :
         Rows("kg*m/s^2 -> kg m / s s; J/(kg*K) -> J / kg K; m/s*kg -> m kg / s; m/s^2*kg -> m kg / s s; "
              "a/b/c -> a c / b; 1/s -> 1 / s; J/(kg^2*K) -> J / kg kg K; (a)*b/c*d -> a b / c d; x^0 -> /; "
              "m^3 -> m m m /; a*b* -> a b /;  -> /; m s -> fails; x^ -> fails; x^y -> fails; x^-1 -> fails; "
              "^2 -> fails; (a*b)^2 -> fails; x^2^3 -> fails; x^99999999999999999999 -> fails; "
              "a^600*b^600 -> fails")) {
        EXPECT_EQ(TermsOf(definition), terms) << definition;
    }
}

}  // namespace
}  // namespace quorix
