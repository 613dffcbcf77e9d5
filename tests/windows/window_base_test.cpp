#include "platform/qt/window_base.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <vector>

#include "windows/pointer.h"

namespace quorix {
namespace {

class TestWindow : public WindowBase {
  public:
    using WindowBase::Handle;
    using WindowBase::WindowBase;

    std::vector<Rect> painted;
    std::vector<Point> downs;
    std::vector<int> fired;
    QColor color = Qt::red;

  protected:
    void Paint(QPainter& painter, const Rect& dirty) override {
        painted.push_back(dirty);
        painter.fillRect(0, 0, 1000, 1000, color);
    }
    void OnPenDown(Point at) override { downs.push_back(at); }
    void OnTimer(int id) override {
        fired.push_back(id);
        Kill(id);
    }
};

TEST(WindowBase, MessagesReachTheirHandlerAndItsAnswerComesBack) {
    TestWindow window;
    EXPECT_EQ(window.SendMessage(3135), 0);
    window.Handle(3135, [](auto first, auto second) { return first * 10 + second; });
    EXPECT_EQ(window.SendMessage(3135, 4, 2), 42);
    // A handler may replace itself while it runs.
    window.Handle(4368, [&](auto, auto) {
        window.Handle(4368, [](auto, auto) { return WindowBase::MessageParam{2}; });
        return WindowBase::MessageParam{1};
    });
    EXPECT_EQ(window.SendMessage(4368), 1);
    EXPECT_EQ(window.SendMessage(4368), 2);
}

TEST(WindowBase, OnlyTheInvalidPartIsPaintedAnew) {
    TestWindow window;
    window.SetPlace({0, 0, 100, 50});
    EXPECT_EQ(window.grab().toImage().pixelColor(99, 49), QColor(Qt::red));
    ASSERT_EQ(window.painted.size(), 1U);
    EXPECT_EQ(window.painted[0], (Rect{0, 0, 100, 50}));

    window.color = Qt::blue;
    EXPECT_EQ(window.grab().toImage().pixelColor(5, 5), QColor(Qt::red));  // shown again from the buffer
    window.Invalidate({10, 10, 20, 20});
    const QImage picture = window.grab().toImage();
    ASSERT_EQ(window.painted.size(), 2U);
    EXPECT_EQ(window.painted[1], (Rect{10, 10, 20, 20}));
    EXPECT_EQ(picture.pixelColor(15, 15), QColor(Qt::blue));
    EXPECT_EQ(picture.pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(20, 20), QColor(Qt::red));
}

TEST(WindowBase, ZoomWidensThePlacesAndNarrowsThePen) {
    TestWindow window;
    TestWindow child(&window, 1234);
    window.SetPlace({0, 0, 100, 50});
    child.SetPlace({11, 5, 33, 20});
    window.SetZoom(1.5);
    EXPECT_EQ(window.size(), QSize(150, 75));
    EXPECT_EQ(child.geometry(), QRect(17, 8, 33, 22));
    EXPECT_EQ(window.ChildWindow(1234), &child);
    EXPECT_EQ(window.ChildWindow(1), nullptr);
    testing::SendMouse(window, QEvent::MouseButtonPress, {149, 74});
    ASSERT_EQ(window.downs.size(), 1U);
    EXPECT_EQ(window.downs[0], (Point{99, 49}));
    window.SetScale(1);
    EXPECT_EQ(child.Scale(), 1);
    // One device pixel of the calculator is more than one of the desktop's, and all of it is painted.
    EXPECT_EQ(window.grab().toImage().pixelColor(149, 74), QColor(Qt::red));
}

TEST(WindowBase, TimersFireByTheirNumberUntilTheyAreKilled) {
    TestWindow window;
    window.Set(1113, 1);
    window.Set(1115, 100000);
    window.Set(1113, 1);
    for (int i = 0; i < 1000 && window.fired.empty(); ++i) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(window.fired, std::vector{1113});
    window.Kill(1115);
    window.Kill(1115);
}

}  // namespace
}  // namespace quorix
