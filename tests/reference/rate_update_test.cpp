#include "reference/rate_update.h"

#include <gtest/gtest.h>

#include "reference/currency_file.h"
#include "reference/update_settings.h"
#include "support/reference_rig.h"

namespace quorix {
namespace {

constexpr std::string_view kOld = "#Date: 30 Jun 2025\n\n#Begin:Currency:0\n\tUSD\tUSD\t!\n#End";
constexpr const char* kNew =
    "#Date: 01 Jul 2025\n\n#Begin:Currency:0\n\tUSD\tUSD\t!\n\tEuro\tEUR\t1.5\t0\tUSD\n#End";

class RateUpdate : public ::testing::Test {
  protected:
    RateUpdate() {
        rig_.folder.Write("currency.dat", kOld);
        rig_.folder.Write("update.dat",
                          "# server\nserver = rates.test\nport=8080\nuser=abc\npassword=xyz\nport=0\n");
    }
    std::string Update() { return ToUtf8(UpdateRates(file_, rig_.http, rig_.notices, table_)); }
    std::string File() { return rig_.folder.Read("currency.dat"); }

    testing::ConverterRig rig_;
    std::filesystem::path file_ = rig_.folder / "currency.dat";
    UnitTable table_;
};

TEST_F(RateUpdate, ANewerFileTakesThePlaceOfTheOldOne) {
    rig_.http.answers = {std::nullopt, "nonsense", kNew, std::nullopt, kNew};
    EXPECT_EQ(Update(), "01 Jul 2025");
    EXPECT_EQ(File(), kNew);
    EXPECT_EQ(table_.Records().size(), 2U);
    EXPECT_FALSE(std::filesystem::exists(rig_.folder / "currency.dat.tmp"));
    ASSERT_EQ(rig_.http.requests.size(), 5U);
    const HttpRequest& request = rig_.http.requests[0];
    EXPECT_EQ(request.server + " " + std::to_string(request.port) + " " + request.objectPath + " " +
                  request.userName + " " + request.password,
              "rates.test 8080 currency\\save.txt abc xyz");
    EXPECT_EQ(request.wantedBytes, 18U);
    EXPECT_EQ(rig_.http.requests[4].wantedBytes, 0U);
}

TEST_F(RateUpdate, TheSameDateFetchesNothing) {
    rig_.http.answers = {"#DATE: 30 JUN 2025\n"};
    EXPECT_EQ(Update(), "30 JUN 2025");
    EXPECT_EQ(rig_.http.requests.size(), 1U);
    EXPECT_EQ(File(), kOld);
}

TEST_F(RateUpdate, WithoutAnAnswerANoticeIsShown) {
    rig_.http.answers = {"HTTP error page"};
    EXPECT_EQ(Update(), "30 Jun 2025");
    EXPECT_EQ(rig_.http.requests.size(), 3U);
    ASSERT_EQ(rig_.notices.shown.size(), 1U);
    EXPECT_EQ(rig_.notices.shown[0].title, u"Cannot Connect");
    EXPECT_EQ(rig_.notices.shown[0].seconds, 60);
    EXPECT_EQ(rig_.notices.shown[0].actions[0].command, kCommandNetworkSettings);
}

TEST_F(RateUpdate, AFileWithoutRowsOrNoneAtAllLeavesTheOldOne) {
    rig_.http.answers = {kNew, "#Date: 01 Jul 2025\n\nbroken row\n"};
    EXPECT_EQ(Update(), "01 Jul 2025");
    EXPECT_EQ(File(), kOld);
    rig_.http.requests.clear();
    rig_.http.answers = {kNew, std::nullopt};
    EXPECT_EQ(Update(), "01 Jul 2025");
    EXPECT_EQ(rig_.http.requests.size(), 4U);
    EXPECT_EQ(File(), kOld);
}

TEST_F(RateUpdate, ThePressOnlyAnnouncesAndTheTimerRuns) {
    rig_.folder.Write("units.dat", "#Begin:Length:0\nMetre m !\nFoot ft 0.3048 0 m\n#End\n");
    rig_.http.answers = {kNew};
    Converter converter = rig_.Make();
    converter.SetMode(ConverterMode::currency);
    EXPECT_EQ(converter.Press(HotSpot::group).kind, PressOutcome::Kind::nothing);
    EXPECT_EQ(converter.Field(ConverterField::status).label, u"Updating ...");
    EXPECT_EQ(rig_.timers.running.at(1000), 500);
    // Another category in the meantime keeps its units.
    converter.SetMode(ConverterMode::units);
    converter.OnTimer(1000);
    EXPECT_TRUE(rig_.timers.running.empty());
    EXPECT_EQ(converter.Field(ConverterField::status).label, u"01 Jul 2025");
    EXPECT_EQ(converter.Table().FindIndex(u"ft"), 2U);
    EXPECT_EQ(File(), kNew);
}

TEST(RateDates, AreCutByTheirRules) {
    const testing::TemporaryFolder folder;
    for (const auto& [line, date] :
         std::vector<std::pair<std::string, std::u16string>>{{"#Date: 30 Jun 2025 \r\n", u"30 Jun 2025"},
                                                             {"#Date: Dec 15 2006\n", u"c 15 2006"},
                                                             {"", u""},
                                                             {"#Date:\n", u""}}) {
        folder.Write("currency.dat", line);
        EXPECT_EQ(LocalRateDate(folder / "currency.dat"), date) << line;
    }
    EXPECT_EQ(RemoteRateDate("#date: 2025-07-01\r\n"), u"2025-07-01");
    EXPECT_EQ(RemoteRateDate("#Date 123456789012"), u"");
    EXPECT_EQ(RemoteRateDate("#Dates: 0123456789012345"), u"01234567890");
    EXPECT_EQ(RemoteRateDate("#Dat"), u"");
}

TEST(CurrencyFile, IsReadBackWhateverItsNamesAndFactorsAre) {
    const testing::TemporaryFolder folder;
    const std::filesystem::path file = folder / "currency.dat";
    const std::vector<UnitRecord> records = {
        {u"Any name", u"USD", 7, 0, {}, {}},
        {u"Peso d\u00E9cimal", u"P D", 1.0 / 3, 0, {u"USD"}, {}},
        {u"Tiny", u"TNY", 1.5e-15, 0, {u"USD"}, {}},
        {std::u16string(400, u'x'), u"LNG", 1e15, 0, {u"USD"}, {}},
    };
    ASSERT_TRUE(SaveCurrency(file, records));
    EXPECT_EQ(ReadFirstLine(file), "\n");
    UnitTable table;
    ASSERT_TRUE(table.Load(file));
    ASSERT_EQ(table.Records().size(), 4U);
    EXPECT_EQ(table.Records()[0].name, u"USD");
    EXPECT_EQ(table.Records()[1].name, records[1].name);
    EXPECT_EQ(table.Records()[1].factor, 0.33333333333);
    EXPECT_NEAR(table.Records()[2].factor, 1.5e-15, 1e-21);
    EXPECT_EQ(table.Records()[3].factor, 1e15);
    EXPECT_FALSE(SaveCurrency(folder / "no" / "folder.dat", records));
}

}  // namespace
}  // namespace quorix
