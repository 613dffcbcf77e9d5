#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "frontends/result_fit.h"
#include "frontends/token_colors.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"
#include "windows/pixels.h"
#include "windows/screen_rig.h"

namespace quorix {
namespace {

using testing::CountOf;
using testing::ForEachPixel;
using testing::KeepScreenshot;
using testing::kLandscape2;
using testing::kPortrait1;
using testing::kPortrait2;
using testing::ScreenRig;

QRect PixelsOf(const Rect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

QImage Part(const QImage& picture, const Rect& rect) {
    return picture.copy(PixelsOf(rect));
}

/// Pixels that show some of a text colour: at least a third of the way from the display's background to it.
int TintOf(const QImage& picture, QRgb color) {
    const QColor ground = QColor::fromRgb(display_colors::kBackground);
    const int way[] = {qRed(color) - ground.red(), qGreen(color) - ground.green(),
                       qBlue(color) - ground.blue()};
    const double length = way[0] * way[0] + way[1] * way[1] + way[2] * way[2];
    int count = 0;
    ForEachPixel(picture, [&](QRgb pixel, int, int) {
        const int gone[] = {qRed(pixel) - ground.red(), qGreen(pixel) - ground.green(),
                            qBlue(pixel) - ground.blue()};
        const double part = (gone[0] * way[0] + gone[1] * way[1] + gone[2] * way[2]) / length;
        double off = 0;
        for (int i = 0; i < 3; ++i) {
            off = std::max(off, std::abs(gone[i] - part * way[i]));
        }
        count += part > 0.33 && off < 24;
    });
    return count;
}

/// The result row below the cursor, which reaches into it.
Rect ResultBelowCursor(int scale) {
    Rect row = DisplayPartRect(DisplayPart::resultRow, scale);
    row.top = DisplayPartRect(DisplayPart::textRow, scale).bottom;
    return row;
}

/// The smallest rectangle round the pixels that are clearly not the background.
QRect InkOf(const QImage& picture) {
    QRect ink;
    ForEachPixel(picture, [&](QRgb pixel, int x, int y) {
        if (qGray(pixel) < 160) {
            ink |= QRect(x, y, 1, 1);
        }
    });
    return ink;
}

struct Grays {
    int darkest = 255;
    int lightest = 0;
    double mean = 0;
};

Grays GraysOf(const QImage& picture) {
    Grays grays;
    ForEachPixel(picture, [&](QRgb pixel, int, int) {
        grays.darkest = std::min(grays.darkest, qGray(pixel));
        grays.lightest = std::max(grays.lightest, qGray(pixel));
        grays.mean += static_cast<double>(qGray(pixel)) / picture.width() / picture.height();
    });
    return grays;
}

TEST(Screens, ShowTheWholePanelsInEveryOrientationAndSkin) {
    const struct {
        const char* name;
        DeviceScreen screen;
        const char16_t* skin;
        int category;
        const char* script;
    } rows[] = {
        {"arithmetic-default", kPortrait2, u"default.inf", 0, "#42 27)*#54 30)+a/7"},
        {"arithmetic-default-1", kPortrait1, u"default.inf", 0, "#42 27)*#54 30)+a/7"},
        {"arithmetic-black", kPortrait2, u"Black Skin.inf", 0, "1/3="},
        {"trigonometry", kPortrait2, u"default.inf", 1, "#143 2*#54 p/6)+#52 0)="},
        {"base", kPortrait2, u"default.inf", 2, "#148 #139 A5 #69 3C #70 F0 ="},
        {"landscape", kLandscape2, u"default.inf", 0, "123456789012345678(1+2i)^2-5#40 32)/2s"},
        {"square", DeviceScreen{480, 480}, u"default.inf", 0, "1+2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ScreenRig rig(row.screen, row.skin);
        ASSERT_TRUE(rig.loaded);
        rig.calculator.Enter(row.category);
        rig.calculator.Type(row.script);
        const QImage picture = rig.Paint();
        KeepScreenshot(picture, row.name);

        const Orientation orientation = OrientationOf(row.screen);
        const int scale = row.screen.Scale();
        const QRgb body = picture.pixel(2, 2);
        for (const auto& [panel, count] :
             {std::pair{Panel::upper, kUpperCellCount}, {Panel::lower, kLowerCellCount}}) {
            for (int i = 0; i < count; ++i) {
                const Rect cell = CellRect(orientation, {panel, i}).Scaled(scale);
                const QImage key = Part(picture, cell);
                EXPECT_EQ(key.pixel(0, 0), body) << i;
                // A label stands out in the middle of every key.
                const QImage middle =
                    key.copy(key.width() / 6, key.height() / 6, key.width() * 2 / 3, key.height() * 2 / 3);
                const Grays grays = GraysOf(middle);
                EXPECT_GT(grays.lightest - grays.darkest, 80) << i;
            }
        }
    }
}

TEST(PanelPainter, APressedKeyIsSeenWithoutColour) {
    const std::pair<DeviceScreen, const char16_t*> screens[] = {{kPortrait2, u"default.inf"},
                                                                {kPortrait1, u"default.inf"},
                                                                {kLandscape2, u"default.inf"},
                                                                {kPortrait2, u"Black Skin.inf"}};
    for (const auto& [screen, skin] : screens) {
        ScreenRig rig(screen, skin);
        const QImage up = rig.Paint();
        const Orientation orientation = OrientationOf(screen);
        for (const PanelCell cell :
             {PanelCell{Panel::upper, 8}, {Panel::lower, KEY_7}, {Panel::lower, KEY_CLEAR}}) {
            rig.looks.Press(cell);
            const QImage down = rig.Paint();
            const Rect place = CellRect(orientation, cell).Scaled(screen.Scale());
            EXPECT_LT(GraysOf(Part(down, place)).mean, GraysOf(Part(up, place)).mean * 0.96);
            QImage rest = down;
            QPainter(&rest).drawImage(place.left, place.top, Part(up, place));
            EXPECT_EQ(rest, up);
            rig.looks.Release();
        }
    }
}

TEST(PanelPainter, APressedLabelStandsTwoUnitsLower) {
    ScreenRig rig(kPortrait2);
    const PanelCell seven{Panel::lower, KEY_7};
    const Rect place = CellRect(Orientation::portrait, seven).Scaled(2).Inset(12);
    const QRect up = InkOf(Part(rig.Paint(), place));
    rig.looks.Press(seven);
    EXPECT_EQ(InkOf(Part(rig.Paint(), place)), up.translated(0, 4));
}

TEST(StretchCap, KeepsCornersAndSpreadsTheMiddle) {
    QImage cap(40, 30, QImage::Format_ARGB32_Premultiplied);
    cap.fill(Qt::red);
    for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 29), QPoint(39, 29)}) {
        cap.setPixelColor(corner, Qt::blue);
    }
    for (const QSize size : {QSize(80, 30), QSize(40, 22), QSize(35, 50)}) {
        const QImage stretched = StretchCap(cap, size, 8);
        ASSERT_EQ(stretched.size(), size);
        EXPECT_EQ(CountOf(stretched, 0x0000FF), 4);
        EXPECT_EQ(CountOf(stretched, 0xFF0000), size.width() * size.height() - 4);
        EXPECT_EQ(stretched.pixelColor(size.width() - 1, size.height() - 1), QColor(Qt::blue));
    }
    EXPECT_EQ(StretchCap(cap, QSize(10, 10), 8).size(), QSize(10, 10));
}

TEST(LedPainter, AMarkIsDrawnInItsColourWithinItsRectangleWhenItsFlagIsOn) {
    const struct {
        int category;
        const char* script;
        DisplayPart part;
        QRgb color;
        bool shown;
    } rows[] = {
        {0, "", DisplayPart::baseMark, display_colors::kBase, true},
        {4, "", DisplayPart::baseMark, display_colors::kBase, false},
        {0, "", DisplayPart::angleMark, display_colors::kAngle, true},
        {2, "", DisplayPart::angleMark, display_colors::kAngle, false},
        {2, "#140", DisplayPart::wordSizeMark, display_colors::kWordSize, true},
        {0, "s", DisplayPart::shiftMark, display_colors::kShift, true},
        {0, "", DisplayPart::shiftMark, display_colors::kShift, false},
        {0, "#136", DisplayPart::formatMark, display_colors::kFormat, true},
        {0, "#130", DisplayPart::memoryMark, display_colors::kMemory, true},
    };
    for (const DeviceScreen screen : {kPortrait1, kPortrait2}) {
        for (const auto& row : rows) {
            ScreenRig rig(screen);
            rig.calculator.Enter(row.category);
            rig.calculator.Type(row.script);
            const QImage picture = rig.PaintDisplay();
            const Rect place = DisplayPartRect(row.part, screen.Scale());
            const int inside = TintOf(Part(picture, place), row.color);
            EXPECT_EQ(inside > 0, row.shown) << row.category << row.script;
            // The text rows have no such colour in an empty line, so all of it is the mark's own.
            const Rect status{0, 0, picture.width(),
                              DisplayPartRect(DisplayPart::textRow, screen.Scale()).top};
            if (row.color != display_colors::kAngle) {
                EXPECT_EQ(TintOf(Part(picture, status), row.color), inside) << row.category << row.script;
            }
        }
    }
}

TEST(LedPainter, TokenWidthsAreThoseOfTheirSigns) {
    ScreenRig rig(kPortrait2);
    const auto widths = rig.led.MeasureTokens(u"sin(12)", u"4111", 2);
    ASSERT_EQ(widths.size(), 4U);
    EXPECT_EQ(widths[1], widths[2]);  // digits of equal width
    EXPECT_GT(widths[0], 2 * widths[1]);
    const auto halves = rig.led.MeasureTokens(u"sin(12)", u"4111", 1);
    EXPECT_NEAR(halves[0] * 2, widths[0], 2);
    EXPECT_EQ(rig.led.MeasureTokens(u"sin(12)", u"4111", 2), widths);
}

TEST(LedPainter, ALongResultIsNarrowedBeforeItLosesDigits) {
    ScreenRig rig(kPortrait2);
    const Rect row = ResultBelowCursor(2);
    const auto ink = [&](std::u16string_view text) {
        rig.calculator.display->SetResultText(text);
        const QImage picture = rig.PaintDisplay();
        // Nothing is drawn left of the row.
        EXPECT_TRUE(InkOf(Part(picture, {6, row.top, row.left, row.bottom})).isEmpty());
        return InkOf(Part(picture, row));
    };
    const std::u16string wide = u"1." + std::u16string(22, u'8');
    EXPECT_GT(ink(wide).height(), ink(wide + u"8888").height());
    // A full result of 32 decimals is shown uncut; more digits than fit are cut from the end.
    const QRect full = ink(u"1." + std::u16string(32, u'8'));
    EXPECT_NEAR(ink(u"1." + std::u16string(40, u'8')).width(), full.width(), 14);
    EXPECT_LE(ink(u"1." + std::u16string(60, u'8') + u"E-100").width(), row.Width());
}

TEST(LedPainter, TheEuropeanDecimalSignHasTheGlyphOfAComma) {
    ScreenRig rig(kPortrait2);
    rig.calculator.display->SetResultText(u"1.234\u00B85");
    const QImage sign = rig.PaintDisplay();
    rig.calculator.display->SetResultText(u"1.234,5");
    EXPECT_EQ(rig.PaintDisplay(), sign);
}

TEST(LedPainter, A32BitBinaryResultIsSmaller) {
    ScreenRig rig(kPortrait2);
    rig.calculator.Enter(2);
    rig.calculator.Type("#145 #140");
    rig.calculator.display->SetResultText(std::u16string(32, u'1'));
    const Rect row = ResultBelowCursor(2);
    const QRect small = InkOf(Part(rig.PaintDisplay(), row));
    rig.calculator.display->SetResultText(u"Error 1");
    EXPECT_LT(small.height(), InkOf(Part(rig.PaintDisplay(), row)).height());
    EXPECT_LT(small.width(), row.Width());
}

TEST(LedPainter, ALineTooLongForItsRowIsScrolledAndShowsItsArrow) {
    ScreenRig rig(kPortrait2);
    for (int i = 0; i < 40; ++i) {
        rig.calculator.Type("8");
    }
    const QImage end = rig.PaintDisplay();
    const auto arrow = [&](const QImage& picture, DisplayPart part) {
        return CountOf(Part(picture, DisplayPartRect(part, 2)), display_colors::kArrow) > 0;
    };
    EXPECT_TRUE(arrow(end, DisplayPart::leftArrow));
    EXPECT_FALSE(arrow(end, DisplayPart::rightArrow));
    for (int i = 0; i < 40; ++i) {
        rig.calculator.Type("<");
    }
    const QImage start = rig.PaintDisplay();
    EXPECT_FALSE(arrow(start, DisplayPart::leftArrow));
    EXPECT_TRUE(arrow(start, DisplayPart::rightArrow));
}

TEST(ScreenFont, IsTheShippedFaceInWholePixels) {
    EXPECT_EQ(QFontInfo(ScreenFont({.em = 12}, 2)).family(), "Roboto");
    EXPECT_EQ(QFontInfo(ScreenFont({.em = 12, .condensed = true}, 2)).family(), "Roboto Condensed");
    EXPECT_EQ(ScreenFont({.em = 12.5}, 1).pixelSize(), 12);
    EXPECT_EQ(ScreenFont({.em = 12.5}, 2).pixelSize(), 25);
    for (const int weight : {kRegularWeight, kMediumWeight, kBoldWeight}) {
        EXPECT_EQ(QFontInfo(ScreenFont({.em = 12, .weight = weight}, 2)).weight(), weight);
    }
}

}  // namespace
}  // namespace quorix
