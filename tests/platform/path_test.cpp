#include "platform/path.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quorix {
namespace {

TEST(ResolvePath, FindsFilesWhateverTheirCaseAndSeparators) {
    const testing::TemporaryFolder folder;
    folder.Write("Interfaces/Default/LargeButtons.png", "x");
    const auto file = folder / "Interfaces/Default/LargeButtons.png";
    for (const char16_t* name :
         {u"Interfaces\\Default\\LargeButtons.png", u"INTERFACES\\default\\largebuttons.PNG",
          u"interfaces/Default\\\\.\\LARGEBUTTONS.png", u"\\Interfaces\\Default\\LargeButtons.png"}) {
        EXPECT_EQ(ResolvePath(folder.Path(), name), file);
    }
}

TEST(ResolvePath, PrefersTheExactNameAndElseTheFirstByName) {
    const testing::TemporaryFolder folder;
    folder.Write("readme", "1");
    folder.Write("README", "2");
    EXPECT_EQ(ResolvePath(folder.Path(), u"readme").filename(), "readme");
    EXPECT_EQ(ResolvePath(folder.Path(), u"ReadMe").filename(), "README");
    folder.Write("\xC3\x84rger.dat", "3");  // U+00C4 and U+00E4 differ in case alone.
    EXPECT_EQ(ResolvePath(folder.Path(), u"\u00E4RGER.DAT").filename(), "\xC3\x84rger.dat");
}

TEST(ResolvePath, KeepsAFileStillToBeMadeAndRefusesToLeaveItsFolder) {
    const testing::TemporaryFolder folder;
    folder.Write("Sounds/a.wav", "x");
    EXPECT_EQ(ResolvePath(folder.Path(), u"sounds\\New.wav"), folder.Path() / "Sounds" / "New.wav");
    EXPECT_EQ(ResolvePath(folder.Path(), u""), folder.Path());
    EXPECT_TRUE(ResolvePath(folder.Path(), u"Sounds\\..\\..\\secret").empty());
    EXPECT_TRUE(ResolvePath(folder.Path(), std::u16string_view(u"a\0b", 3)).empty());
}

}  // namespace
}  // namespace quorix
