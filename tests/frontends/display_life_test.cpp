#include <gtest/gtest.h>

#include <random>

#include "frontends/categories.h"
#include "frontends/display_file.h"
#include "platform/files.h"
#include "support/calculator_rig.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using testing::CalculatorRig;
using testing::TemporaryFolder;

TEST(DisplayLife, LinesMemoriesBaseAndFormatSurvive) {
    const TemporaryFolder folder;
    const DisplayFile file(folder / "led.dat");
    {
        CalculatorRig rig;
        rig.Type("1/3=M c #63 5)");
        rig.Enter(CATEGORY_FINANCE);
        rig.Type("42=#128M");
        rig.Enter(CATEGORY_BASE_CONVERSION);
        rig.display->Key(KEY_HEX);
        rig.Type("FF");
        rig.Enter(CATEGORY_ARITHMETIC);
        rig.display->Key(KEY_SCI);
        ASSERT_TRUE(file.Save(*rig.display));
    }
    CalculatorRig rig;
    file.Restore(*rig.display);
    EXPECT_EQ(rig.Row(), "asin(5)");
    EXPECT_EQ(rig.display->GetTokenLengths(), u"511");
    EXPECT_EQ(ToUtf8(rig.display->LineAt(0, 1).Text()), "1÷3");
    EXPECT_EQ(ToUtf8(rig.display->MemoryText(0, 0)), "0.33333333333333333333333333333333");
    EXPECT_EQ(ToUtf8(rig.display->MemoryText(2, CATEGORY_FINANCE)), "42");
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_SCI);
    EXPECT_EQ(rig.display->GetBase(), RADIX_DEC);
    rig.Enter(CATEGORY_BASE_CONVERSION);
    EXPECT_EQ(rig.display->GetBase(), RADIX_HEX);
    EXPECT_EQ(rig.Row(), "FF");
    // The restored format is the user's.
    rig.Type("c");
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_SCI);
}

TEST(DisplayLife, TheFileHasItsForm) {
    const TemporaryFolder folder;
    CalculatorRig rig;
    rig.Type("7");
    ASSERT_TRUE(DisplayFile(folder / "led.dat").Save(*rig.display));
    const auto bytes = ReadWholeFile(folder / "led.dat");
    ASSERT_TRUE(bytes);
    // 12 pages x 5 lines x 2 strings and 12 x 5 memories of 4 bytes when empty, two numbers, "7" and "1" of 2
    // bytes.
    EXPECT_EQ(bytes->size(), 120U * 4 + 60 * 4 + 8 + 4);
    const std::vector<std::uint8_t> start(bytes->begin(), bytes->begin() + 12);
    EXPECT_EQ(start, (std::vector<std::uint8_t>{0xFF, 0xFE, 0xFF, 1, '7', 0, 0xFF, 0xFE, 0xFF, 1, '1', 0}));
    const std::vector<std::uint8_t> end(bytes->end() - 8, bytes->end());
    EXPECT_EQ(end, (std::vector<std::uint8_t>{147, 0, 0, 0, 135, 0, 0, 0}));
}

TEST(DisplayLife, DamagedFilesAreKeptAsideAndGiveDefaults) {
    const TemporaryFolder folder;
    const DisplayFile file(folder / "led.dat");
    CalculatorRig source;
    source.Type("1+1=M");
    ASSERT_TRUE(file.Save(*source.display));
    const auto whole = *ReadWholeFile(folder / "led.dat");
    const auto expectDefaults = [&](std::vector<std::uint8_t> bytes, std::size_t which) {
        folder.Write("led.dat", bytes);
        CalculatorRig rig;
        rig.Type("5=M");
        rig.display->Key(KEY_FIX);
        file.Restore(*rig.display);
        EXPECT_EQ(rig.Row(), "") << which;
        EXPECT_EQ(rig.display->MemoryText(0, 0), u"") << which;
        EXPECT_EQ(rig.display->GetFormat(), FORMAT_NORM) << which;
        EXPECT_TRUE(std::filesystem::exists(folder / "led.dat.bad")) << which;
        std::filesystem::remove(folder / "led.dat.bad");
    };
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        expectDefaults({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)}, length);
    }
    // A length that points far beyond the end.
    expectDefaults({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, 1);
    std::mt19937 random(3);
    for (std::size_t round = 0; round < 200; ++round) {
        std::vector<std::uint8_t> noise(random() % 3000);
        for (std::uint8_t& byte : noise) {
            byte = static_cast<std::uint8_t>(random());
        }
        if (!noise.empty()) {
            noise[0] = 1;
        }
        expectDefaults(noise, round);
    }
}

TEST(DisplayLife, UnknownSettingsInAWholeFileAreRepaired) {
    const TemporaryFolder folder;
    const DisplayFile file(folder / "led.dat");
    CalculatorRig source;
    ASSERT_TRUE(file.Save(*source.display));
    auto bytes = *ReadWholeFile(folder / "led.dat");
    std::fill(bytes.end() - 8, bytes.end(), std::uint8_t{0x77});
    folder.Write("led.dat", bytes);
    CalculatorRig rig;
    file.Restore(*rig.display);
    EXPECT_EQ(rig.display->GetFormat(), FORMAT_NORM);
    rig.Enter(CATEGORY_BASE_CONVERSION);
    EXPECT_EQ(rig.display->GetBase(), RADIX_DEC);
}

}  // namespace
}  // namespace quorix
