#include "signs.h"

#include <cmath>
#include <string_view>

namespace quorix::art {

namespace {

constexpr std::u16string_view kDrawnSigns = u".+\u2212=\u00B1\u00F7\u00D7";
constexpr double kStrokePart = 1.0 / 7;  // Of a bar's length: two units on 14.

/// Draws signs as round-ended bars of whole pixels about a whole-pixel centre.
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

}  // namespace

bool IsDrawnSign(char16_t sign) {
    return kDrawnSigns.find(sign) != kDrawnSigns.npos;
}

void LaySign(Picture& picture, QPointF centre, double length, const QColor& color, char16_t sign) {
    SignPainter(picture, centre, length, color).Draw(sign);
}

}  // namespace quorix::art
