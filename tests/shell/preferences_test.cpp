#include "shell/preferences.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/files.h"
#include "support/fake_clock.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using testing::FakeClock;
using testing::TemporaryFolder;

constexpr CalendarDay kToday{2026, 11, 22};

Preferences Load(const TemporaryFolder& folder) {
    FakeClock clock(kToday);
    Preferences preferences;
    LoadPreferences(folder / "preferences.dat", clock, preferences);
    return preferences;
}

TEST(Preferences, EveryFieldComesBackAndTheFileHasItsForm) {
    const TemporaryFolder folder;
    Preferences p;
    p.transparenceEnabled = 0;
    p.transparenceLevel = 33;
    p.tapHoldEnabled = 0;
    p.tapHoldInterval = 450;
    p.calculator.fixDigits = 9;
    p.hardKeyScrolling = 0;
    p.soundEnabled = 0;
    p.calculator.toolTipsEnabled = 0;
    p.categoryEnabled[3] = 0;
    std::reverse(p.categoryOrder.begin(), p.categoryOrder.end());
    p.soundFile = u"Sound 03.wav";
    p.skinFile = u"Black Skin.inf";
    p.lastCategory = 2;
    p.storedDate = {2020, 2, 29};
    p.calculator.inputMode = kModeRpn;
    p.calculator.numberLocale = u"European";
    p.calculator.fractionLimit = 2;
    ASSERT_TRUE(SavePreferences(folder / "preferences.dat", p));
    // 4 numbers, a byte, 3 numbers, 16 numbers, 16 bytes, two strings of 12 and 14 characters, ...
    const auto bytes = *ReadWholeFile(folder / "preferences.dat");
    const Preferences q = Load(folder);
    ASSERT_TRUE(SavePreferences(folder / "again.dat", q));
    EXPECT_EQ(ReadWholeFile(folder / "again.dat"), bytes);
    EXPECT_EQ(q.storedDate, p.storedDate);
    EXPECT_EQ(q.calculator.inputMode, kModeRpn);
    EXPECT_EQ(q.calculator.fractionLimit, 2U);
    EXPECT_EQ(bytes.size(), 16U + 1 + 12 + 64 + 16 + (4 + 24) + (4 + 28) + 1 + 12 + (4 + 18) + (4 + 16) + 4);
    EXPECT_EQ(bytes[16], 9);
    EXPECT_EQ(bytes[16 + 1 + 12 + 64], 15);
}

TEST(Preferences, DamagedFilesAreKeptAsideAndGiveDefaults) {
    const TemporaryFolder folder;
    Preferences p;
    p.tapHoldInterval = 350;
    p.transparenceLevel = 40;
    ASSERT_TRUE(SavePreferences(folder / "preferences.dat", p));
    const auto whole = *ReadWholeFile(folder / "preferences.dat");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        folder.Write(
            "preferences.dat",
            std::vector<std::uint8_t>(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        const Preferences q = Load(folder);
        EXPECT_EQ(q.transparenceLevel, 8U) << length;
        EXPECT_EQ(q.tapHoldInterval, length >= 16 ? 350U : 200U)
            << length;  // the one value without a default
        EXPECT_EQ(q.storedDate, kToday) << length;
        EXPECT_EQ(ReadWholeFile(folder / "preferences.dat.bad")->size(), length);
    }
}

TEST(Preferences, ValuesOutOfRangeAreRepaired) {
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        const TemporaryFolder folder;
        Preferences p;
        p.transparenceLevel = static_cast<std::uint32_t>(random());
        p.tapHoldInterval = static_cast<std::uint32_t>(random());
        p.calculator.fixDigits = static_cast<std::uint8_t>(random());
        for (auto& category : p.categoryOrder) {
            category = static_cast<std::uint8_t>(random() % 20);
        }
        p.lastCategory = static_cast<std::uint8_t>(random());
        p.skinFile = u"..\\..\\elsewhere.inf";
        p.calculator.inputMode = u"Basic";
        p.calculator.numberLocale = u"";
        ASSERT_TRUE(SavePreferences(folder / "preferences.dat", p));
        const Preferences q = Load(folder);
        EXPECT_LE(q.transparenceLevel, 50U);
        EXPECT_GE(q.tapHoldInterval, 200U);
        EXPECT_LE(q.tapHoldInterval, 600U);
        EXPECT_LE(q.calculator.fixDigits, 32);
        EXPECT_TRUE(std::is_permutation(q.categoryOrder.begin(), q.categoryOrder.end(),
                                        DefaultCategoryOrder().begin()));
        EXPECT_LT(q.lastCategory, kCategoryCount);
        EXPECT_EQ(q.skinFile, u"default.inf");
        EXPECT_EQ(q.calculator.inputMode, kModeString);
        EXPECT_EQ(q.calculator.numberLocale, u"English (US)");
    }
}

}  // namespace
}  // namespace quorix
