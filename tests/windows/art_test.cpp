// The committed pictures of the skins: that they are what the generator draws, and that they keep the rules
// that the painters rely on.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

#include "engine/identifiers.h"
#include "frontends/key_labels.h"
#include "frontends/panel_keys.h"
#include "frontends/string_key_tokens.h"
#include "page_keys.h"
#include "palette.h"
#include "platform/image.h"
#include "platform/qt/pictures.h"
#include "shell/skin.h"
#include "strips.h"
#include "typeface.h"
#include "windows/pixels.h"

namespace quorix {
namespace {

using art::DrawStrip;
using art::Ground;
using art::Palette;
using art::Strip;

const std::filesystem::path kSource = QUORIX_SOURCE_DIR;

struct SkinSource {
    const char* palette;
    const char* folder;
};
constexpr SkinSource kSkins[] = {{"default", "Default"}, {"black", "Black"}};

Palette PaletteOf(const SkinSource& skin) {
    return Palette::Load(QString::fromStdString(
        (kSource / "art/palettes" / (std::string(skin.palette) + ".palette")).string()));
}

std::filesystem::path FileOf(const SkinSource& skin, const Strip& strip, int scale) {
    return kSource / "assets/Interfaces" / skin.folder /
           art::NameAtScale(art::FileNameOf(strip), scale).toStdString();
}

/// Calls check(skin, palette, strip, scale, committed picture) for every picture of every skin.
template <typename Check>
void ForEachPicture(const Check& check) {
    for (const SkinSource& skin : kSkins) {
        const Palette palette = PaletteOf(skin);
        for (const Strip& strip : art::SkinStrips()) {
            for (const int scale : art::ScalesOf(strip)) {
                SCOPED_TRACE(std::string(skin.folder) + "/" + strip.key + " at scale " +
                             std::to_string(scale));
                Image picture;
                ASSERT_TRUE(picture.Load(FileOf(skin, strip, scale)));
                ASSERT_EQ(picture.Width(), strip.width * scale);
                ASSERT_EQ(picture.Height(), strip.height * scale);
                check(skin, palette, strip, scale, picture);
            }
        }
    }
}

struct Pixel {
    int red, green, blue, alpha;
};

Pixel PixelAt(const Image& picture, int x, int y) {
    const std::uint8_t* at = picture.Bitmap().data() + (y * picture.Width() + x) * 4;
    return {at[0], at[1], at[2], at[3]};
}

bool HasColor(const Pixel& pixel, const QColor& color) {
    return pixel.red == color.red() && pixel.green == color.green() && pixel.blue == color.blue();
}

/// Font rasterisers differ in the last bit, and a hinter of another version may move a stem.
constexpr int kPixelTolerance = 40;
constexpr double kDifferingPart = 0.01;

TEST(Art, TheCommittedPicturesAreWhatTheGeneratorDraws) {
    const art::Typeface typeface(QUORIX_FONT_DIR);
    ForEachPicture([&](const SkinSource&, const Palette& palette, const Strip& strip, int scale,
                       const Image& committed) {
        const QImage drawn =
            DrawStrip(strip, {palette, typeface}, scale).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const QImage kept = ToQImage(committed);
        int differing = 0;
        testing::ForEachPixel(drawn, [&](QRgb a, int x, int y) {
            const QRgb b = kept.pixel(x, y);
            const int distance = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                           std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
            differing += distance > kPixelTolerance ? 1 : 0;
        });
        EXPECT_LE(differing, kDifferingPart * drawn.width() * drawn.height());
    });
}

TEST(Art, DrawingByAlphaAndByTransparentColourAgree) {
    ForEachPicture([&](const SkinSource&, const Palette& palette, const Strip& strip, int,
                       const Image& picture) {
        const QColor body = palette.Color("body");
        if (strip.ground == Ground::kTransparent) {
            EXPECT_EQ(PixelAt(picture, 0, 0).alpha, 0);
        }
        if (strip.ground == Ground::kBody || strip.ground == Ground::kTransparent) {
            EXPECT_TRUE(HasColor(PixelAt(picture, 0, 0), body));
        }
        int wrong = 0;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                const Pixel pixel = PixelAt(picture, x, y);
                const bool opaque = pixel.alpha == 255;
                wrong += strip.ground == Ground::kTransparent ? HasColor(pixel, body) != (pixel.alpha == 0)
                                                              : !opaque;
            }
        }
        EXPECT_EQ(wrong, 0);
    });
}

/// A picture of caps as panels cut it.
struct CapGrid {
    const char* key;
    int columns;
    int rows;
    bool hasLabels = false;
};

TEST(Art, EveryCapHasTheBodyColourInItsCornersAndAPlainMiddle) {
    constexpr CapGrid kGrids[] = {{"SmallButtons", 2, 4},
                                  {"LargeButtons", 2, 3},
                                  {"LargeButtonsSquare", 2, 3},
                                  {"NumberKeyboard", 12, 3, true},
                                  {"Keyboard", 12, 5, true},
                                  {"EquationsSolver_Operators", 14, 1, true},
                                  {"Formula_Operators", 12, 1, true}};
    ForEachPicture(
        [&](const SkinSource&, const Palette& palette, const Strip& strip, int scale, const Image& picture) {
            for (const CapGrid& grid : kGrids) {
                if (std::string_view(grid.key) != strip.key) {
                    continue;
                }
                const int width = picture.Width() / grid.columns;
                const int height = picture.Height() / grid.rows;
                for (int cap = 0; cap < grid.columns * grid.rows; ++cap) {
                    const int left = cap % grid.columns * width;
                    const int top = cap / grid.columns * height;
                    for (const int x : {left, left + width - 1}) {
                        for (const int y : {top, top + height - 1}) {
                            EXPECT_TRUE(HasColor(PixelAt(picture, x, y), palette.Color("body"))) << cap;
                        }
                    }
                    if (grid.hasLabels) {
                        continue;
                    }
                    // Between its corners a row of a cap has one colour, so that it can be stretched.
                    const int corner = 8 * scale;
                    for (int y = top; y < top + height; ++y) {
                        const Pixel first = PixelAt(picture, left + corner, y);
                        const Pixel last = PixelAt(picture, left + width - corner - 1, y);
                        EXPECT_LE(std::abs(first.green - last.green), 1) << cap << " row " << y;
                    }
                }
            }
        });
}

TEST(Art, NoLabelReachesTheSideOfItsCell) {
    constexpr CapGrid kGrids[] = {
        {"SmallFonts", 12, 1},          {"LargeFonts", 5, 4}, {"SmallFontsGeneral", 6, 1},
        {"LargeFontsSquare", 5, 4},     {"Category", 16, 2},  {"CategoryLabels", 16, 2},
        {"Formula_List_IconItem", 3, 2}};
    ForEachPicture([&](const SkinSource&, const Palette&, const Strip& strip, int, const Image& picture) {
        for (const CapGrid& grid : kGrids) {
            const std::string_view key = strip.key;
            const bool isPage = std::string_view(grid.key) == "SmallFonts" && key.starts_with("SmallFonts") &&
                                key != "SmallFontsGeneral";
            if (key != grid.key && !isPage) {
                continue;
            }
            const int width = picture.Width() / grid.columns;
            int touching = 0;
            for (int y = 0; y < picture.Height(); ++y) {
                for (int column = 0; column < grid.columns; ++column) {
                    touching += PixelAt(picture, column * width, y).alpha > 64;
                    touching += PixelAt(picture, column * width + width - 1, y).alpha > 64;
                }
            }
            EXPECT_EQ(touching, 0);
        }
    });
}

TEST(Art, BothSkinsNameEveryPictureThatAWindowAsksFor) {
    std::istringstream names(
        "BoderColores Logo DateTime NumberKeyboard NumberKeyboardFunctions EquationsSolver_Operators "
        "EquationsSolver_Back EquationsSolver_DeleteButtons EquationsSolver_ScrollUpButton "
        "EquationsSolver_ScrollDownButton EquationScroll GraphOperators GraphNewIcon GraphCloseIcon "
        "GraphTextXY FormulaButtons Formula_Back Formula_Next Formula_Play Formula_Panel "
        "Formula_Operators Formula_Switch_ClearAll Formula_List_Background Formula_List_DownArrow "
        "Formula_List_UpArrow Formula_List_IconItem Formula_List_Thumb FormulaKeyboard "
        "CategoryButtons Category ChangePageButtons NormalPanelSymbols CategoryLabels ToolsPanel "
        "ToolsPanelMask ListBox ListBoxButtons Keyboard SkinPreview");
    const std::vector<std::string> keys{std::istream_iterator<std::string>(names), {}};
    for (const char16_t* file : {u"default.inf", u"Black Skin.inf"}) {
        for (const int scale : {1, 2}) {
            const Skin skin(kSource / "assets", DeviceScreen{240 * scale, 320 * scale});
            for (const std::string& key : keys) {
                EXPECT_TRUE(std::filesystem::is_regular_file(skin.FindSkinValue(key, file)))
                    << key << " at scale " << scale;
            }
        }
    }
}

TEST(Art, FilesHaveNoChunkThatTheLoaderWouldActOn) {
    std::uintmax_t bytes = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSource / "assets/Interfaces")) {
        if (!entry.is_regular_file()) {
            continue;
        }
        bytes += entry.file_size();
        if (entry.path().extension() != ".png") {
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string data{std::istreambuf_iterator<char>(file), {}};
        std::set<std::string> chunks;
        for (std::size_t at = 8; at + 12 <= data.size();) {
            const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(data[at + i]); };
            const std::size_t length =
                static_cast<std::size_t>(byte(0)) << 24U | byte(1) << 16U | byte(2) << 8U | byte(3);
            chunks.insert(data.substr(at + 4, 4));
            at += length + 12;
        }
        EXPECT_EQ(chunks.count("bKGD") + chunks.count("gAMA") + chunks.count("iCCP") + chunks.count("sRGB"),
                  0U)
            << entry.path();
    }
    EXPECT_LT(bytes, 2'500'000U);
}

/// Relative luminance and contrast of the web's accessibility guidelines 2.1.
double Luminance(const QColor& color) {
    const auto linear = [](float channel) {
        const double c = static_cast<double>(channel);
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(Art, LabelsStandOutFromTheirCaps) {
    constexpr double kText = 4.5;
    constexpr double kGraphics = 3.0;
    for (const SkinSource& skin : kSkins) {
        const Palette palette = PaletteOf(skin);
        const auto worst = [&](const QString& cap, const QColor& ink) {
            const art::CapColors colors = palette.Cap(cap);
            return std::min(Contrast(colors.faceTop, ink), Contrast(colors.faceBottom, ink));
        };
        for (const char* style : {"function", "shift", "menu", "chooser", "digit", "operator", "clear"}) {
            EXPECT_GE(worst(style, palette.Color(QString("label.") + style)), kText)
                << skin.folder << " " << style;
        }
        for (const char* style : {"function", "menu", "operator"}) {
            EXPECT_GE(worst(style, palette.Color("label.orange")), kText) << skin.folder << " " << style;
        }
        EXPECT_GE(worst("chooser", palette.Color("accent.chooser")), kGraphics) << skin.folder;
        EXPECT_GE(Contrast(palette.Color("sheet"), palette.Color("sheet.ink")), kText) << skin.folder;
        EXPECT_GE(Contrast(palette.Color("sheet"), palette.Color("sheet.accent")), kGraphics) << skin.folder;
        EXPECT_GE(Contrast(palette.Color("chosen"), palette.Color("chosen.ink")), kText) << skin.folder;
        EXPECT_GE(Contrast(palette.Color("body"), Qt::white), kText) << skin.folder;
    }
}

TEST(KeyLabels, EveryKeyOfEveryPanelHasALabelAndNoOtherCellHas) {
    for (int category = 0; category < 6; ++category) {
        for (int cell = 0; cell < 18; ++cell) {
            const PanelAction plain = UpperAction(category, cell, false, RADIX_HEX);
            const PanelAction orange = UpperAction(category, cell, true, RADIX_HEX);
            EXPECT_EQ(!art::LabelOfCell(category, cell, false).empty(), plain != PanelAction{})
                << category << " " << cell;
            EXPECT_EQ(!art::LabelOfCell(category, cell, true).empty(), orange != plain)
                << category << " " << cell;
        }
    }
    for (int code = 0; code < 23; ++code) {
        EXPECT_FALSE(LabelOfKey(code).empty()) << code;
    }
}

TEST(KeyLabels, WordsAreThoseThatTheKeyInserts) {
    int words = 0;
    for (const KeyLabel& label : kKeyLabels) {
        const StringKeyTokens* tokens = FindStringKeyTokens(label.code);
        const bool isWord =
            label.text.size() > 1 &&
            label.text.find_first_not_of(u"abcdefghijklmnopqrstuvwxyz") == std::u16string_view::npos;
        if (tokens == nullptr || !isWord) {
            continue;
        }
        ++words;
        EXPECT_NE(tokens->first.find(label.text), std::u16string_view::npos) << label.code;
    }
    EXPECT_GT(words, 40);
}

}  // namespace
}  // namespace quorix
