#include <optional>

#include "frontends/key_labels.h"
#include "label_layout.h"
#include "strips.h"

namespace quorix::art {

namespace {

constexpr int kColumns = 5;
constexpr int kKeys = 20;
constexpr double kLabelWidth = 41;
constexpr double kMiddle = kLabelWidth / 2;

/// Sizes of one set of pad labels, in units.
struct PadSizes {
    double height;
    double middle;  ///< Where signs and digits are centred.
    double digitEm, digitBaseline;
    double letterEm, letterBaseline;  ///< A letter that stands alone.
    double underEm, underBaseline;    ///< A letter under an orange label.
    double orangeEm, orangeBaseline;
    double sign;         ///< Length of a level bar.
    double underMiddle;  ///< Middle of a sign under an orange label.
};

constexpr PadSizes kPortrait = {34, 16.5, 21, 24, 18, 23, 16, 26.4, 9, 9.5, 14, 19.5};
constexpr PadSizes kSquare = {22, 10.5, 16, 16, 14, 15.4, 11, 18.9, 8, 7.5, 11, 15.5};

constexpr double kStrokePart = 1.0 / 7;  // Of a bar's length: two units on 14.

struct OrangePair {
    int code;
    int orange;
};
constexpr OrangePair kOrangeKeys[] = {{9, 20}, {14, 21}, {19, 22}};

std::optional<int> OrangeOf(int code) {
    for (const OrangePair& pair : kOrangeKeys) {
        if (pair.code == code) {
            return pair.orange;
        }
    }
    return std::nullopt;
}

const char* StyleOf(int code) {
    if (code == 4) {
        return "label.clear";
    }
    return code % kColumns < 3 ? "label.digit" : "label.operator";
}

/// Draws the signs of the pad as round-ended bars of whole pixels about a whole-pixel centre.
class SignPainter {
  public:
    SignPainter(Picture& picture, QPointF centre, double length, const QColor& color)
        : picture_(picture),
          x_(picture.Snap(centre.x())),
          y_(picture.Snap(centre.y())),
          length_(Even(length * picture.Scale())),
          stroke_(Even(length * kStrokePart * picture.Scale())),
          color_(color) {}

    void Draw(char16_t sign) {
        picture_.LayInPixels(color_, [&](QPainter& painter) {
            painter_ = &painter;
            switch (sign) {
                case u'+':
                    Bar(0, length_);
                    Post(0, length_);
                    break;
                case u'\u2212': Bar(0, length_); break;
                case u'=':
                    // The bars of "=" stand five half strokes apart; an odd pixel goes to the upper one.
                    Bar(-(5 * stroke_ + 2) / 4, length_);
                    Bar(5 * stroke_ / 4, length_);
                    break;
                case u'\u00B1':
                    Bar(-stroke_, 5 * length_ / 7);
                    Post(-stroke_, 5 * length_ / 7);
                    Bar(length_ / 2 - stroke_ / 4, 5 * length_ / 7);
                    break;
                case u'\u00F7':
                    Bar(0, length_);
                    Dot(-11 * length_ / 28);
                    Dot(11 * length_ / 28);
                    break;
                case u'.': painter.drawEllipse(QPointF(x_, y_ + 5.0 * stroke_ / 2), stroke_, stroke_); break;
                case u'\u00D7': Cross(); break;
                default: break;
            }
        });
    }

  private:
    static int Even(double pixels) { return std::max(2, 2 * static_cast<int>(std::floor(pixels / 2 + 0.5))); }

    void Bar(int dy, int length) {
        const int half = Even(length) / 2;
        Fill(QRectF(x_ - half, y_ + dy - stroke_ / 2, 2 * half, stroke_));
    }
    void Post(int dy, int length) {
        const int half = Even(length) / 2;
        Fill(QRectF(x_ - stroke_ / 2, y_ + dy - half, stroke_, 2 * half));
    }
    void Fill(const QRectF& bar) { painter_->drawRoundedRect(bar, stroke_ * 0.35, stroke_ * 0.35); }
    void Dot(int dy) {
        const double radius = stroke_ * 0.75;
        painter_->drawEllipse(QPointF(x_, y_ + dy), radius, radius);
    }
    void Cross() {
        const double arm = length_ * 5.0 / 14;
        QPen pen(Qt::white, stroke_, Qt::SolidLine, Qt::RoundCap);
        painter_->setPen(pen);
        painter_->drawLine(QPointF(x_ - arm, y_ - arm), QPointF(x_ + arm, y_ + arm));
        painter_->drawLine(QPointF(x_ - arm, y_ + arm), QPointF(x_ + arm, y_ - arm));
    }

    Picture& picture_;
    QPainter* painter_ = nullptr;
    int x_, y_;
    int length_;
    int stroke_;
    QColor color_;
};

constexpr std::u16string_view kDrawnSigns = u".+\u2212=\u00B1\u00F7\u00D7";

void LayKey(Picture& picture, const Tools& tools, const PadSizes& sizes, int code) {
    const QPointF origin(code % kColumns * kLabelWidth, code / kColumns * sizes.height);
    const QColor color = tools.palette.Color(StyleOf(code));
    const std::u16string_view label = LabelOfKey(code);
    const std::optional<int> orange = OrangeOf(code);
    const auto lay = [&](std::u16string_view markup, double em, double baseline, const QColor& ink) {
        LayLabel(picture, tools.typeface, origin,
                 {.markup = markup, .em = em, .baseline = baseline, .centre = kMiddle}, ink);
    };
    if (orange) {
        lay(LabelOfKey(*orange), sizes.orangeEm, sizes.orangeBaseline, tools.palette.Color("label.orange"));
    }
    if (kDrawnSigns.find(label.front()) != kDrawnSigns.npos) {
        const double middle = orange ? sizes.underMiddle : sizes.middle;
        SignPainter(picture, origin + QPointF(kMiddle, middle), sizes.sign, color).Draw(label.front());
    } else if (orange) {
        lay(label, sizes.underEm, sizes.underBaseline, color);
    } else if (label.front() >= u'0' && label.front() <= u'9') {
        lay(label, sizes.digitEm, sizes.digitBaseline, color);
    } else {
        lay(label, sizes.letterEm, sizes.letterBaseline, color);
    }
}

void DrawPad(Picture& picture, const Tools& tools, const PadSizes& sizes) {
    for (int code = 0; code < kKeys; ++code) {
        LayKey(picture, tools, sizes, code);
    }
}

}  // namespace

void DrawLargeFonts(Picture& picture, const Tools& tools) {
    DrawPad(picture, tools, kPortrait);
}
void DrawLargeFontsSquare(Picture& picture, const Tools& tools) {
    DrawPad(picture, tools, kSquare);
}

}  // namespace quorix::art
