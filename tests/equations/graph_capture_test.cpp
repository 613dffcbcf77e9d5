#include "equations/graph_capture.h"

#include <gtest/gtest.h>

#include "equations/bmp_file.h"
#include "equations/graph_picture.h"
#include "platform/files.h"
#include "platform/png_writer.h"
#include "support/engine_fixture.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using GraphCaptureTest = EngineTest;
using quorix::testing::TemporaryFolder;

constexpr ColorRef kBlue = MakeColor(0, 0, 255);
constexpr ColorRef kBlack = 0;

std::uint32_t Number(std::span<const std::uint8_t> bytes, std::size_t at) {
    return bytes[at] | bytes[at + 1] << 8U | bytes[at + 2] << 16U |
           static_cast<std::uint32_t>(bytes[at + 3]) << 24U;
}

TEST_F(GraphCaptureTest, BmpAndPngHoldThePixels) {
    DecodedPicture picture{3, 2, {}};
    for (std::uint8_t i = 0; i < 24; ++i) picture.pixels.push_back(i % 4 == 3 ? 255 : i);
    const std::vector<std::uint8_t> bmp = EncodeBmp(picture);
    ASSERT_EQ(bmp.size(), 54U + 2 * 12);
    EXPECT_EQ(std::string(bmp.begin(), bmp.begin() + 2), "BM");
    EXPECT_EQ(Number(bmp, 2), bmp.size());
    EXPECT_EQ(Number(bmp, 10), 54U);
    EXPECT_EQ(Number(bmp, 14), 40U);
    EXPECT_EQ(Number(bmp, 18), 3U);
    EXPECT_EQ(Number(bmp, 22), 2U);
    EXPECT_EQ(Number(bmp, 26), 1U | 24U << 16U);
    for (std::size_t at = 30; at < 54; ++at) EXPECT_EQ(bmp[at], 0);
    EXPECT_EQ(std::vector(bmp.begin() + 54, bmp.begin() + 66),
              (std::vector<std::uint8_t>{14, 13, 12, 18, 17, 16, 22, 21, 20, 0, 0, 0}));
    EXPECT_EQ(DecodePng(EncodePng(picture)).pixels, picture.pixels);
    for (const DecodedPicture& bad :
         {DecodedPicture{}, DecodedPicture{2, 2, {1, 2}}, DecodedPicture{-1, -1, {0, 0, 0, 0}}}) {
        EXPECT_TRUE(EncodeBmp(bad).empty());
        EXPECT_TRUE(EncodePng(bad).empty());
    }
}

TEST_F(GraphCaptureTest, NamesCountOnFromTheGreatestNumber) {
    const TemporaryFolder folder;
    EXPECT_EQ(NextCaptureName(folder.Path()), folder / "Capture 1.bmp");
    for (const char* name :
         {"Capture 2.bmp", "Capture 10.bmp", "capture 11.BMP", "Capture x.bmp", "Capture 99.png",
          "Capture -7.bmp", "Capture 99999999999.bmp", "Capture 2147483647.bmp"}) {
        folder.Write(name, "");
    }
    EXPECT_EQ(NextCaptureName(folder.Path()), folder / "Capture 12.bmp");
    folder.Write("Capture 999999999.bmp", "");
    folder.Write("Capture 1000000000.bmp", "");
    EXPECT_EQ(NextCaptureName(folder.Path()), folder / "Capture 1000000001.bmp") << "none is replaced";
    EXPECT_EQ(NextCaptureName(folder / "absent"), folder / "absent/Capture 1.bmp");
}

TEST_F(GraphCaptureTest, SizesAreCheckedInOrder) {
    EXPECT_EQ(CaptureSizeFault(1025, 1025), u"The width is too large");
    EXPECT_EQ(CaptureSizeFault(63, 1025), u"The height is too large");
    EXPECT_EQ(CaptureSizeFault(63, 63), u"The width is too small");
    EXPECT_EQ(CaptureSizeFault(64, 63), u"The height is too small");
    EXPECT_EQ(CaptureSizeFault(64, 1024), u"");
}

/// Rows of a column that are nearly blue.
std::vector<int> BlueRows(const DecodedPicture& picture, int x) {
    std::vector<int> rows;
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* pixel = &picture.pixels[static_cast<std::size_t>((y * picture.width + x) * 4)];
        if (pixel[0] < 120 && pixel[2] > 200) rows.push_back(y);
    }
    return rows;
}

TEST_F(GraphCaptureTest, TheCaptureShowsTheWholeViewLarger) {
    GraphView view;
    GraphSetSurface(view, 200, 100, 1);
    GraphAddCurve(view, u"x/2-1", u"x", kBlue);
    GraphMoveTo(view, {-20, -10}, {20, 10});
    const DecodedPicture picture = CaptureGraph(view, 600, 600, kWhite, kBlack);
    ASSERT_EQ(picture.width, 600);
    ASSERT_EQ(picture.pixels.size(), 600U * 600 * 4);
    // Three times the scale: the middle is (1, -1), where 3 units to the right the curve is at 1, 2 units
    // higher.
    const std::vector<int> rows = BlueRows(picture, 300 + 180);
    ASSERT_FALSE(rows.empty());
    EXPECT_NEAR((rows.front() + rows.back()) / 2.0, 300 - 30 * 2, 1.0);
    const TemporaryFolder folder;
    EXPECT_TRUE(SaveCapture(folder / "new/Capture 1.bmp", picture));
    EXPECT_EQ(ReadWholeFile(folder / "new/Capture 1.bmp"), EncodeBmp(picture));
    EXPECT_FALSE(SaveCapture("/proc/absent/Capture 1.bmp", picture));
    EXPECT_FALSE(SaveCapture(folder / "none.bmp", {}));
}

TEST_F(GraphCaptureTest, LinesAreSmoothAndOfTheirWidth) {
    GraphView view;
    GraphSetSurface(view, 100, 100, 2);
    GraphAddCurve(view, u"2.05", u"x", kBlack);
    const DecodedPicture picture = DrawGraphPicture(view, kWhite, kBlack);
    double ink = 0;
    for (int y = 0; y < 40; ++y)
        ink += (255 - picture.pixels[static_cast<std::size_t>((y * 100 + 80) * 4)]) / 255.0;
    EXPECT_NEAR(ink, kCurveWidth * 2, 0.02);
    // Steep lines that leave the surface by far stay bounded in time and place.
    GraphClear(view);
    GraphAddCurve(view, u"3000*x", u"x", kBlue);
    EXPECT_EQ(DrawGraphPicture(view, kWhite, kBlack).pixels.size(), 40000U);
}

}  // namespace
}  // namespace quorix
