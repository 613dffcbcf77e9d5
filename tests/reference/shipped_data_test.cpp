// The data files that ship with the program.

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <sstream>

#include "engine/calc_context.h"
#include "engine/evaluate.h"
#include "frontends/engine_text.h"
#include "platform/utf8.h"
#include "reference/constant_text.h"
#include "reference/currency_file.h"
#include "reference/data_file_reader.h"
#include "reference/unit_table.h"
#include "support/text_rows.h"

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
    for (const auto& [quantity, result] :
         Rows("100 °C °F -> 212; -40 °F °C -> -40; 0 °De °C -> 100; 60 °Rø °C -> 100; 1 mi km -> 1.609344; "
              "1 gal L -> 3.785411784; 1 psi Pa -> 6894.757293168361; 1 hp W -> 745.6998715822702; "
              "1 mpg km/L -> 0.4251437074976; 1 MiB bit -> 8388608; 1 kn km/h -> 1.852; "
              "1 pc ly -> 3.261563777167433; 1 atm Torr -> 760; 1 kWh Btu -> 3412.141633127942; "
              "1 Sv rem -> 100; 1 toise m -> 1.9490363; 1 W J/h -> 3600; "
              "1 lb/ft³ kg/m³ -> 16.01846337396014; 10 L/100km gal/100mi -> 4.251437074976")) {
        std::istringstream words(quantity);
        double value = 0, factor = 0, offset = 0;
        std::string from, to;
        words >> value >> from >> to;
        ASSERT_TRUE(table.GetConversion(FromUtf8(from), FromUtf8(to), factor, offset)) << quantity;
        const double expected = std::stod(result);
        EXPECT_NEAR(value * factor + offset, expected, 1e-7 * std::fabs(expected)) << quantity;
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
