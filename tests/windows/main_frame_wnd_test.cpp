#include <QScreen>
#include <csignal>

#include "platform/qt/termination.h"
#include "windows/frame_window.h"
#include "windows/pixels.h"

namespace quorix {
namespace {

class MainFrameWndTest : public testing::FrameWindowTest {
  protected:
    static void Tap(MainFrameWnd& window, PanelCell cell) {
        const Rect rect = CellRect(window.Frame().CurrentOrientation(), cell).Scaled(window.Scale());
        const QPointF at(rect.left + rect.Width() / 2.0, rect.top + rect.Height() / 2.0);
        testing::Tap(window, at * window.Zoom());
    }
};

TEST_F(MainFrameWndTest, TapsAndKeysComputeInEveryShapeAndSize) {
    const auto window = Open();
    for (const int zoomSteps : {0, 1, 2, 3}) {
        for (int shape = 0; shape < 3; ++shape) {
            for (const int code : {KEY_CLEAR, KEY_1, KEY_DIVIDE, KEY_8, KEY_EQUALS}) {
                Tap(*window, {Panel::lower, code});
            }
            EXPECT_EQ(Result(*window), "0.125");
            const Rect client = LayoutOf(window->Frame().CurrentOrientation()).client.Scaled(window->Scale());
            EXPECT_EQ(window->width(), qRound(client.Width() * window->Zoom())) << zoomSteps;
            EXPECT_FALSE(window->grab().toImage().isNull());
            Press(*window, Qt::Key_F9);
        }
        Press(*window, Qt::Key_Minus, Qt::ControlModifier);
        for (int i = 0; i < zoomSteps; ++i) {
            Press(*window, Qt::Key_Plus, Qt::ControlModifier);
        }
    }
    Press(*window, Qt::Key_Escape, {}, QString(QChar(27)));
    TypeText(*window, QStringLiteral("(1+2)*3"));
    Press(*window, Qt::Key_Return);
    EXPECT_EQ(Row(*window), "(1+2)×3");
    EXPECT_EQ(Result(*window), "9");
    Press(*window, Qt::Key_Backspace);
    Press(*window, Qt::Key_Left);
    Press(*window, Qt::Key_Delete);
    EXPECT_EQ(Row(*window), "(1+2)");
}

TEST_F(MainFrameWndTest, ClosingKeepsTheLineForTheNextStart) {
    {
        const auto window = Open();
        TypeText(*window, QStringLiteral("1/3="));
        Press(*window, Qt::Key_Down);
        Press(*window, Qt::Key_F9);
        window->close();
    }
    const auto window = Open();
    EXPECT_EQ(Row(*window), "1÷3");
    EXPECT_EQ(window->Frame().CurrentCategory(), CATEGORY_TRIGONOMETRY);
    EXPECT_EQ(window->Frame().CurrentOrientation(), Orientation::landscape);
}

TEST_F(MainFrameWndTest, AnOddViewFileGivesAWindowThatCanBeReached) {
    const auto shows = [&](std::string_view content) {
        folder_.Write("view.ini", content);
        const auto window = Open();
        return QGuiApplication::primaryScreen()->geometry().contains(window->pos());
    };
    EXPECT_TRUE(shows("[General]\nzoom=100\nx=30\ny=40\n"));
    EXPECT_TRUE(shows("[General]\nzoom=1e9\nshape=round\nx=-5000\ny=99999999999\n"));
    EXPECT_TRUE(shows("[General]\nx=9000\ny=100\n"));
    EXPECT_TRUE(shows("[[[\n=\n"));
}

TEST_F(MainFrameWndTest, ARequestToEndSavesTheState) {
    {
        const auto window = Open();
        const TerminationRequests termination([&window] { window->close(); });
        TypeText(*window, QStringLiteral("7*6="));
        std::raise(SIGTERM);
        for (int round = 0; round < 100 && window->isVisible(); ++round) {
            QApplication::processEvents();
        }
        EXPECT_FALSE(window->isVisible());
    }
    EXPECT_EQ(Row(*Open()), "7×6");
}

TEST_F(MainFrameWndTest, APressRepaintsItsCellAlone) {
    const auto window = Open();
    const QImage before = window->grab().toImage();
    const PanelCell cell{Panel::lower, KEY_7};
    const Rect rect = CellRect(Orientation::portrait, cell).Scaled(window->Scale());
    testing::SendMouse(*window, QEvent::MouseButtonPress, QPointF(rect.left + 20, rect.top + 20));
    const QImage pressed = window->grab().toImage();
    int inside = 0;
    int outside = 0;
    testing::ForEachPixel(before, [&](QRgb pixel, int x, int y) {
        (rect.Contains({x, y}) ? inside : outside) += pixel != pressed.pixel(x, y);
    });
    EXPECT_GT(inside, 1000);
    EXPECT_EQ(outside, 0);
    testing::SendMouse(*window, QEvent::MouseButtonRelease, QPointF(rect.left + 20, rect.top + 20));
    EXPECT_EQ(Row(*window), "7");
}

TEST_F(MainFrameWndTest, ListsOpenAtTheirKeys) {
    const auto window = Open();
    Tap(*window, {Panel::upper, CELL_MENU});
    ASSERT_NE(window->Popup(), nullptr);
    ASSERT_EQ(window->Popup()->Model().Items().size(), 7U);
    for (const int key : {Qt::Key_End, Qt::Key_Return}) {
        Press(*window, key);
    }
    EXPECT_EQ(Row(*window), "fib(");
    EXPECT_EQ(window->Popup(), nullptr);
    Tap(*window, {Panel::upper, CELL_MENU});
    Tap(*window, {Panel::lower, KEY_7});
    EXPECT_EQ(window->Popup(), nullptr) << "a tap outside closes the list";
    EXPECT_EQ(Row(*window), "fib(") << "and does nothing else";
}

TEST_F(MainFrameWndTest, AMissingSkinEndsTheStartAndMissingPicturesDoNot) {
    std::filesystem::remove_all(folder_ / "Interfaces/Default");
    std::filesystem::remove_all(folder_ / "Resources");
    {
        const auto window = Open();
        TypeText(*window, QStringLiteral("1+1="));
        EXPECT_EQ(Result(*window), "2");
        EXPECT_FALSE(window->grab().toImage().isNull());
    }
    std::filesystem::remove(folder_ / "Interfaces/default.inf");
    MainFrameWnd window(folder_.Path());
    EXPECT_FALSE(window.Create());
    EXPECT_EQ(window.SkinPathTried(), folder_ / "Interfaces/default.inf");
}

}  // namespace
}  // namespace quorix
