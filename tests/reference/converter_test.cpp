#include "reference/converter.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/key_engine.h"
#include "platform/archive.h"
#include "platform/files.h"
#include "reference/constant_text.h"
#include "reference/currency_table.h"
#include "reference/number_text.h"
#include "support/reference_rig.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

using enum ConverterField;

constexpr std::string_view kUnits =
    "#Begin:Length:0\nMetre m !\nCentimetre cm 0.01 0 m\nFoot ft 0.3048 0 m\n#End\n"
    "#Begin:Temperature:0\nKelvin K !\nCelsius °C 1 273.15 K\n#End\n#Begin:Constants:0\n#End\n";
constexpr std::string_view kCurrency =
    "#Date: 30 Jun 2025\n\n#Begin:Currency:0\n\tUSD\tUSD\t!\n\tEuro\tEUR\t1.25000000000\t0\tUSD\n"
    "\tYen\tJPY\t0.00800000000\t0\tUSD\n#End";
constexpr std::string_view kConstants =
    "#Begin:Flat:0\nlight 299792458_m/s\ngravity 6.67e-11_m^3/(kg*s^2)\n#End\n"
    "#Begin:Nested:1\n#Begin:One:0\nelectron -1.5e+3\n#End\n#Begin:Two:0\n#End\n#End\n"
    "#Begin:Area_Formula:0\nCircle 0.5*exp(r)\n#End\n";

class ConverterTest : public ::testing::Test {
  protected:
    ConverterTest() {
        KeyEngineReset();
        rig_.folder.Write("units.dat", kUnits);
        rig_.folder.Write("currency.dat", kCurrency);
        rig_.folder.Write("const.dat", kConstants);
        converter_.emplace(rig_.Make());
        converter_->SetMode(ConverterMode::units);
    }
    void Keys(std::string_view keys) {
        for (const char key : keys) {
            EXPECT_TRUE(converter_->OnKey(key)) << key;
        }
    }
    std::string Value(ConverterField field) { return ToUtf8(converter_->Field(field).value); }
    std::string Label(ConverterField field) { return ToUtf8(converter_->Field(field).label); }
    std::string Both() {
        const bool units = converter_->Mode() == ConverterMode::units;
        return Value(units ? unitFrom : curFrom) + " | " + Value(units ? unitTo : curTo);
    }
    /// Both fields behind the keys of each row, one row after the other.
    void ExpectBoth(std::string_view table) {
        for (const auto& [keys, both] : Rows(table)) {
            Keys(keys);
            EXPECT_EQ(Both(), both) << keys;
        }
    }
    /// Opens a list at a spot and chooses a row of it.
    void Choose(HotSpot spot, int row) {
        PressOutcome outcome = converter_->Press(spot);
        ASSERT_EQ(outcome.kind, PressOutcome::Kind::openList);
        converter_->OnCommand(outcome.list.command, row,
                              outcome.list.items.at(static_cast<std::size_t>(row)));
    }

    testing::ConverterRig rig_;
    std::optional<Converter> converter_;
};

TEST_F(ConverterTest, KeysMakeTheActiveFieldACalculatorThatTheOtherFieldFollows) {
    EXPECT_EQ(Label(catField), "Length");
    EXPECT_EQ(Both(), "0 | 0");
    ExpectBoth(
        "5 -> 5 | 500; C12*3 -> 3 | 300; C12*3+ -> 36 | 3¸600; C12*3= -> 36 | 3¸600; "
        "C12*3\r -> 36 | 3¸600; C3.=2 -> 32 | 3¸200; C3.5=2 -> 3.52 | 352; C1.50 -> 1.50 | 150; "
        "C12\b -> 1 | 100; C12\b\b7 -> 7 | 700; C1.5\b\b4 -> 14 | 1¸400; C5+12\b= -> 6 | 600; "
        "C12~ -> -12 | -1¸200; C2.5~\b -> -2. | -200; C7MC1+R= -> 8 | 800; C12R -> 7 | 700");
    Keys("C5/0=");
    EXPECT_TRUE(Both().ends_with(" | ") && Both().size() > 3) << Both();
    ExpectBoth(
        "4 -> 4 | 400; C1/3= -> 0.33333333333333333333333333333333 | 33.33333333; "
        "* -> 0.33333333333333333333333333333333 | 33.33333333; "
        "\b -> 0.3333333333333333333333333333333 | 33.33333333; "
        "C1000000000000*1000000= -> 1.00000000000000000000000000000000E18 | 1.00000000e+20; "
        "C1000000000\t -> 1¸000¸000¸000 | 100¸000¸000¸000; 5 -> 0.05 | 5; \x1B ->  | ");
    EXPECT_FALSE(converter_->OnKey(','));
    EXPECT_FALSE(converter_->OnKey('x'));
    EXPECT_FALSE(converter_->OnKey(0x10030));
}

TEST_F(ConverterTest, EighteenCharactersTakeNoNineteenthButBackspace) {
    Keys("1234567890.123456");
    EXPECT_EQ(converter_->Field(unitFrom).value.size(), 18U);
    Keys("7");
    EXPECT_EQ(Value(unitFrom), "1¸234¸567¸890.1234");
    Keys("=+~");
    EXPECT_EQ(Value(unitFrom), "1¸234¸567¸890.1234");
    Keys("\b");
    EXPECT_EQ(Value(unitFrom), "1¸234¸567¸890.123");
}

TEST_F(ConverterTest, EuropeanSignsReadBackAsTheyAreShown) {
    rig_.locale = u"European";
    Keys("1234.5");
    EXPECT_EQ(Both(), "1.234¸5 | 123.450");
    Keys("M");
    EXPECT_EQ(rig_.memory, "1234.5");
    Keys("C.00000000001");
    EXPECT_EQ(Value(unitTo), "1.00000000e-09");
    // The result in exponent form is read back when the other side gets a new unit.
    converter_->OnFieldPressed(unitTo);
    Choose(HotSpot::from, 1);
    EXPECT_EQ(Value(unitFrom), "1.00000000e-09");
    Keys("C12,5_");
    EXPECT_EQ(Both(), "-12¸5 | -12¸5");
    // What stands there keeps its value when the preference changes.
    Keys("C1234.5");
    converter_->SetMode(ConverterMode::constants);
    Choose(HotSpot::from, 1);
    rig_.locale = u"English (US)";
    converter_->ExchangeDecimalSigns();
    EXPECT_EQ(Label(constValue), "6.67e-11 m^3/(kg*s^2)");
    converter_->SetMode(ConverterMode::units);
    converter_->OnFieldPressed(unitFrom);
    Keys("6");
    EXPECT_EQ(Both(), "1¸234.56 | 1¸234.56");
}

TEST_F(ConverterTest, PressingAFieldGoesOnFromItsNumber) {
    Keys("12");
    converter_->OnFieldPressed(unitTo);
    EXPECT_EQ(converter_->ActiveField(), unitTo);
    Keys("5");
    EXPECT_EQ(Both(), "120.05 | 12¸005");
    // The field that is active already only begins anew.
    converter_->OnFieldPressed(unitTo);
    Keys("3");
    EXPECT_EQ(Both(), "0.03 | 3");
    converter_->OnFieldPressed(catField);
    Keys("4");
    EXPECT_EQ(Both(), "0.34 | 34");
}

TEST_F(ConverterTest, AChosenUnitFollowsTheFixedSide) {
    Keys("2");
    Choose(HotSpot::to, 2);
    EXPECT_EQ(Both(), "2 | 6.56167979");
    EXPECT_EQ(Label(unitTo), "ft");
    // The side that is typed into follows too; signs work on what it shows, digits begin anew.
    Keys("\t3");
    Choose(HotSpot::to, 1);
    EXPECT_EQ(Both(), "0.9144 | 91.44");
    Keys("+1=");
    EXPECT_EQ(Value(unitTo), "92.44");
    Choose(HotSpot::to, 2);
    Keys("10");
    EXPECT_EQ(Both(), "3.048 | 10");
    Choose(HotSpot::group, 1);
    EXPECT_EQ(converter_->State().unitCategoryIndex, 1);
    EXPECT_EQ(Both(), " | ");
    Keys("\t1");
    EXPECT_EQ(Both(), "1 | Unknown Unit.");
    Choose(HotSpot::from, 1);
    Choose(HotSpot::to, 0);
    EXPECT_EQ(Both(), "1 | 274.15");
    Choose(HotSpot::group, 0);
    Choose(HotSpot::from, 0);
    converter_->OnCommand(CONVERTER_TO, 0, {u"Kelvin", u"K"});
    Keys("5");
    EXPECT_EQ(Both(), "5 | Not same Unit.");
}

TEST_F(ConverterTest, CurrenciesBeginWithOneOfTheBase) {
    converter_->SetMode(ConverterMode::currency);
    EXPECT_EQ(Label(status), "30 Jun 2025");
    EXPECT_EQ(Both(), "1 | 0.8");
    const PressOutcome list = converter_->Press(HotSpot::to);
    EXPECT_EQ(list.list.items[1], (ListItem{u"EUR - Euro", u"EUR"}));
    EXPECT_EQ(list.list.selected, 1);
    EXPECT_EQ(converter_->Press(HotSpot::to).kind, PressOutcome::Kind::closeList);
    Choose(HotSpot::to, 2);
    EXPECT_EQ(Both(), "1 | 125");
    Keys("4");
    EXPECT_EQ(Both(), "4 | 500");
    std::filesystem::remove(rig_.folder / "currency.dat");
    converter_->SetMode(ConverterMode::currency);
    EXPECT_EQ(Label(status), "");
    EXPECT_EQ(converter_->Press(HotSpot::to).kind, PressOutcome::Kind::nothing);
    Keys("5");
    EXPECT_EQ(Both(), "5 | Unknown Unit.");
}

TEST_F(ConverterTest, EditedRatesAreKept) {
    converter_->SetMode(ConverterMode::currency);
    CurrencyTable rates(converter_->Table());
    EXPECT_EQ(rates.Fill()[2].rate, u"125.000000");
    const std::u16string edited[] = {u"3", u"0", u"0.5x"};
    ASSERT_TRUE(rates.Store(edited, converter_->CurrencyFile()));
    EXPECT_EQ(rig_.folder.Read("currency.dat"),
              "#Date: 30 Jun 2025\n\n#Begin:Currency:0\n\tUSD\tUSD\t!\n\tEuro\tEUR\t1.25000000000\t0\tUSD\n"
              "\tYen\tJPY\t2.00000000000\t0\tUSD\n#End");
    // An update has put other rows in the place of those on show.
    rig_.folder.Write("currency.dat", "#Date: x\nUSD USD !\nPound GBP 2 0 USD\nYen JPY 0.01 0 USD\n");
    converter_->SetMode(ConverterMode::currency);
    const std::u16string late[] = {u"1", u"9", u"50"};
    ASSERT_TRUE(rates.Store(late, converter_->CurrencyFile()));
    EXPECT_EQ(converter_->Table().Records()[1].factor, 2);
    EXPECT_EQ(converter_->Table().Records()[2].factor, 0.02);
    // The rows of units never end up in the file of rates.
    converter_->SetMode(ConverterMode::units);
    CurrencyTable units(converter_->Table());
    units.Fill();
    EXPECT_FALSE(units.Store(edited, converter_->CurrencyFile()));
}

TEST_F(ConverterTest, ConstantsAreBrowsedAndSent) {
    converter_->SetMode(ConverterMode::constants);
    EXPECT_EQ(Label(constGroup) + "/" + Label(constItem) + "/" + Label(constValue),
              "Flat/light/299792458 m/s");
    EXPECT_EQ(converter_->Press(HotSpot::to).kind, PressOutcome::Kind::nothing);
    EXPECT_EQ(rig_.editor, u"299792458");
    Choose(HotSpot::from, 1);
    converter_->Press(HotSpot::to);
    EXPECT_EQ(rig_.editor, u"2997924586.67exp(-11)");
    EXPECT_EQ(converter_->Press(HotSpot::subGroup).kind, PressOutcome::Kind::nothing);
    Choose(HotSpot::group, 1);
    EXPECT_EQ(converter_->Mode(), ConverterMode::nestedConstants);
    EXPECT_EQ(Label(constGroup) + Label(constItem) + Label(constValue), "Nested");
    EXPECT_EQ(converter_->Press(HotSpot::from).kind, PressOutcome::Kind::nothing);
    Choose(HotSpot::subGroup, 0);
    Choose(HotSpot::from, 0);
    EXPECT_EQ(Label(constSubGroup) + "/" + Label(constSubItem) + "/" + Label(constValue),
              "One/electron/-1.5e+3");
    EXPECT_FALSE(converter_->OnKey('5'));
    ASSERT_TRUE(converter_->Save());
    Converter again = rig_.Make();
    EXPECT_EQ(again.LastConstMode(), ConverterMode::nestedConstants);
    EXPECT_EQ(again.State(), converter_->State());
}

TEST(ConstantText, IsCutAndTakesTheScaleOperator) {
    const struct {
        std::u16string_view shown, group, locale;
        std::u16string text;
    } rows[] = {
        {u" 1.5e+3 m ", u"x", u"English (US)", u"1.5exp(3)"},
        {u"1.5E-3", u"x", u"English (US)", u"1.5E-3"},
        {u"2.5 e", u"x", u"English (US)", u"2.5"},
        {u"0.5*exp(r)", u"area formula", u"English (US)", u"0.5*exp(r)"},
        {u"6¸67e-11", u"x", u"European", u"6¸67exp(-11)"},
        {u"6¸67e-11", u"x", u"English (UK)", u"6.67exp(-11)"},
        {u"6.67", u"x", u"European", u"6¸67"},
        {u"   ", u"x", u"European", u""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToUtf8(ConstantForEditor(row.shown, row.group, row.locale)), ToUtf8(row.text));
    }
}

TEST(ResultField, SmallAndLargeResultsHaveAnExponent) {
    const struct {
        double value;
        std::string text;
    } rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {1e-8, "0.00000001"},
        {1e-9, "1.00000000e-09"},
        {1e12, "1¸000¸000¸000¸000"},
        {1.1e12, "1.10000000e+12"},
        {-1234.5, "-1¸234.5"},
        {INFINITY, "Invalid parameter(s)"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToUtf8(ResultFieldText(row.value, u"English (US)")), row.text);
    }
    EXPECT_EQ(NumberShown(u"1.5E5000", u"English (US)"), INFINITY);
    EXPECT_EQ(NumberShown(u"1¸5E-5000", u"European"), 0);
    EXPECT_EQ(NumberShown(u"Not same Unit.", u"European"), std::nullopt);
}

TEST_F(ConverterTest, TheStateFileHasItsFieldsInOrderAndDamagedOnesAreKept) {
    Keys("25");
    Choose(HotSpot::to, 2);
    ASSERT_TRUE(converter_->Save());
    const auto bytes = ReadWholeFile(rig_.folder / "Converter.dat");
    ArchiveReader archive(*bytes);
    for (const std::u16string_view text :
         {u"Length", u"25", u"m", u"82.02099738", u"ft", u"Metre", u"Foot"}) {
        EXPECT_EQ(archive.ReadString(), text);
    }
    EXPECT_EQ(archive.ReadU8(), 0);
    EXPECT_EQ(archive.ReadU8(), 2);
    for (std::size_t size = 0; size < bytes->size(); size += 7) {
        rig_.folder.Write("Converter.dat",
                          std::vector(bytes->begin(), bytes->begin() + static_cast<long>(size)));
        ConverterState state;
        state.constGroupIndex = 3;
        ReadConverterState(rig_.folder / "Converter.dat", state);
        EXPECT_EQ(state.fields, ConverterState{}.fields);
        EXPECT_EQ(state.constGroupIndex, 0);
        EXPECT_TRUE(std::filesystem::exists(rig_.folder / "Converter.dat.bad"));
    }
}

TEST(HotSpots, APenThatLeavesItsSpotActsAtOnce) {
    HotSpotPen pen;
    pen.Down({230, 5}, 240);
    EXPECT_EQ(pen.Pressed(), HotSpot::group);
    EXPECT_EQ(pen.Move({220, 10}, 240), std::nullopt);
    EXPECT_EQ(pen.Move({238, 10}, 240), HotSpot::group);
    EXPECT_EQ(pen.Up(), std::nullopt);
    pen.Down({100, 40}, 240);
    EXPECT_EQ(pen.Up(), HotSpot::subGroup);
    pen.Down({100, 100}, 240);
    EXPECT_EQ(pen.Up(), std::nullopt);
}

}  // namespace
}  // namespace quorix
