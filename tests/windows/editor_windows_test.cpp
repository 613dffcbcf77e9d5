#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>

#include "frontends/hint_wnd.h"
#include "frontends/led_wnd.h"
#include "frontends/morvane_cal_edit_wnd.h"
#include "frontends/type_ahead_wnd.h"
#include "platform/qt/pictures.h"
#include "windows/pixels.h"
#include "windows/pointer.h"
#include "windows/screen_rig.h"

namespace quorix {
namespace {

using testing::CalculatorRig;
using testing::CountOf;
using testing::KeepScreenshot;
using testing::Tap;

constexpr int kScale = 2;
constexpr Rect kClient{0, 0, 480, 588};
constexpr Rect kLed{6, 6, 474, 104};
constexpr ColorRef kBorder = MakeColor(10, 120, 30);

class FrameStub : public WindowBase {
  public:
    FrameStub() {
        SetPlace(kClient);
        Handle(kCalEditTapped, [this](MessageParam first, MessageParam) {
            tapped.push_back(first);
            return MessageParam{0};
        });
    }
    std::vector<MessageParam> tapped;

  protected:
    void Paint(QPainter& painter, const Rect&) override { painter.fillRect(0, 0, 480, 588, Qt::darkGray); }
};

bool Press(QWidget& window, int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&window, &event);
    return event.isAccepted();
}

TEST(MorvaneCalEditWnd, TapsKeysAndLooks) {
    FrameStub frame;
    CalculatorSettings settings;
    MorvaneCalEditWnd box(&frame, 1004, settings);
    box.SetPlace({20, 200, 220, 246});
    box.SetBorderColour(kBorder);
    const QColor resting(0xD0, 0xD0, 0xF0);
    const QColor field(0xF5, 0xF5, 0xF5);
    QImage picture = box.grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 20), ToQColor(kBorder));
    EXPECT_EQ(picture.pixelColor(1, 1), resting);
    EXPECT_FALSE(Press(box, Qt::Key_5, "5"));  // without the keyboard

    Tap(box, {50, 20});
    EXPECT_EQ(frame.tapped,
              (std::vector<WindowBase::MessageParam>{reinterpret_cast<WindowBase::MessageParam>(&box)}));
    for (const QChar c : QStringLiteral("1234567890*(1+2)/3-4")) {
        EXPECT_TRUE(Press(box, 0, QString(c)));
    }
    EXPECT_FALSE(Press(box, Qt::Key_Return, "\r"));
    picture = box.grab().toImage();
    KeepScreenshot(picture, "box");
    EXPECT_EQ(picture.pixelColor(198, 1), field);
    EXPECT_GT(box.Edit().Line().FirstVisible(), 0);
    EXPECT_EQ(box.SpokenText(), QStringLiteral("1234567890×(1+2)÷3−4"));
    EXPECT_EQ(CountOf(picture, display_colors::kCursor), kCalEditCursorRoom * kScale * 2 * kScale);
    box.SetPlace({20, 200, 460, 246});
    box.grab();
    EXPECT_EQ(box.Edit().Line().FirstVisible(), 0);

    Press(box, Qt::Key_Z, {}, Qt::ControlModifier);
    Press(box, Qt::Key_Backspace, "\b");
    EXPECT_EQ(box.Edit().GetLine(), u"1234567890×(1+2)÷3");
    Press(box, Qt::Key_Z, {}, Qt::ControlModifier);
    EXPECT_EQ(box.Edit().GetLine(), u"1234567890×(1+2)÷3−");
}

TEST(LedWnd, TellsWhereTheCursorIs) {
    FrameStub frame;
    LedWnd led(&frame);
    led.SetPlace(kLed);
    CalculatorRig rig;
    led.SetDisplay(rig.display.get(), 300);
    for (const char* keys : {"1#54 2", "<", "3333333333333333333333333", "<<<<<<<<<<<<<<<<<<<<<<<<<<<"}) {
        rig.Type(keys);
        const Rect cursor = led.CursorRect();
        led.InvalidateAll();
        const QImage picture = frame.grab().toImage();
        const QImage bar = picture.copy(cursor.left, cursor.top, cursor.Width(), cursor.Height());
        EXPECT_EQ(CountOf(bar, display_colors::kCursor), cursor.Width() * cursor.Height());
        const Rect row = DisplayPartRect(DisplayPart::textRow, kScale);
        const QImage line = led.grab().toImage().copy(0, row.top, kLed.Width(), row.Height());
        EXPECT_EQ(CountOf(line, display_colors::kCursor), cursor.Width() * cursor.Height()) << keys;
    }
    led.Copy(true);
    rig.Type("c");
    Tap(led, {100, 50}, Qt::MiddleButton);
    EXPECT_EQ(ToUtf8(rig.display->GetLine()).substr(0, 4), "1sin");
    rig.Type("c1+1=");
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&led);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->text(QAccessible::Value), QStringLiteral("1+1 = 2"));
}

TEST(HintWnd, EveryHintStaysInTheFrameAndOffTheLine) {
    for (const int scale : {1, 2}) {
        FrameStub frame;
        frame.SetScale(scale);
        HintWnd hint(&frame);
        const Rect bounds{0, 0, 240 * scale, 294 * scale};
        std::vector<FunctionHint> hints;
        for (const std::u16string_view row : FunctionHints()) {
            hints.push_back({std::u16string(row), static_cast<int>(hints.size() % 3)});
        }
        hints.push_back({u"f(" + std::u16string(30, u'w') + u", " + std::u16string(30, u'w') + u")", 1});
        for (const FunctionHint& row : hints) {
            for (const int left : {0, 100, 230}) {
                for (const int bottom : {35, 290}) {
                    const Rect cursor{left * scale, (bottom - 2) * scale, (left + 10) * scale,
                                      bottom * scale};
                    hint.ShowHint(row, cursor, bounds);
                    const Rect place = hint.Place();
                    EXPECT_TRUE(place.left >= 0 && place.right <= bounds.right && place.top >= 0 &&
                                place.bottom <= bounds.bottom)
                        << ToUtf8(row.text);
                    EXPECT_TRUE(place.top >= cursor.bottom || place.bottom <= cursor.bottom - 20 * scale);
                }
            }
        }
        hint.ShowHint({u"pmt(rate, nper, pv, fv, p/y, type=0)", 2}, {100, 60, 120, 64}, bounds);
        frame.show();
        KeepScreenshot(frame.grab().toImage(), "hint" + std::to_string(scale));
    }
}

TEST(TypeAheadWnd, FollowsTheListAndTakesTaps) {
    FrameStub frame;
    frame.show();
    CalculatorRig rig;
    LedWnd led(&frame);
    led.SetPlace(kLed);
    led.SetDisplay(rig.display.get(), 300);
    led.show();
    TypeAheadWnd* window = nullptr;
    TypeAhead list(*rig.display, [&] { window->Follow(led.CursorRect(), kClient); });
    TypeAheadWnd listWindow(&frame, list);
    window = &listWindow;
    list.HandleCharacter(u's');
    EXPECT_TRUE(listWindow.isVisible());
    EXPECT_GE(listWindow.Place().top, led.CursorRect().bottom);
    for (std::size_t i = 0; i + 1 < list.Candidates().size(); ++i) {
        list.HandleKey(TypeAheadKey::down);
    }
    EXPECT_GT(listWindow.FirstShown(), 0);
    KeepScreenshot(frame.grab().toImage(), "list");
    list.HandleKey(TypeAheadKey::down);
    EXPECT_EQ(listWindow.FirstShown(), 0);
    const std::u16string second(list.Candidates()[1].name);
    Tap(listWindow, {30, 2 * kScale + 17 * kScale * 1.5});
    EXPECT_FALSE(listWindow.isVisible());
    EXPECT_TRUE(rig.display->GetLine().starts_with(second)) << rig.Row();
}

}  // namespace
}  // namespace quorix
