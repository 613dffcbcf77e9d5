#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <functional>

namespace quorix::art {

/// A picture under work: logical units times `scale`, 1 to 4.
///
/// Opaque pictures are painted on directly. Label pictures keep exact colours in every pixel that can be
/// seen: a mark is painted as a mask of coverage, and the mask is laid on in one colour.
class Picture {
  public:
    /// `width` and `height` in units. Every pixel starts as `ground`, which may be transparent.
    Picture(int width, int height, int scale, const QColor& ground);

    [[nodiscard]] int Scale() const { return scale_; }
    [[nodiscard]] const QImage& Image() const { return image_; }

    /// Paints on the picture itself, in units.
    void Paint(const std::function<void(QPainter&)>& paint);

    /// Lays `color` on wherever `paint`, painting in white and in units, leaves a mark.
    void Lay(const QColor& color, const std::function<void(QPainter&)>& paint);

    /// The same with a painter in device pixels, for what is placed by whole pixels.
    void LayInPixels(const QColor& color, const std::function<void(QPainter&)>& paint);

    /// The nearest whole device pixel to a position in units, in device pixels.
    [[nodiscard]] int Snap(double units) const;
    /// A stroke of `units` in whole device pixels, at least one.
    [[nodiscard]] int Stroke(double units) const;

    /// Gives every pixel that cannot be seen the colour `color` with alpha 0, and moves visible pixels of
    /// exactly that colour one step away from it, so that drawing by alpha and by transparent colour agree.
    void FinishTransparency(const QColor& color);

  private:
    QImage image_;  ///< Straight alpha.
    int scale_;
};

}  // namespace quorix::art
