// The committed key sounds: that they are what the generator composes and that they cannot click.
#include "key_sounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "platform/files.h"

namespace quorix {
namespace {

TEST(KeySounds, TheCommittedFilesAreWhatTheGeneratorComposesAndNeitherClickNorClip) {
    const std::filesystem::path folder = std::filesystem::path(QUORIX_SOURCE_DIR) / "assets/Sounds";
    for (const art::KeySound& sound : art::KeySounds()) {
        SCOPED_TRACE(sound.file);
        const std::vector<std::int16_t> samples = sound.compose();
        const auto committed = ReadWholeFile(folder / sound.file);
        ASSERT_TRUE(committed.has_value());
        EXPECT_TRUE(std::ranges::equal(art::WavFile(samples), *committed));

        const double ms = 1000.0 * static_cast<double>(samples.size()) / art::kSampleRate;
        EXPECT_GE(ms, 20);
        EXPECT_LE(ms, 80);
        const auto loudest = [](auto from, auto to) {
            int most = 0;
            std::for_each(from, to, [&](std::int16_t sample) { most = std::max(most, std::abs(sample)); });
            return most;
        };
        constexpr int kEdge = 8;  // Samples that a click would need.
        constexpr int kQuiet = 1200;
        EXPECT_LT(loudest(samples.begin(), samples.begin() + kEdge), kQuiet);
        EXPECT_LT(loudest(samples.end() - kEdge, samples.end()), kQuiet / 10);
        EXPECT_LT(loudest(samples.begin(), samples.end()), 24000);
        EXPECT_GT(loudest(samples.begin(), samples.end()), 8000);
    }
    EXPECT_EQ(art::KeySounds().front().file, std::string_view("Sound 01.wav"));
}

}  // namespace
}  // namespace quorix
