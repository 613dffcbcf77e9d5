// The manual as a page: whole, linked, illustrated, and about every key and message.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "engine/error_table.h"
#include "frontends/key_names.h"
#include "frontends/macro_list.h"
#include "manual/key_script.h"
#include "manual/manual_page.h"
#include "platform/files.h"
#include "platform/png_loader.h"

namespace quorix {
namespace {

using testing::HtmlPiece;
using testing::ManualPage;
using testing::PrintedLabel;

constexpr std::uintmax_t kMostPictureBytes = 1'000'000;
constexpr int kLastErrorCode = -57;

const std::filesystem::path kAssets = std::filesystem::path(QUORIX_SOURCE_DIR) / "assets";

TEST(ManualPage, IsWellFormedAndItsLinksLeadSomewhere) {
    const ManualPage page;
    EXPECT_EQ(testing::FindNestingFault(page.Pieces()), "");
    for (const std::string& anchor : page.Anchors()) {
        EXPECT_EQ(page.Anchors().count(anchor), 1U) << anchor;
    }
    for (const std::string& link : page.Links()) {
        ASSERT_TRUE(link.starts_with('#')) << link << " leads out of the page";
        EXPECT_EQ(page.Anchors().count(link.substr(1)), 1U) << link;
    }
    // What has an anchor is listed in the contents or the index.
    for (const std::string& anchor : page.Anchors()) {
        EXPECT_TRUE(std::ranges::count(page.Links(), "#" + anchor) > 0) << anchor << " is linked by nothing";
    }
}

TEST(ManualPage, PicturesExistAreUsedAndSmall) {
    const ManualPage page;
    std::uintmax_t bytes = 0;
    std::set<std::string> files;
    for (const std::string& picture : page.Pictures()) {
        const auto file = ReadWholeFile(kAssets / picture);
        ASSERT_TRUE(file) << picture;
        EXPECT_GT(DecodePng(*file).width, 0) << picture;
        files.insert(picture);
    }
    for (const auto& entry : std::filesystem::directory_iterator(kAssets / "Help")) {
        bytes += entry.file_size();
        EXPECT_TRUE(files.contains("Help/" + entry.path().filename().string())) << entry.path();
    }
    EXPECT_LT(bytes, kMostPictureBytes);
    for (const HtmlPiece& piece : page.Pieces()) {
        if (piece.content == "img") {
            EXPECT_NE(piece.Attribute("alt"), "") << piece.Attribute("src");
        }
    }
}

TEST(ManualPage, TellsOfEveryCategoryAndEveryKeyOfItsPage) {
    const ManualPage page;
    for (int category = 0; category < kCategoryCount; ++category) {
        const char* const anchor = testing::kCategoryAnchors[category];
        EXPECT_EQ(page.Anchors().count(anchor), 1U);
        EXPECT_NE(page.Text().find(ToUtf8(kCategoryNames[static_cast<std::size_t>(category)])),
                  std::string::npos);
        if (category > kLastPanelCategory) {
            continue;
        }
        std::set<std::string> keys = page.KeysOfSection(anchor);
        keys.merge(page.KeysOfSection("keys"));
        for (int cell = CELL_SHIFT; cell < kUpperCellCount; ++cell) {
            for (const bool orange : {false, true}) {
                if (const std::string label = PrintedLabel(category, {Panel::upper, cell}, orange);
                    !label.empty()) {
                    EXPECT_TRUE(keys.contains(label)) << label << " of category " << category;
                }
            }
        }
        for (int cell = 0; cell < kLowerCellCount; ++cell) {
            for (const bool orange : {false, true}) {
                EXPECT_TRUE(keys.contains(PrintedLabel(category, {Panel::lower, cell}, orange))) << cell;
            }
        }
    }
}

TEST(ManualPage, ExplainsEveryMessage) {
    const std::string text = ManualPage().Text();
    for (int code = kLastErrorCode; code < 0; ++code) {
        const std::string message = ToUtf8(ErrorMessageFor(code));
        EXPECT_NE(text.find(message), std::string::npos) << message;
    }
    for (const char* message : {"Empty string", "Overlength string", "Unknown error"}) {
        EXPECT_NE(text.find(message), std::string::npos) << message;
    }
}

TEST(ManualPage, NamesEveryWordThatCanBeTyped) {
    const std::string text = ManualPage().Text();
    for (const KeyName& name : KeyNames()) {
        EXPECT_NE(text.find(ToUtf8(name.name)), std::string::npos) << ToUtf8(name.name);
    }
}

}  // namespace
}  // namespace quorix
