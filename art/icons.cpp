#include "icons.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quorix::art {

namespace {

/// Reads one stroke's path in grid units and builds it in device pixels.
class PathReader {
  public:
    PathReader(const char* text, QPointF origin, double pixelsPerUnit, double stroke, bool level)
        : text_(text), origin_(origin), step_(pixelsPerUnit), level_(level) {
        // A stroke of an odd number of pixels is crisp round a pixel's middle, an even one round its edge.
        half_ = std::lround(stroke) % 2 != 0 ? 0.5 : 0.0;
    }

    void Read() {
        char command = 0;
        while (text_ >> command) {
            Step(command);
        }
    }

    [[nodiscard]] const QPainterPath& Lines() const { return lines_; }
    [[nodiscard]] const QPainterPath& Dots() const { return dots_; }

  private:
    void Step(char command) {
        switch (command) {
            case 'M': lines_.moveTo(PointOnGrid()); break;
            case 'L': lines_.lineTo(PointOnGrid()); break;
            case 'H':
                lines_.lineTo(OnGrid(Number() * step_ + origin_.x()), lines_.currentPosition().y());
                break;
            case 'V':
                lines_.lineTo(lines_.currentPosition().x(), OnGrid(Number() * step_ + origin_.y()));
                break;
            case 'Q': {
                const QPointF control = PointOnGrid();
                lines_.quadTo(control, PointOnGrid());
                break;
            }
            case 'C': {
                const QPointF first = FreePoint();
                const QPointF second = FreePoint();
                lines_.cubicTo(first, second, PointOnGrid());
                break;
            }
            case 'Z': lines_.closeSubpath(); break;
            case 'E': Ellipse(); break;
            case 'O': {
                const QPointF centre = FreePoint();
                const double radius = Number() * step_;
                dots_.addEllipse(centre, radius, radius);
                break;
            }
            default: throw std::runtime_error(std::string("icon path has an unknown step ") + command);
        }
    }

    void Ellipse() {
        const QPointF centre = FreePoint();
        const double rx = Number() * step_;
        const double ry = Number() * step_;
        const double start = Number();
        const double span = Number();
        // The box is moved to the grid by its edges, so that sides drawn on from it stay upright.
        const QPointF topLeft(OnGrid(centre.x() - rx), OnGrid(centre.y() - ry));
        const QPointF bottomRight(OnGrid(centre.x() + rx), OnGrid(centre.y() + ry));
        const QRectF box(topLeft, bottomRight);
        lines_.arcMoveTo(box, start);
        lines_.arcTo(box, start, span);
    }

    double Number() {
        double value = 0;
        if (!(text_ >> value)) {
            throw std::runtime_error("icon path ends early");
        }
        return value;
    }
    QPointF FreePoint() {
        const double x = Number();
        return QPointF(x, Number()) * step_ + origin_;
    }
    QPointF PointOnGrid() {
        const QPointF point = FreePoint();
        return {OnGrid(point.x()), OnGrid(point.y())};
    }
    [[nodiscard]] double OnGrid(double pixels) const {
        return level_ ? std::floor(pixels - half_ + 0.5) + half_ : pixels;
    }

    std::istringstream text_;
    QPointF origin_;
    double step_;
    bool level_;
    double half_;
    QPainterPath lines_;
    QPainterPath dots_;
};

}  // namespace

void LayIcon(Picture& picture, QPointF origin, std::span<const IconStroke> icon, double grid, double size,
             const IconColors& colors, double weight) {
    const double step = size / grid * picture.Scale();
    const QPointF corner(picture.Snap(origin.x()), picture.Snap(origin.y()));
    for (const IconStroke& stroke : icon) {
        const bool level = std::string_view(stroke.path).find_first_of("HVE") != std::string_view::npos;
        const double natural = stroke.width * weight * step;
        const double width = level ? std::max(1.0, std::floor(natural + 0.5)) : natural;
        PathReader reader(stroke.path, corner, step, width, level);
        reader.Read();
        picture.LayInPixels(stroke.ink == Ink::kMain ? colors.main : colors.accent, [&](QPainter& painter) {
            painter.drawPath(reader.Dots());
            painter.strokePath(reader.Lines(),
                               QPen(Qt::white, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        });
    }
}

}  // namespace quorix::art
