// The manual in the program's own help window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFragment>
#include <cstdlib>
#include <set>

#include "manual/manual_page.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "platform/qt/html_window.h"
#include "shell/empty_page_wnd.h"
#include "shell/main_frame_wnd.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

void KeepScreenshot(HtmlWindow& window, const std::string& name) {
    if (const char* folder = std::getenv("QUORIX_SCREENSHOTS")) {
        QApplication::processEvents();
        window.grab().save(QString::fromStdString(std::string(folder) + "/manual-" + name + ".png"));
    }
}

TEST(ManualInTheHelpWindow, HasItsPicturesAndAnchors) {
    // Where the program's own folder cannot be written the manual is read from the user's.
    const testing::TemporaryFolder folder;
    SeedFolder(ExecutableFolder(), folder.Path());
    HtmlWindow window;
    ASSERT_TRUE(window.ShowFile(folder / "Quorix.htm"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Quorix manual"));
    auto* const browser = window.findChild<QTextBrowser*>();
    std::multiset<std::string> anchors;
    std::size_t pictures = 0;
    const QTextDocument& document = *browser->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextCharFormat format = at.fragment().charFormat();
            for (const QString& name : format.anchorNames()) {
                anchors.insert(name.toStdString());
            }
            if (format.isImageFormat()) {
                ++pictures;
                const QUrl source(format.toImageFormat().name());
                const QVariant picture = document.resource(QTextDocument::ImageResource, source);
                EXPECT_FALSE(picture.value<QImage>().isNull() && picture.value<QPixmap>().isNull())
                    << source.toString().toStdString();
            }
        }
    }
    const testing::ManualPage page;
    EXPECT_EQ(pictures, page.Pictures().size());
    for (const std::string& anchor : page.Anchors()) {
        EXPECT_TRUE(anchors.contains(anchor)) << anchor;
        browser->scrollToAnchor(QString::fromStdString(anchor));
        KeepScreenshot(window, anchor);
    }
    // No table is wider than the window.
    EXPECT_LE(document.idealWidth(), browser->viewport()->width());
}

TEST(ManualInTheHelpWindow, SaysWhichPagesAreEmpty) {
    const auto bytes = ReadWholeFile(ExecutableFolder() / "Quorix.htm");
    ASSERT_TRUE(bytes);
    const std::string page(bytes->begin(), bytes->end());
    const testing::TemporaryFolder folder;
    SeedFolder(ExecutableFolder(), folder.Path());
    MainFrameWnd window(folder.Path());
    ASSERT_TRUE(window.Create());
    for (int category = CATEGORY_TIP; category < kCategoryCount; ++category) {
        window.Frame().SwitchCategory(category);
        const bool empty = dynamic_cast<EmptyPageWnd*>(window.Module(EntryOf(category).window)) != nullptr;
        const std::string mark = std::string("<!-- not built yet: ") + testing::kCategoryAnchors[category];
        EXPECT_EQ(page.find(mark) != std::string::npos, empty)
            << "assets/Quorix.htm: describe the page in place of the note " << mark;
    }
}

}  // namespace
}  // namespace quorix
