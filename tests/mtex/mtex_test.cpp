#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>

#include "equations/equation_picture.h"
#include "equations/tex_translation.h"
#include "mtex/child_process.h"
#include "mtex/gif_raster.h"
#include "mtex/tex_guard.h"

namespace quorix {
namespace {

using namespace mtex;

bool HasProgram() {
    return access("/usr/bin/mimetex", X_OK) == 0;
}

TEST(TexGuard, LetsMathematicsPassAndNothingElse) {
    for (const char* tex :
         {R"(\huge \frac{{x}^{2}}{3}\\X_1={-\sqrt{2}})",
          R"(\left[\begin{matrix} 1 & 2 \\ \end{matrix}\right])", R"(5\%+\alpha _2)", "x<=2"}) {
        EXPECT_TRUE(IsHarmlessTex(tex)) << tex;
    }
    for (const char* tex : {R"(\input{/etc/passwd})", R"(\counter{/tmp/x})", R"(\environment)",
                            R"(\mathtex{x})", R"(\newcommand{\a}{\a})", R"(\def\a{\a})", R"(&#92;input{x})",
                            R"(&bsol;)", "x\\", "\xc3\xa9", "a\nb", ""}) {
        EXPECT_FALSE(IsHarmlessTex(tex)) << tex;
    }
    EXPECT_TRUE(IsHarmlessTex(std::string(8191, 'x')));
    EXPECT_FALSE(IsHarmlessTex(std::string(8192, 'x')));
    EXPECT_EQ(PreparedTex(R"(\sin x+sin\left(2 exp 3\right)+ln 5+asinh x)"),
              R"(\nosmash \sin x+\sin \left(2 \ \exp\ 3\right)+\ln \ 5+\text{asinh}\ x)");
    EXPECT_EQ(PreparedTex(R"(sqrt\left( sqrt\left( x \right)+(1) \right)y)"),
              R"(\nosmash \sqrt { \sqrt { x }+(1) }y)");
    EXPECT_EQ(PreparedTex(R"(a\\input\\\right)"), R"(\nosmash a\\ input\\ \right)");
    EXPECT_EQ(PreparedTex(R"(2pi mod \text{sin or pi} x)"),
              R"(\nosmash 2\pi \ \text{mod}\  \text{sin or pi} x)");
    EXPECT_EQ(PreparedTex(R"(sqrt \left( x \right))"), R"(\nosmash \sqrt { x })");
    EXPECT_EQ(PreparedTex(R"(sqrt\left( x)"), R"(\nosmash \sqrt { x})");
    EXPECT_EQ(PreparedTex(R"(sqrt\left( )"), R"(\nosmash \sqrt {?})");
    EXPECT_EQ(PreparedTex(R"(\frac{sqrt\left( x}{y \right)} \right))"),
              R"(\nosmash \frac{\sqrt { x}}{y )} ))");
    EXPECT_EQ(PreparedTex(R"(\text{a\\input})"), R"(\nosmash \text{a\\ input})");
}

TEST(ChildProcess, KeepsItsLimits) {
    using std::chrono::milliseconds;
    const ChildLimits limits{milliseconds(300), 1000, std::size_t{64} << 20U};
    const auto text = RunChild("/bin/echo", {"a b; echo $HOME"}, limits);
    ASSERT_TRUE(text);
    EXPECT_EQ(std::string(text->begin(), text->end()), "a b; echo $HOME\n");
    EXPECT_TRUE(RunChild("/usr/bin/env", {}, limits)->empty());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(RunChild("/bin/sleep", {"20"}, limits));
    EXPECT_FALSE(RunChild("/bin/sh", {"-c", "exec >&-; sleep 20"}, limits));
    EXPECT_FALSE(RunChild("/usr/bin/yes", {}, limits));
    EXPECT_FALSE(RunChild("/bin/sh", {"-c", "kill -9 $$"}, limits));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    const auto handler = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_TRUE(RunChild("/bin/echo", {"x"}, limits)) << "its status is taken by the system";
    std::signal(SIGCHLD, handler);
    EXPECT_TRUE(RunChild("/nowhere/program", {}, limits).value_or(std::vector<std::uint8_t>()).empty());
}

TEST(GifRaster, DecodesOrRefuses) {
    // 3 x 2 pixels, white and black in turns.
    const std::vector<std::uint8_t> file = {'G', 'I',  'F',  '8',  '7', 'a', 3, 0,    2,    0,    0x80, 0,
                                            0,   0xFF, 0xFF, 0xFF, 0,   0,   0, 0x2C, 0,    0,    0,    0,
                                            3,   0,    2,    0,    0,   2,   3, 0x44, 0x6C, 0x05, 0,    0x3B};
    const auto raster = DecodeGif(file);
    ASSERT_TRUE(raster);
    EXPECT_EQ(raster->width, 8);
    EXPECT_EQ(raster->height, 2);
    EXPECT_EQ(raster->bits, (std::vector<std::uint8_t>{0b010, 0b101}));
    for (std::size_t length = 0; length + 2 < file.size(); ++length) {
        EXPECT_FALSE(DecodeGif(std::span(file).first(length))) << length;
    }
}

TEST(EquationPictures, WithoutTheLibraryTheViewStaysEmpty) {
    EquationRasteriser rasteriser("/nowhere/libmtex.so");
    EXPECT_FALSE(rasteriser.IsLoaded());
    EquationView view;
    EXPECT_TRUE(RenderEquation(rasteriser, view, "x", kSizeLadder[2]));
    EXPECT_TRUE(view.picture.pixels.empty());
    EXPECT_FALSE(RenderEquation(rasteriser, view, std::string(8190, 'x'), kSizeLadder[2]));
}

TEST(EquationPictures, PaintsSoftenedBitsInTheViewsColours) {
    const EquationRaster raster{8, 3, {0, 0b00001000, 0}};
    const DecodedPicture picture = PaintRaster(raster, {MakeColor(240, 240, 240), MakeColor(0, 80, 240)});
    const auto pixel = [&picture](int x, int y) {
        const auto at = picture.pixels.begin() + (y * picture.width + x) * 4;
        return std::vector<int>(at, at + 4);
    };
    EXPECT_EQ(pixel(3, 1), (std::vector{0, 80, 240, 255}));
    EXPECT_EQ(pixel(2, 0), (std::vector{225, 230, 240, 255}));
    EXPECT_EQ(pixel(5, 1), (std::vector{240, 240, 240, 255}));
}

TEST(EquationPictures, AnOffsetKeepsHalfOfTheViewCovered) {
    EXPECT_EQ(PictureOffset({200, 100}, {50, 20}, true), (Point{75, 40}));
    EXPECT_EQ(PictureOffset({200, 100}, {50, 20}, false), (Point{10, 40}));
    EXPECT_EQ(HeldOffset({500, -500}, {200, 100}, {50, 20}), (Point{100, 30}));
    EXPECT_EQ(HeldOffset({60, 40}, {200, 100}, {50, 20}), (Point{60, 40}));
}

TEST(EquationPictures, TheLibraryTypesets) {
    EquationRasteriser rasteriser(MTEX_LIBRARY);
    ASSERT_TRUE(rasteriser.IsLoaded());
    EXPECT_TRUE(rasteriser.Rasterise(R"(\input{/etc/passwd})").IsEmpty());
    if (!HasProgram()) GTEST_SKIP() << "mimetex is not installed";
    const EquationRaster minus = rasteriser.Rasterise("-");
    ASSERT_FALSE(minus.IsEmpty());
    EXPECT_EQ(minus.width % 8, 0);
    const EquationRaster large = rasteriser.Rasterise(R"(\huge -)");
    EXPECT_GT(large.width * large.height, minus.width * minus.height);
    // A minus sign is one bar: all its rows are alike or empty.
    EXPECT_EQ(std::ranges::count_if(minus.bits, [](int bits) { return bits != 0; }) > 0, true);
    // Spaces of a mile and open braces are the child's affair: whatever comes back is a raster or none.
    rasteriser.Rasterise(R"(a\hspace99999999b)");
    EXPECT_EQ(rasteriser.Rasterise("-").bits, minus.bits);
    std::string deep;
    for (int i = 0; i < 4000; ++i) deep += "{";
    rasteriser.Rasterise(deep);
}

}  // namespace
}  // namespace quorix
