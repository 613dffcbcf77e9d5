// The main window as a small picture: put together from the strips themselves, far denser than it is shown.
#include <QImage>

#include "frontends/categories.h"
#include "frontends/display_layout.h"
#include "frontends/key_panel.h"
#include "picture.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr int kScale = 4;  // Of the window that is reduced.
constexpr int kPageCells = CELL_FIRST_GENERAL;

constexpr const char* kBodyLines[] = {"color.BoderColor0", "color.BoderColor1"};
constexpr const char* kDisplayLines[] = {"color.BoderColor2", "color.BoderColor3", "color.BoderColor4"};

struct Run {
    std::u16string_view text;
    Rgb color;
};

namespace colors = display_colors;
constexpr Run kLine[] = {
    {u"3", colors::kDegreeToken},      {u"\u221A(", colors::kNameToken},    {u"27", colors::kDigitToken},
    {u")", colors::kParenthesisToken}, {u"\u00D7", colors::kOperatorToken}, {u"sin(", colors::kNameToken},
    {u"30", colors::kDigitToken},      {u")", colors::kParenthesisToken},   {u"+", colors::kOperatorToken},
    {u"[ans]", colors::kNameToken},    {u"\u00F7", colors::kOperatorToken}, {u"7", colors::kDigitToken},
};
constexpr QPointF kLineAt(20, 31);
constexpr double kLineEm = 17;
constexpr QRectF kCursor(200, 33, 10, 2);
constexpr QPointF kResultRightEnd(232.5, 47);
constexpr double kResultEm = 12.5;
constexpr std::u16string_view kResult = u"1.78571428571428571428571428571429";
constexpr QPointF kEqualsAt(7, 48.4);
constexpr double kEqualsEm = 16.5;

struct Mark {
    std::u16string_view text;
    DisplayPart part;
    Rgb color;
};
constexpr Mark kMarks[] = {
    {u"1", DisplayPart::lineNumber, colors::kText},    {u"DEC", DisplayPart::baseMark, colors::kBase},
    {u"DEG", DisplayPart::angleMark, colors::kAngle},  {u"NORM", DisplayPart::formatMark, colors::kFormat},
    {u"M1", DisplayPart::memoryMark, colors::kMemory},
};
constexpr double kMarkEm = 9;
constexpr double kMarkBaseline = 10.6;

QString ToQString(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// Paints in units on a picture of kScale.
class WindowComposer {
  public:
    WindowComposer(QPainter& painter, const Tools& tools) : painter_(painter), tools_(tools) {}

    void Compose() {
        const FrameLayout& layout = LayoutOf(Orientation::portrait);
        Frames(layout.client, kBodyLines, tools_.palette.Color("body"));
        Frames(layout.display, kDisplayLines, QColor::fromRgb(colors::kBackground));
        Display(layout.display);
        Panel(Panel::upper, kUpperCellCount);
        Panel(Panel::lower, kLowerCellCount);
    }

  private:
    /// Lines of a device pixel of scale 2 round a ground.
    void Frames(const Rect& rect, std::span<const char* const> roles, const QColor& ground) {
        constexpr double kDevicePixel = 0.5;
        QRectF area(rect.left, rect.top, rect.Width(), rect.Height());
        for (const char* role : roles) {
            Fill(area, tools_.palette.Color(role));
            area.adjust(kDevicePixel, kDevicePixel, -kDevicePixel, -kDevicePixel);
        }
        Fill(area, ground);
    }

    void Display(const Rect& display) {
        for (const Mark& mark : kMarks) {
            const Rect place = DisplayPartRect(mark.part, 1);
            Text({display.left + place.left + 1.0, display.top + kMarkBaseline}, mark.text, mark.color,
                 Face::kRegular, kMarkEm);
        }
        double x = kLineAt.x();
        for (const Run& run : kLine) {
            x += Text({x, kLineAt.y()}, run.text, run.color, Face::kMedium, kLineEm);
        }
        Fill(kCursor.translated(x - kCursor.x() + 1, 0), QColor::fromRgb(colors::kCursor));
        Text(kEqualsAt, u"=", colors::kText, Face::kBold, kEqualsEm);
        const double width =
            tools_.typeface.Width(ToQString(kResult), Face::kCondensedMedium, kResultEm * kScale, kScale) /
            kScale;
        Text(kResultRightEnd - QPointF(width, 0), kResult, colors::kText, Face::kCondensedMedium, kResultEm);
    }

    void Panel(enum Panel panel, int cells) {
        const bool upper = panel == Panel::upper;
        const QImage caps = Strip(upper ? "SmallButtons" : "LargeButtons");
        const QImage own = Strip(upper ? "SmallFontsArithmetic" : "LargeFonts");
        const QImage general = Strip("SmallFontsGeneral");
        for (int cell = 0; cell < cells; ++cell) {
            const Rect rect = CellRect(Orientation::portrait, {panel, cell});
            const QSize size(rect.Width() * kScale, rect.Height() * kScale);
            painter_.drawImage(QPointF(rect.left, rect.top) * kScale,
                               caps.copy({QPoint(0, CapRowOf({panel, cell}) * size.height()), size}));
            const QImage label = !upper ? Cut(own, 5, 4, cell)
                                 : cell < kPageCells
                                     ? Cut(own, kPageCells, 1, cell)
                                     : Cut(general, kUpperCellCount - kPageCells, 1, cell - kPageCells);
            painter_.drawImage(
                QPointF(rect.left, rect.top) * kScale +
                    QPointF((size.width() - label.width()) / 2, (size.height() - label.height()) / 2),
                label);
        }
    }

    static QImage Cut(const QImage& strip, int columns, int rows, int index) {
        const QSize size(strip.width() / columns, strip.height() / rows);
        return strip.copy({QPoint(index % columns * size.width(), index / columns * size.height()), size});
    }

    [[nodiscard]] QImage Strip(std::string_view key) const {
        const auto strips = SkinStrips();
        const auto found =
            std::find_if(strips.begin(), strips.end(), [&](const auto& strip) { return key == strip.key; });
        return DrawStrip(*found, tools_, kScale);
    }

    double Text(QPointF at, std::u16string_view text, Rgb color, Face face, double em) {
        painter_.setPen(QColor::fromRgb(color));
        tools_.typeface.Draw(painter_, at * kScale, ToQString(text), face, em * kScale, kScale);
        return tools_.typeface.Width(ToQString(text), face, em * kScale, kScale) / kScale;
    }

    void Fill(const QRectF& area, const QColor& color) {
        painter_.fillRect(QRectF(area.topLeft() * kScale, area.size() * kScale), color);
    }

    QPainter& painter_;
    const Tools& tools_;
};

}  // namespace

void DrawSkinPreview(Picture& picture, const Tools& tools) {
    const Rect client = LayoutOf(Orientation::portrait).client;
    QImage window(client.Width() * kScale, client.Height() * kScale, QImage::Format_RGB32);
    {
        QPainter painter(&window);
        painter.setRenderHint(QPainter::Antialiasing);
        WindowComposer(painter, tools).Compose();
    }
    const QImage reduced =
        window.scaled(picture.Image().size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.Paint([&](QPainter& painter) {
        painter.resetTransform();
        painter.drawImage(0, 0, reduced);
    });
}

}  // namespace quorix::art
