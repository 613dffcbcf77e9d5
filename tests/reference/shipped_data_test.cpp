// The data files that ship with the program.

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "engine/calc_context.h"
#include "engine/evaluate.h"
#include "frontends/engine_text.h"
#include "platform/utf8.h"
#include "reference/constant_text.h"
#include "reference/currency_file.h"
#include "reference/data_file_reader.h"
#include "reference/unit_table.h"

namespace quorix {
namespace {

const std::filesystem::path kAssets = std::filesystem::path(QUORIX_SOURCE_DIR) / "assets";

TEST(ShippedUnits, ConvertToTheFirstOfTheirCategoryAndBack) {
    UnitTable table;
    ASSERT_TRUE(table.Load(kAssets / "units.dat")) << ToUtf8(table.ErrorText());
    DataFileReader reader(kAssets / "units.dat");
    std::vector<GroupEntry> categories;
    ASSERT_TRUE(reader.ListUnitGroups(categories));
    EXPECT_GE(categories.size(), 25U);
    EXPECT_GE(table.Records().size(), 500U);
    std::size_t listed = 0;
    for (const GroupEntry& category : categories) {
        std::vector<UnitRecord> rows;
        ASSERT_TRUE(reader.ReadUnitRows(category.name, rows));
        EXPECT_GE(rows.size(), 2U) << ToUtf8(category.name);
        listed += rows.size();
        for (const UnitRecord& row : rows) {
            double factor = 0, offset = 0, backFactor = 0, backOffset = 0;
            ASSERT_TRUE(table.GetConversion(row.name, rows[0].name, factor, offset)) << ToUtf8(row.name);
            ASSERT_TRUE(table.GetConversion(rows[0].symbol, row.symbol, backFactor, backOffset));
            for (const double value : {1.0, 37.25, 1e6}) {
                const double back = (value * factor + offset) * backFactor + backOffset;
                EXPECT_NEAR(back / value, 1, 1e-12 * (1 + std::fabs(backOffset / value))) << ToUtf8(row.name);
            }
        }
    }
    EXPECT_EQ(listed, table.Records().size());
}

TEST(ShippedUnits, EveryNameAndSymbolMeansOneUnit) {
    for (const char* file : {"units.dat", "currency.dat"}) {
        UnitTable table;
        ASSERT_TRUE(table.Load(kAssets / file));
        std::set<std::u16string> texts;
        for (const UnitRecord& record : table.Records()) {
            EXPECT_TRUE(texts.insert(record.name).second) << ToUtf8(record.name);
            EXPECT_TRUE(record.name == record.symbol || texts.insert(record.symbol).second)
                << ToUtf8(record.symbol);
        }
    }
}

TEST(ShippedUnits, AgreeWithKnownPairs) {
    UnitTable table;
    ASSERT_TRUE(table.Load(kAssets / "units.dat"));
    const struct {
        std::u16string_view from, to;
        double value, result;
    } rows[] = {
        {u"°C", u"°F", 100, 212},
        {u"°F", u"°C", -40, -40},
        {u"°De", u"°C", 0, 100},
        {u"°Rø", u"°C", 60, 100},
        {u"mi", u"km", 1, 1.609344},
        {u"gal", u"L", 1, 3.785411784},
        {u"psi", u"Pa", 1, 6894.757293168361},
        {u"hp", u"W", 1, 745.6998715822702},
        {u"mpg", u"km/L", 1, 0.4251437074976},
        {u"MiB", u"bit", 1, 8388608},
        {u"kn", u"km/h", 1, 1.852},
        {u"pc", u"ly", 1, 3.261563777167433},
        {u"atm", u"Torr", 1, 760},
        {u"kWh", u"Btu", 1, 3412.141633127942},
        {u"Sv", u"rem", 1, 100},
        {u"toise", u"m", 1, 1.9490363},
        {u"W", u"J/h", 1, 3600},
        {u"lb/ft³", u"kg/m³", 1, 16.01846337396014},
        {u"L/100km", u"gal/100mi", 10, 4.251437074976},
    };
    for (const auto& row : rows) {
        double factor = 0, offset = 0;
        ASSERT_TRUE(table.GetConversion(row.from, row.to, factor, offset)) << ToUtf8(row.from);
        EXPECT_NEAR(row.value * factor + offset, row.result, 1e-7 * std::fabs(row.result))
            << ToUtf8(row.from);
    }
}

TEST(ShippedConstants, EveryRowReachesTheEngineAsANumber) {
    DataFileReader reader(kAssets / "const.dat");
    std::vector<GroupEntry> groups;
    ASSERT_TRUE(reader.ListGroups(groups));
    std::size_t numbers = 0;
    for (const GroupEntry& group : groups) {
        std::vector<ConstantRow> rows;
        ASSERT_TRUE(reader.ReadConstantRows(group.name, rows));
        EXPECT_FALSE(rows.empty());
        std::vector<GroupEntry> children;
        ASSERT_TRUE(reader.ListChildGroups(group.name, children));
        EXPECT_EQ(children.empty(), !group.hasChildren);
        for (const ConstantRow& row : rows) {
            const std::u16string text = ConstantForEditor(row.value, group.name, u"English (US)");
            if (group.name == u"Area Formula" || group.name == u"Volume Formula") {
                EXPECT_EQ(text, row.value);
                continue;
            }
            ClearCalcError();
            const auto line = ToEngineText(text, u"English (US)", 10);
            ASSERT_TRUE(line) << ToUtf8(text);
            const CalcValue value = EvaluateExpression(*line, EvaluationMode::number, 10);
            EXPECT_EQ(calcContext().calcError, 0) << ToUtf8(text);
            EXPECT_FALSE(value.number.re.IsZero()) << ToUtf8(row.name);
            const std::size_t length = row.value.find_first_of(u" ");
            EXPECT_TRUE(group.name != u"Mathematical constants" || std::min(length, row.value.size()) >= 33U);
            ++numbers;
        }
    }
    EXPECT_GT(numbers, 200U);
}

TEST(ShippedRates, BeginWithTheBaseAndADate) {
    UnitTable table;
    ASSERT_TRUE(table.Load(kAssets / "currency.dat"));
    EXPECT_GE(table.Records().size(), 155U);
    EXPECT_EQ(table.Records()[0].symbol, u"USD");
    EXPECT_TRUE(table.Records()[0].IsBase());
    for (const UnitRecord& record : table.Records()) {
        EXPECT_EQ(record.symbol.size(), 3U);
        EXPECT_GT(record.factor, 0);
    }
    EXPECT_EQ(LocalRateDate(kAssets / "currency.dat"),
              RemoteRateDate(ReadFirstLine(kAssets / "currency.dat")));
    EXPECT_EQ(LocalRateDate(kAssets / "currency.dat").size(), 11U);
}

}  // namespace
}  // namespace quorix
