#include "platform/sound.h"

#include <gtest/gtest.h>

#include "platform/files.h"

namespace quorix {
namespace {

TEST(IsPlainWave, TakesAWholeFileAndNoneThatIsCutOffOrDamaged) {
    auto file = ReadWholeFile(std::filesystem::path(QUORIX_SOURCE_DIR) / "assets/Sounds/Sound 01.wav");
    ASSERT_TRUE(file.has_value());
    EXPECT_TRUE(IsPlainWave(*file));
    for (std::size_t length = 0; length < file->size(); length += length < 64 ? 1 : 97) {
        EXPECT_FALSE(IsPlainWave(std::span(*file).first(length))) << length;
    }
    // Tags, kind of samples, channels, bits, and a length beyond the end; then one that would wrap round.
    for (const std::size_t at : {0, 8, 12, 20, 22, 34, 36, 42, 43}) {
        auto damaged = *file;
        damaged[at] ^= 0xFF;
        EXPECT_FALSE(IsPlainWave(damaged)) << at;
    }
}

}  // namespace
}  // namespace quorix
