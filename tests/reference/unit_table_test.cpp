#include "reference/unit_table.h"

#include <gtest/gtest.h>

#include "platform/utf8.h"
#include "reference/unit_conversion.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

class Units : public ::testing::Test {
  protected:
    bool Load(std::string_view text) {
        folder_.Write("units.dat", text);
        return table_.Load(folder_ / "units.dat");
    }
    /// "FACTOR OFFSET" or the words of the failure.
    std::string Pair(std::u16string_view from, std::u16string_view to) {
        double factor = 0;
        double offset = 0;
        if (!table_.GetConversion(from, to, factor, offset)) {
            return ToUtf8(table_.ErrorText());
        }
        char text[80];
        std::snprintf(text, sizeof text, "%.12g %.12g", factor, offset);
        return text;
    }

    testing::TemporaryFolder folder_;
    UnitTable table_;
};

TEST_F(Units, RelateByTheirDefinitions) {
    ASSERT_TRUE(
        Load("# comment\n@ other comment\n#Begin:ignored\n"
             "Metre m !\nSecond s !\nKilogram kg !\nKelvin K !\nOther m2 !\n"
             "Foot ft 0.3048 0 m\nYard yd 3 0 ft\nNewton N 1 0 kg*m/s^2\nJoule J 1 0 N*m\nWatt W 1 0 J/s\n"
             "Celsius °C 1 273.15 K\nFahrenheit °F 0.5 255.5 K\nHeat H 1 0 J/(kg*°C)\nCool Q 1 0 J/(kg*K)\n"
             "Hertz Hz 1 0 1/s\nPart of1 1 0 1\nPercent % 0.01 0 1\nZero z 0 0 m\nLost l 2 0 nowhere\n"
             "US_gallon US_gal 3 0 m^3\nMileage mpg 6 0 m/US_gal\nArea A 2 0 m^2\nInverse I 4 0 1/A\n"
             "a:b a:b 5 0 m\n"));
    const struct {
        std::u16string_view from, to;
        std::string pair;
    } rows[] = {
        {u"m", u"Metre", "1 0"},        {u"m", u"s", "Not same Unit."},
        {u"ft", u"m", "0.3048 0"},      {u"m", u"Foot", "3.28083989501 0"},
        {u"yd", u"ft", "3 0"},          {u"ft", u"yd", "0.333333333333 0"},
        {u"yd", u"Metre", "0.9144 0"},  {u"°C", u"K", "1 273.15"},
        {u"K", u"°C", "1 -273.15"},     {u"°F", u"°C", "0.5 -17.65"},
        {u"°C", u"°C", "1 0"},          {u"W", u"W", "1 0"},
        {u"H", u"Q", "Not same Unit."}, {u"mpg", u"I", "1 0"},  // m/m^3 is 1/m^2
        {u"of1", u"%", "100 0"},        {u"z", u"m", "0 0"},
        {u"m", u"z", "Not same Unit."}, {u"ft", u"z", "Not same Unit."},
        {u"l", u"m", "Not same Unit."}, {u"nowhere", u"m", "Unknown Unit."},
        {u"", u"m", "Unknown Unit."},   {u"a:b", u"m", "5 0"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Pair(row.from, row.to), row.pair) << ToUtf8(row.from) << " to " << ToUtf8(row.to);
    }
    EXPECT_TRUE(table_.IsBaseUnit(u"Kelvin"));
    EXPECT_FALSE(table_.IsBaseUnit(u"°C"));
    EXPECT_EQ(table_.FindIndex(u"ft"), 6U);
    // A new factor counts at once, in what is built on it too.
    table_.SetFactor(5, 0.5);
    EXPECT_EQ(Pair(u"yd", u"m"), "1.5 0");
}

TEST_F(Units, ExpandingKeepsOrderAndDropsTheOuterOffset) {
    ASSERT_TRUE(Load("A a !\nB b !\nMix mix 2 0 b/a\nOdd odd 5 3 mix*b/mix\n"));
    UnitRecord odd;
    ASSERT_TRUE(table_.CopyRecord(3, odd));
    ASSERT_TRUE(ExpandUnit(table_, odd));
    EXPECT_EQ(odd.factor, 5);
    EXPECT_EQ(odd.offset, 0);
    EXPECT_EQ(odd.numerators, (std::vector<std::u16string>{u"b", u"b", u"a"}));
    EXPECT_EQ(odd.denominators, (std::vector<std::u16string>{u"b", u"a"}));
    SimplifyUnit(odd);
    EXPECT_EQ(odd.numerators, (std::vector<std::u16string>{u"b"}));
    EXPECT_TRUE(odd.denominators.empty());
}

TEST_F(Units, HostileDefinitionsEndAsNotTheSame) {
    std::string text = "Base u0 !\n";
    std::string product = "Base u0 !\n";
    for (int i = 1; i <= 40; ++i) {
        const std::string row =
            "\nU" + std::to_string(i) + " u" + std::to_string(i) + " 2 0 u" + std::to_string(i - 1);
        text += row;
        product += row + "^999";
    }
    ASSERT_TRUE(Load(text + "\nLoop loop 2 0 pool*x\nPool pool 2 0 loop*x\nSelf self 2 0 self\n"));
    EXPECT_EQ(Pair(u"u32", u"u0"), "4294967296 0");
    EXPECT_EQ(Pair(u"u33", u"u0"), "Not same Unit.");
    EXPECT_EQ(Pair(u"loop", u"u0"), "Not same Unit.");
    EXPECT_EQ(Pair(u"u1", u"self"), "Not same Unit.");
    ASSERT_TRUE(Load(product));
    EXPECT_EQ(Pair(u"u30", u"u0"), "Not same Unit.");
}

TEST_F(Units, ABadLineKeepsTheRowsBeforeIt) {
    EXPECT_FALSE(Load("A a !\n\n# x\nB b\nC c !\n"));
    EXPECT_EQ(table_.ErrorText(), u"Error on line 4 in data file.");
    EXPECT_EQ(table_.Records().size(), 1U);
    EXPECT_FALSE(table_.Load(folder_ / "absent.dat"));
    EXPECT_EQ(table_.ErrorText(), u"Error open date file.");
    EXPECT_EQ(table_.FindIndex(u"a"), 1U);
    EXPECT_FALSE(Load("A a !\n" + std::string(260, 'x') + " b !\n"));
    EXPECT_EQ(table_.Error(), 2);
    EXPECT_TRUE(Load("#" + std::string(3000, 'x') + "\n"));
    EXPECT_EQ(Pair(u"a", u"a"), "Unknown Unit.");
    EXPECT_EQ(table_.ErrorText(), u"Unknown Unit.");
}

}  // namespace
}  // namespace quorix
