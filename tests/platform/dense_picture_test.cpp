#include "platform/dense_picture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "png_builder.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

using testing::PngBuilder;
using testing::TemporaryFolder;

std::vector<std::string> Names(const char* plain, int scale, double pixelsPerPixel) {
    std::vector<std::string> names;
    for (const DenseFile& file : DenseFilesOf(plain, scale, pixelsPerPixel)) {
        names.push_back(file.path.generic_string());
    }
    return names;
}

TEST(DensePicture, TheNearestFileThatIsDenseEnoughComesFirst) {
    using Strings = std::vector<std::string>;
    EXPECT_EQ(Names("S/x_VGA.png", 2, 1), (Strings{"S/x_VGA.png"}));
    EXPECT_EQ(Names("S/x_VGA.png", 2, 0.75), (Strings{"S/x_VGA.png"}));
    EXPECT_EQ(Names("S/x.png", 1, 1), (Strings{"S/x.png"}));
    EXPECT_EQ(Names("S/x_VGA.png", 2, 1.5), (Strings{"S/x_VGA@1.5x.png", "S/x_VGA@2x.png", "S/x_VGA.png"}));
    EXPECT_EQ(Names("S/x_VGA.png", 2, 1.25), Names("S/x_VGA.png", 2, 1.5));
    EXPECT_EQ(Names("S/x_VGA.png", 2, 2), (Strings{"S/x_VGA@2x.png", "S/x_VGA@1.5x.png", "S/x_VGA.png"}));
    // Nothing is dense enough: the densest.
    EXPECT_EQ(Names("S/x_VGA.png", 2, 4), Names("S/x_VGA.png", 2, 2));
    EXPECT_EQ(Names("S/x.png", 1, 2),
              (Strings{"S/x_VGA.png", "S/x_VGA@1.5x.png", "S/x_VGA@2x.png", "S/x.png"}));
    EXPECT_EQ(Names("S/x.png", 1, 3).front(), "S/x_VGA@1.5x.png");
}

TEST(DensePicture, AFileThatIsAbsentOrDamagedGivesWayToTheNext) {
    const TemporaryFolder folder;
    const auto write = [&](std::string_view name, png_uint_32 side) {
        PngBuilder png{.width = side, .height = side};
        png.rows.assign(std::size_t{side} * side * 4, 99);
        folder.Write(name, png.Build());
    };
    const std::filesystem::path plain = folder / "x_VGA.png";
    const auto load = [&](double pixelsPerPixel) { return LoadDense(plain, 2, pixelsPerPixel); };
    EXPECT_TRUE(load(2).image.IsEmpty());

    write("x_VGA.png", 2);
    EXPECT_EQ(load(2).image.Width(), 2);
    EXPECT_EQ(load(2).ratio, 1);

    write("x_VGA@1.5x.png", 3);
    EXPECT_EQ(load(2).image.Width(), 3);
    EXPECT_EQ(load(2).ratio, 1.5);
    EXPECT_EQ(load(1).image.Width(), 2);

    folder.Write("x_VGA@2x.png", "no picture");
    EXPECT_EQ(load(2).image.Width(), 3);
    write("x_VGA@2x.png", 4);
    EXPECT_EQ(load(2).image.Width(), 4);
    EXPECT_EQ(load(2).ratio, 2);
}

}  // namespace
}  // namespace quorix
