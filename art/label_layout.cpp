#include "label_layout.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace quorix::art {

namespace {

constexpr char16_t kRaise = u'^';
constexpr char16_t kRoot = u'\u221A';

constexpr double kPowerSize = 0.68;
constexpr double kPowerRise = 0.36;
constexpr double kDegreeSize = 0.66;
constexpr double kDegreeRise = 0.40;

// The root sign, in ems from its left end and from the base line.
constexpr double kRootWidth = 0.50;
constexpr double kRootTop = 0.86;
constexpr double kRootOverhang = 0.06;
constexpr double kDegreeOverlap = 0.08;
constexpr double kBarWeight = 0.1;
constexpr double kSignWeight = 0.09;

struct Run {
    QString text;
    double em;    ///< Device pixels.
    double x;     ///< From the label's left end, device pixels.
    double rise;  ///< Above the base line, device pixels.
};

struct Layout {
    std::vector<Run> runs;
    double width = 0;
    double rootAt = -1;  ///< Left end of a root sign, or -1.
};

/// Places the parts of a label one after the other.
class Setter {
  public:
    Setter(const Picture& picture, const Typeface& typeface, const LabelText& label, Face face)
        : typeface_(typeface),
          label_(label),
          face_(face),
          scale_(picture.Scale()),
          em_(label.em * picture.Scale()) {}

    Layout Set() {
        std::u16string_view markup = label_.markup;
        if (const std::size_t root = markup.find(kRoot); root != markup.npos) {
            if (root > 0) {
                Add(markup.substr(0, root), kDegreeSize * em_, kDegreeRise * em_);
                layout_.width -= kDegreeOverlap * em_;
            }
            layout_.rootAt = layout_.width;
            layout_.width += kRootWidth * em_;
            Add(markup.substr(root + 1), em_, 0);
            layout_.width += kRootOverhang * em_;
            return layout_;
        }
        const std::size_t raise = markup.find(kRaise);
        Add(markup.substr(0, raise), em_, 0);
        if (raise != markup.npos) {
            Add(markup.substr(raise + 1), kPowerSize * em_, kPowerRise * em_);
        }
        return layout_;
    }

  private:
    void Add(std::u16string_view text, double em, double rise) {
        const QString run = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
        layout_.runs.push_back({run, em, layout_.width, rise});
        layout_.width += typeface_.Width(run, face_, em, scale_, label_.spacing * scale_);
    }

    const Typeface& typeface_;
    const LabelText& label_;
    Face face_;
    int scale_;
    double em_;
    Layout layout_;
};

void LayRoot(Picture& picture, QPointF foot, double width, double em, const QColor& color) {
    const double stroke = std::max(1.0, std::floor(kBarWeight * em + 0.5));
    const double half = std::fmod(stroke, 2.0) / 2;
    const double bar = std::floor(foot.y() - kRootTop * em - half + 0.5) + half;
    QPainterPath sign;
    sign.moveTo(foot.x() + 0.02 * em, foot.y() - 0.34 * em);
    sign.lineTo(foot.x() + 0.13 * em, foot.y() - 0.40 * em);
    sign.lineTo(foot.x() + 0.27 * em, foot.y() - 0.02 * em);
    sign.lineTo(foot.x() + 0.46 * em, bar);
    picture.LayInPixels(color, [&](QPainter& painter) {
        painter.strokePath(sign,
                           QPen(Qt::white, kSignWeight * em, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.drawRect(QRectF(foot.x() + 0.44 * em, bar - stroke / 2, width - 0.44 * em, stroke));
    });
}

}  // namespace

void LayLabel(Picture& picture, const Typeface& typeface, QPointF origin, const LabelText& label,
              const QColor& color) {
    Face face = label.face;
    Layout layout = Setter(picture, typeface, label, face).Set();
    if (label.maxWidth > 0 && layout.width > label.maxWidth * picture.Scale()) {
        face = Face::kCondensedMedium;
        layout = Setter(picture, typeface, label, face).Set();
    }
    const double left = (origin.x() + label.centre) * picture.Scale() - layout.width / 2;
    const double baseline = picture.Snap(origin.y() + label.baseline);
    picture.LayInPixels(color, [&](QPainter& painter) {
        painter.setPen(Qt::white);
        for (const Run& run : layout.runs) {
            typeface.Draw(painter, {left + run.x, baseline - std::floor(run.rise + 0.5)}, run.text, face,
                          run.em, picture.Scale(), label.spacing * picture.Scale());
        }
    });
    if (layout.rootAt >= 0) {
        LayRoot(picture, {left + layout.rootAt, baseline}, layout.width - layout.rootAt,
                label.em * picture.Scale(), color);
    }
}

}  // namespace quorix::art
