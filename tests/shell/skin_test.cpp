#include "shell/skin.h"

#include <gtest/gtest.h>

#include <span>
#include <string_view>

#include "shell/colours.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

std::span<const std::uint8_t> BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

using testing::TemporaryFolder;

constexpr DeviceScreen kQvga{240, 320};
constexpr DeviceScreen kVga{480, 640};
constexpr DeviceScreen kSquare{240, 240};

TEST(ScreenValue, MarksTheNameForAVgaScreen) {
    const struct {
        const char* value;
        const char16_t* vga;
    } rows[] = {
        {"Default\\x.png", u"Default\\x_VGA.png"},
        {"a.b.png", u"a.b_VGA.png"},
        {"plain", u"plain_VGA"},
        {".png", u".png_VGA"},  // a "." at position 0 does not count
        {"x.", u"x_VGA."},
        {"caf\xE9.png", u"caf\u00E9_VGA.png"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ScreenValue(row.value, true), row.vga);
    }
    EXPECT_EQ(ScreenValue("a.b.png", false), u"a.b.png");
}

TEST(Skin, FindSkinValueTakesTheFirstMatchAndReadsTheFileAfresh) {
    const TemporaryFolder folder;
    folder.Write("Interfaces/Default/MIMEScroll.PNG", "x");
    folder.Write("Interfaces/default.inf",
                 "no value here\r\n = leading\r\nlogo= Default\\one.png \r\nLOGO = Default\\two.png\r\n"
                 "EquationScroll = Default\\MIMEScroll.PNG\r\nBad==x");
    const Skin skin(folder.Path(), kQvga);
    const auto interfaces = folder.Path() / "Interfaces";
    EXPECT_EQ(skin.FindSkinValue("Logo"), interfaces / "Default" / "one.png");
    EXPECT_EQ(skin.FindSkinValue("equationscroll"), interfaces / "Default" / "MIMEScroll.PNG");
    EXPECT_EQ(skin.FindSkinValue("Bad"), interfaces / "=x");
    EXPECT_TRUE(skin.FindSkinValue("no value here").empty());
    EXPECT_TRUE(skin.FindSkinValue("Missing").empty());
    EXPECT_TRUE(skin.FindSkinValue("Logo", u"Absent.inf").empty());

    folder.Write("Interfaces/Black Skin.inf", "Logo = Black\\three.png");
    EXPECT_EQ(skin.FindSkinValue("Logo", u"black skin.INF"), interfaces / "Black" / "three.png");
    folder.Write("Interfaces/default.inf", "Logo = four.png");
    EXPECT_EQ(skin.FindSkinValue("Logo"), interfaces / "four.png");
}

TEST(Skin, LoadSkinPathsTakesTheLastMatchAndTheScreensOwnPictures) {
    const TemporaryFolder folder;
    folder.Write(
        "Interfaces/default.inf",
        "LargeButtons = a.png\nLargeButtons = b.png\nLargeButtonsSquare = s.png\nLargeFonts = f.png\n"
        "smallfontsgeonometry = g.v.png\n");
    const auto interfaces = folder.Path() / "Interfaces";
    Skin skin(folder.Path(), kVga);
    ASSERT_TRUE(skin.LoadSkinPaths());
    EXPECT_EQ(skin.Path(SkinPath::largeButtons), interfaces / "b_VGA.png");
    EXPECT_EQ(skin.Path(SmallFontsOf(1)), interfaces / "g.v_VGA.png");
    EXPECT_TRUE(skin.Path(SkinPath::smallButtons).empty());

    skin.SetScreen(kSquare);
    ASSERT_TRUE(skin.LoadSkinPaths());
    EXPECT_EQ(skin.Path(SkinPath::largeButtons), interfaces / "s.png");
    EXPECT_TRUE(skin.Path(SkinPath::largeFonts).empty());

    skin.Select(u"Absent.inf");
    EXPECT_FALSE(skin.LoadSkinPaths());
    EXPECT_EQ(skin.Path(SkinPath::largeButtons), interfaces / "s.png");
}

TEST(Skin, AnOverlongLineEndsAtItsLimit) {
    const std::string name(300, 'n');
    const std::string text = "Logo = " + name + "\nLogo = short\n";
    const auto value = FindInSkinText(BytesOf(text), "Logo", false);
    ASSERT_TRUE(value);
    EXPECT_EQ(value->size(), 256U - 7U);
}

TEST(SkinColours, ReadsDecimalTriplesModulo256AndSkipsWhatIsNone) {
    SkinColours colours;
    EXPECT_EQ(colours[SkinColour::border0], 0x866651U);
    EXPECT_EQ(colours[SkinColour::solverBorder0], 11963251U);
    colours.Read(BytesOf(
        "bodercolor0 = 1, 2 ,3\r\nBoderColor1=300,-1,70000000000000000000016\r\nBoderColor2 = 10,20\r\n"
        "BoderColor3=10,20,\r\nListBoxBoderColor = x,y,z\r\nBoderColor4 = 1,2,3,4"));
    EXPECT_EQ(colours[SkinColour::border0], 0x030201U);
    EXPECT_EQ(colours[SkinColour::border1], MakeColor(44, 255, 16));
    EXPECT_EQ(colours[SkinColour::border2], 0xB08B76U);
    EXPECT_EQ(colours[SkinColour::border3], 0xA87E65U);
    EXPECT_EQ(colours[SkinColour::listBoxBorder], 0U);
    EXPECT_EQ(colours[SkinColour::border4], 0x030201U);
    EXPECT_FALSE(colours.LoadColours("/nowhere/at/all"));
    EXPECT_EQ(colours[SkinColour::border0], 0x030201U);
}

}  // namespace
}  // namespace quorix
