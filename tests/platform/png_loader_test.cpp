#include "platform/png_loader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <string_view>

#include "platform/image.h"
#include "platform/png_builder.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

std::span<const std::uint8_t> BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

using ::testing::ElementsAre;
using testing::PngBuilder;

DecodedPicture Decode(const std::string& file) {
    return DecodePng(BytesOf(file));
}

TEST(PngLoader, EveryPixelFormatBecomesRedGreenBlueAlpha) {
    PngBuilder rgb16{
        .bitDepth = 16, .colorType = PNG_COLOR_TYPE_RGB, .rows = {0x12, 0xFF, 0x34, 0x00, 0x56, 0x80}};
    EXPECT_THAT(Decode(rgb16.Build()).pixels, ElementsAre(0x12, 0x34, 0x56, 255));

    PngBuilder rgba{.width = 2, .rows = {1, 2, 3, 4, 5, 6, 7, 0}};
    EXPECT_THAT(Decode(rgba.Build()).pixels, ElementsAre(1, 2, 3, 4, 5, 6, 7, 0));

    PngBuilder palette{.width = 3,
                       .bitDepth = 2,
                       .colorType = PNG_COLOR_TYPE_PALETTE,
                       .rows = {0b00'01'10'00},
                       .palette = {{10, 20, 30}, {40, 50, 60}, {70, 80, 90}},
                       .paletteAlpha = {0, 128}};
    EXPECT_THAT(Decode(palette.Build()).pixels, ElementsAre(10, 20, 30, 0, 40, 50, 60, 128, 70, 80, 90, 255));

    PngBuilder gray1{.width = 2, .bitDepth = 1, .colorType = PNG_COLOR_TYPE_GRAY, .rows = {0b01'000000}};
    EXPECT_THAT(Decode(gray1.Build()).pixels, ElementsAre(0, 0, 0, 255, 255, 255, 255, 255));

    PngBuilder gray4{.width = 2,
                     .bitDepth = 4,
                     .colorType = PNG_COLOR_TYPE_GRAY,
                     .rows = {0x3A},
                     .transparentColor = testing::Gray(3)};
    EXPECT_THAT(Decode(gray4.Build()).pixels, ElementsAre(0x33, 0x33, 0x33, 0, 0xAA, 0xAA, 0xAA, 255));

    PngBuilder grayAlpha{
        .bitDepth = 16, .colorType = PNG_COLOR_TYPE_GRAY_ALPHA, .rows = {0x40, 0x99, 0x7F, 0x99}};
    EXPECT_THAT(Decode(grayAlpha.Build()).pixels, ElementsAre(0x40, 0x40, 0x40, 0x7F));

    PngBuilder keyed{.width = 2,
                     .colorType = PNG_COLOR_TYPE_RGB,
                     .rows = {9, 8, 7, 9, 8, 6},
                     .transparentColor = testing::Rgb(9, 8, 7)};
    EXPECT_THAT(Decode(keyed.Build()).pixels, ElementsAre(9, 8, 7, 0, 9, 8, 6, 255));
}

TEST(PngLoader, ABackgroundChunkIsDrawnUnderThePicture) {
    PngBuilder png{.width = 3,
                   .rows = {200, 100, 0, 0, 200, 100, 0, 255, 200, 100, 0, 128},
                   .background = testing::Rgb(20, 40, 60)};
    const DecodedPicture picture = Decode(png.Build());
    ASSERT_EQ(picture.pixels.size(), 12U);
    EXPECT_THAT(std::vector(picture.pixels.begin(), picture.pixels.begin() + 8),
                ElementsAre(20, 40, 60, 255, 200, 100, 0, 255));
    EXPECT_NEAR(picture.pixels[8], 110, 1);
    EXPECT_NEAR(picture.pixels[9], 70, 1);
    EXPECT_NEAR(picture.pixels[10], 30, 1);
    EXPECT_EQ(picture.pixels[11], 255);
}

TEST(PngLoader, AGammaChunkIsAppliedForTheScreen) {
    PngBuilder png{.colorType = PNG_COLOR_TYPE_RGB, .rows = {0, 64, 255}, .gamma = 1.0};
    const DecodedPicture linear = Decode(png.Build());
    ASSERT_EQ(linear.pixels.size(), 4U);
    EXPECT_EQ(linear.pixels[0], 0);
    EXPECT_NEAR(linear.pixels[1], 136, 1);  // 255 (64 / 255)^(1 / 2.2)
    EXPECT_EQ(linear.pixels[2], 255);

    png.gamma = 1 / 2.2;
    EXPECT_THAT(Decode(png.Build()).pixels, ElementsAre(0, 64, 255, 255));
}

/// A picture with some detail, so that its data span more than one filter and block.
PngBuilder Pattern(int interlace) {
    PngBuilder png{.width = 23, .height = 17, .interlace = interlace};
    for (unsigned i = 0; i < 23 * 17 * 4; ++i) {
        png.rows.push_back(static_cast<std::uint8_t>(i * i * 7 + i / 5));
    }
    return png;
}

TEST(PngLoader, AnInterlacedFileGivesTheSamePicture) {
    const DecodedPicture plain = Decode(Pattern(PNG_INTERLACE_NONE).Build());
    const DecodedPicture interlaced = Decode(Pattern(PNG_INTERLACE_ADAM7).Build());
    EXPECT_EQ(plain.width, 23);
    EXPECT_EQ(plain.height, 17);
    EXPECT_EQ(plain.pixels, interlaced.pixels);
    EXPECT_EQ(plain.pixels, Pattern(PNG_INTERLACE_NONE).rows);
}

TEST(PngLoader, AFileCutOffAnywhereIsEmptyOrWhole) {
    for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
        const std::string whole = Pattern(interlace).Build();
        const std::vector<std::uint8_t> pixels = Decode(whole).pixels;
        constexpr std::size_t kEndChunk = 12;
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const DecodedPicture picture = Decode(whole.substr(0, size));
            if (size + kEndChunk + 8 < whole.size()) {
                EXPECT_TRUE(picture.pixels.empty() && picture.width == 0) << size;
            } else {
                EXPECT_TRUE(picture.pixels.empty() || picture.pixels == pixels) << size;
            }
        }
    }
}

TEST(PngLoader, ADamagedByteNeverGivesAPictureOfAnotherSize) {
    const std::string whole = Pattern(PNG_INTERLACE_NONE).Build();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x5A);
        const DecodedPicture picture = Decode(damaged);
        EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(picture.width * picture.height * 4)) << i;
        EXPECT_TRUE(picture.width == 0 || picture.width == 23) << i;
    }
}

TEST(PngLoader, AbsurdSizesAreRefusedBeforeTheyCostMemory) {
    PngBuilder wide{.width = 4097, .bitDepth = 1, .colorType = PNG_COLOR_TYPE_GRAY, .rows = {}};
    wide.rows.resize(513);
    EXPECT_TRUE(Decode(wide.Build()).pixels.empty());

    // A header alone that promises 64 MB.
    PngBuilder small{.width = 4096, .height = 1, .rows = {}};
    small.rows.resize(4096 * 4);
    const std::string file = small.Build();
    EXPECT_EQ(Decode(file).width, 4096);
    std::string tall = file;
    tall[22] = '\x10';  // The height becomes 4096 + 1 = 0x1001.
    EXPECT_TRUE(Decode(tall).pixels.empty());
    EXPECT_TRUE(Decode("GIF89a, no PNG at all").pixels.empty());

    // A plain area of one bit a pixel unpacks to far more than deflate alone could give.
    PngBuilder plain{.width = 2048, .height = 1024, .bitDepth = 1, .colorType = PNG_COLOR_TYPE_PALETTE};
    plain.rows.resize(2048 / 8 * 1024);
    plain.palette.resize(2);
    EXPECT_EQ(Decode(plain.Build()).height, 1024);
}

TEST(Image, TheFirstPixelIsTheBackgroundColourAndWhiteStandsForNone) {
    const testing::TemporaryFolder folder;
    PngBuilder png{.width = 2, .rows = {0x56, 0x6A, 0x8C, 0, 1, 2, 3, 255}};
    Image image;
    EXPECT_EQ(image.BackgroundColor(), kWhite);
    EXPECT_FALSE(image.Load(""));
    folder.Write("a.png", std::string_view(png.Build()));
    EXPECT_TRUE(image.Load(folder / "a.png"));
    EXPECT_EQ(image.BackgroundColor(), 0x8C6A56U);
    EXPECT_EQ(image.Width(), 2);
    folder.Write("b.png", std::string_view(png.Build()).substr(0, 40));
    EXPECT_FALSE(image.Load(folder / "b.png"));
    EXPECT_EQ(image.BackgroundColor(), kWhite);
    EXPECT_EQ(image.Height(), 0);
}

}  // namespace
}  // namespace quorix
