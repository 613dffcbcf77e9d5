#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>
#include <map>
#include <memory>

class QRawFont;

namespace quorix::art {

enum class Face { kRegular, kMedium, kBold, kCondensedMedium };

/// The font files of the art, set by glyph without any font database, so that nothing depends on what a
/// system has installed.
class Typeface {
  public:
    /// `folder` holds RobotoTTF/ and RobotoCondensed-*.ttf. Throws std::runtime_error for a missing file.
    explicit Typeface(const QString& folder);
    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    /// Width of `text` in device pixels; `em` and `spacing` (after every sign but the last) in device pixels.
    /// Scale 1 is hinted vertically, the others not at all.
    double Width(const QString& text, Face face, double em, int scale, double spacing = 0) const;
    /// Sets `text` from `baseline` on, in device pixels, in the painter's pen.
    void Draw(QPainter& painter, QPointF baseline, const QString& text, Face face, double em, int scale,
              double spacing = 0) const;

  private:
    const QRawFont& Font(Face face, double em, int scale) const;

    std::map<Face, QByteArray> files_;
    mutable std::map<std::tuple<Face, int, int>, std::unique_ptr<QRawFont>> fonts_;
};

}  // namespace quorix::art
