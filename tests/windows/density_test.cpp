// Pictures on zoomed windows and dense desktops. The test program runs a second time with two desktop pixels
// for a point, so that both kinds of density are seen.

#include <QPainter>

#include "platform/qt/pictures.h"
#include "windows/frame_window.h"

namespace quorix {
namespace {

/// Endings of the files by pixels for a unit.
constexpr const char* kMarks[] = {"", "", "_VGA", "_VGA@1.5x", "_VGA@2x"};
constexpr int kDensest = 4;
constexpr int kLabelUnits = 41;
constexpr int kLabelHeightUnits = 34;

class DensityTest : public testing::FrameWindowTest {
  protected:
    void ZoomOut() {
        for (int i = 0; i < 3; ++i) {
            Press(*window_, Qt::Key_Minus, Qt::ControlModifier);
        }
    }
    void ZoomIn() { Press(*window_, Qt::Key_Plus, Qt::ControlModifier); }

    [[nodiscard]] double PixelsPerUnit() const { return window_->Scale() * window_->Density(); }
    [[nodiscard]] QImage Grab() { return window_->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    [[nodiscard]] QImage Load(const std::string& name, int density) const {
        Image image;
        EXPECT_TRUE(image.Load(folder_ / ("Interfaces/Default/" + name + kMarks[density] + ".png")));
        return ToQImage(image);
    }
    /// A cell of the lower panel as it is grabbed, where a unit is a whole number of pixels.
    [[nodiscard]] QImage CellOf(const QImage& grab, int code) const {
        const Rect cell = CellRect(window_->Frame().CurrentOrientation(), {Panel::lower, code})
                              .Scaled(static_cast<int>(PixelsPerUnit()));
        QImage picture = grab.copy(cell.left, cell.top, cell.Width(), cell.Height());
        picture.setDevicePixelRatio(1);
        return picture;
    }

    std::unique_ptr<MainFrameWnd> window_ = Open();
};

TEST_F(DensityTest, AKeyHasThePixelsOfTheFileOfItsDensityAtEveryZoom) {
    ZoomOut();
    int compared = 0;
    for (int zoomStep = 0; zoomStep < 4; ++zoomStep, ZoomIn()) {
        const int density = static_cast<int>(PixelsPerUnit());
        ASSERT_EQ(density, PixelsPerUnit());
        if (density > kDensest) {
            continue;
        }
        ++compared;
        SCOPED_TRACE(density);
        const QImage caps = Load("LargeButtons", density);
        const QImage labels = Load("LargeFonts", density);
        const QImage grab = Grab();
        EXPECT_EQ(grab.width(), LayoutOf(Orientation::portrait).client.Width() * density);
        for (const int code : {KEY_7, KEY_5, KEY_POINT}) {
            QImage expected(47 * density, 38 * density, QImage::Format_RGB32);
            QPainter painter(&expected);
            painter.drawImage(QPoint(), caps, QRect(QPoint(), expected.size()));
            const QSize label = QSize(kLabelUnits, kLabelHeightUnits) * density;
            painter.drawImage(QPoint(3, 2) * density, labels,
                              QRect(QPoint(code % 5 * label.width(), code / 5 * label.height()), label));
            painter.end();
            EXPECT_EQ(CellOf(grab, code), expected) << code;
        }
    }
    EXPECT_GE(compared, 2);
}

TEST_F(DensityTest, AStretchedCapKeepsItsCornersPixelForPixel) {
    Press(*window_, Qt::Key_F9);
    ASSERT_EQ(window_->Frame().CurrentOrientation(), Orientation::landscape);
    for (int zoomStep = 0; zoomStep < 3; ++zoomStep, ZoomIn()) {
        const int density = static_cast<int>(PixelsPerUnit());
        if (density > kDensest) {
            continue;
        }
        SCOPED_TRACE(density);
        const QImage caps = Load("LargeButtons", density);
        const int corner = 8 * density;
        const int clear = 2 * 38 * density;
        const QImage key = CellOf(Grab(), KEY_CLEAR);
        const auto part = [&](const QImage& from, int x, int y) {
            return from.copy(x, y, corner, corner).convertToFormat(QImage::Format_RGB32);
        };
        EXPECT_EQ(part(key, 0, 0), part(caps, 0, clear));
        EXPECT_EQ(part(key, key.width() - corner, 0), part(caps, 47 * density - corner, clear));
        EXPECT_EQ(part(key, 0, key.height() - corner), part(caps, 0, clear + 38 * density - corner));
        // The plain part between corner and label has one colour in a row.
        for (int x = corner; x < 3 * corner; ++x) {
            ASSERT_EQ(key.pixel(x, key.height() / 2), key.pixel(corner, key.height() / 2)) << x;
        }
    }
}

TEST_F(DensityTest, ASkinWithoutDenseFilesIsScaled) {
    ZoomOut();
    ZoomIn();
    ASSERT_EQ(window_->Scale(), 2);
    const QImage plain = Grab();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path())) {
        if (entry.path().filename().string().find('@') != std::string::npos) {
            std::filesystem::remove(entry.path());
        }
    }
    ZoomIn();
    const QImage zoomed = Grab();
    const QImage shrunk = zoomed.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const Rect seven = CellRect(Orientation::portrait, {Panel::lower, KEY_7}).Scaled(2);
    const double ratio = window_->devicePixelRatioF();
    int different = 0;
    for (int y = seven.top; y < seven.bottom; ++y) {
        for (int x = seven.left; x < seven.right; ++x) {
            const QPoint at = QPoint(x, y) * ratio;
            different += std::abs(qGray(shrunk.pixel(at)) - qGray(plain.pixel(at))) > 60;
        }
    }
    EXPECT_LT(different, seven.Width() * seven.Height() / 50);
}

TEST(DrawPicture, ScalesBetweenWholePixelsWhereTheDensitiesDiffer) {
    QImage picture(8, 8, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::black);
    QImage target(20, 20, QImage::Format_RGB32);
    target.fill(Qt::white);
    QPainter painter(&target);
    painter.scale(1.25, 1.25);
    // 1.25 to 11.25 in each direction.
    DrawPicture(painter, QPointF(1, 1), picture, picture.rect());
    // The painter's own coordinates are as before.
    painter.fillRect(QRect(12, 12, 4, 4), Qt::black);
    painter.end();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(qGray(target.pixel(i, i)), (i >= 1 && i < 11) || i >= 15 ? 0 : 255) << i;
    }
}

}  // namespace
}  // namespace quorix
