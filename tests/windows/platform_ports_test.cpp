// The real sides of the ports for sound, help and the single instance.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <algorithm>

#include "platform/qt/html_window.h"
#include "platform/qt/lazy_sound.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/single_instance.h"
#include "support/temporary_folder.h"

namespace quorix {
namespace {

TEST(LazySound, NeitherWaitsNorComplainsWhateverTheMachineAndTheFileAre) {
    const testing::TemporaryFolder folder;
    folder.Write("damaged.wav", "RIFF, and then nothing");
    const std::filesystem::path whole =
        std::filesystem::path(QUORIX_SOURCE_DIR) / "assets/Sounds/Sound 01.wav";
    ::testing::internal::CaptureStderr();
    qint64 longestMs = 0;
    {
        LazySound player;
        // The first one loads the module.
        player.Play(whole);
        for (const auto& file :
             {whole, folder / "damaged.wav", folder / "absent.wav", whole, folder.Path()}) {
            QTest::qWait(40);
            QElapsedTimer timer;
            timer.start();
            player.Play(file);
            longestMs = std::max(longestMs, timer.elapsed());
        }
        QTest::qWait(100);
    }
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_LT(longestMs, 5);
}

TEST(SingleInstance, ALaterStartRaisesTheFirstAndAnotherFolderIsAnotherProgram) {
    const testing::TemporaryFolder folder;
    int raised = 0;
    {
        SingleInstance first(folder.Path(), [&] { ++raised; });
        ASSERT_TRUE(first.TryBecomeFirst());
        for (int start = 1; start <= 2; ++start) {
            SingleInstance later(folder.Path() / ".", [] {});
            EXPECT_FALSE(later.TryBecomeFirst());
            EXPECT_TRUE(QTest::qWaitFor([&] { return raised == start; }, 1000));
        }
        folder.Write("other/file", "x");
        EXPECT_TRUE(SingleInstance(folder / "other", [] {}).TryBecomeFirst());
    }
    EXPECT_TRUE(SingleInstance(folder.Path(), [] {}).TryBecomeFirst());
    EXPECT_EQ(raised, 2);
}

TEST(QtHelpViewer, TellsAtOnceOrLaterThatNothingOpensTheFile) {
    const testing::TemporaryFolder folder;
    folder.Write("help.htm", "<p>help");
    const QByteArray path = qgetenv("PATH");
    QtHelpViewer viewer;
    int failures = 0;
    const auto failed = [&] { ++failures; };
    qputenv("PATH", folder.Path().c_str());
    EXPECT_FALSE(viewer.Open(folder / "help.htm", failed));
    for (const char* exitCode : {"0", "3"}) {
        folder.Write("xdg-open", std::string("#!/bin/sh\n: > \"$1.seen\"\nexit ") + exitCode + "\n");
        std::filesystem::permissions(folder / "xdg-open", std::filesystem::perms::owner_all);
        std::filesystem::remove(folder / "help.htm.seen");
        EXPECT_FALSE(viewer.Open(folder / "absent.htm", failed));
        EXPECT_TRUE(viewer.Open(folder / "help.htm", failed));
        EXPECT_TRUE(QTest::qWaitFor([&] { return failures == (*exitCode == '0' ? 0 : 1); }, 2000));
        EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(folder / "help.htm.seen"); }, 2000));
        QTest::qWait(50);
    }
    EXPECT_EQ(failures, 1);
    qputenv("PATH", path);
}

TEST(HtmlWindow, FollowsLinksStepsBackAndFindsRoundTheEnd) {
    const testing::TemporaryFolder folder;
    folder.Write("Quorix.htm", "<title>Quorix</title><p>alpha beta alpha <a href='second.htm'>on</a>");
    folder.Write("second.htm", "<title>Second</title><p>gamma");
    HtmlWindow window;
    EXPECT_FALSE(window.ShowFile(folder / "absent.htm"));
    EXPECT_FALSE(window.isVisible());
    ASSERT_TRUE(window.ShowFile(folder / "Quorix.htm"));
    EXPECT_EQ(window.windowTitle(), "Quorix");

    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* browser = window.findChild<QTextBrowser*>();
    emit browser->anchorClicked(QUrl("second.htm"));
    EXPECT_EQ(window.windowTitle(), "Second");
    browser->backward();
    EXPECT_EQ(window.windowTitle(), "Quorix");

    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto* search = window.findChild<QLineEdit*>();
    EXPECT_TRUE(search->isVisible());
    QTest::keyClicks(search, "ALPHA");
    int place = -1;
    for (const int expected : {5, 16, 5}) {
        EXPECT_TRUE(window.FindNext());
        place = browser->textCursor().position();
        EXPECT_EQ(place, expected);
    }
    search->setText("omega");
    EXPECT_FALSE(window.FindNext());
    EXPECT_EQ(browser->textCursor().position(), place);
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_FALSE(search->isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace quorix
