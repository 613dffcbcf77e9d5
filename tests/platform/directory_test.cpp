#include "platform/directory.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quorix {
namespace {

TEST(MatchesPattern, TakesStarsAndQuestionMarksAndIsBlindToCase) {
    EXPECT_TRUE(MatchesPattern(u"Sound 01.WAV", u"*.wav"));
    EXPECT_TRUE(MatchesPattern(u"a.wav.wav", u"*.wav"));  // The star must give back what it took first.
    EXPECT_TRUE(MatchesPattern(u"mississippi", u"m*iss*pi"));
    EXPECT_TRUE(MatchesPattern(u"Capture 12.bmp", u"capture ?2*.bmp"));
    EXPECT_TRUE(MatchesPattern(u"", u"**"));
    EXPECT_FALSE(MatchesPattern(u"mississippi", u"m*iss*po"));
    EXPECT_FALSE(MatchesPattern(u"wav", u"*.wav"));
    EXPECT_FALSE(MatchesPattern(u"a.wave", u"*.wav"));
    EXPECT_FALSE(MatchesPattern(u"", u"?"));
}

TEST(ListFiles, GivesTheFilesOfAFolderByNameWhateverItsSeparatorsAndCase) {
    const testing::TemporaryFolder folder;
    for (const char* name :
         {"Sounds/b.wav", "Sounds/A.WAV", "Sounds/c.txt", "Sounds/d.wav/inner.wav", "top.mcr"}) {
        folder.Write(name, "x");
    }
    const std::vector<std::filesystem::path> sounds = {folder / "Sounds/A.WAV", folder / "Sounds/b.wav"};
    EXPECT_EQ(ListFiles(folder.Path(), u"sounds\\*.wav"), sounds);
    EXPECT_EQ(ListFiles(folder.Path(), u"SOUNDS/*.Wav"), sounds);
    EXPECT_EQ(ListFiles(folder.Path(), u"*.mcr"), std::vector{folder / "top.mcr"});
    EXPECT_TRUE(ListFiles(folder.Path(), u"absent\\*.wav").empty());
    EXPECT_TRUE(ListFiles(folder / "Sounds", u"..\\*.mcr").empty());
}

}  // namespace
}  // namespace quorix
