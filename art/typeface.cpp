#include "typeface.h"

#include <QFile>
#include <QGlyphRun>
#include <QRawFont>
#include <cmath>
#include <stdexcept>
#include <tuple>

namespace quorix::art {

namespace {

struct FaceFile {
    Face face;
    const char* name;
};

constexpr FaceFile kFaceFiles[] = {
    {Face::kRegular, "RobotoTTF/Roboto-Regular.ttf"},
    {Face::kMedium, "RobotoTTF/Roboto-Medium.ttf"},
    {Face::kBold, "RobotoTTF/Roboto-Bold.ttf"},
    {Face::kCondensedMedium, "RobotoCondensed-Medium.ttf"},
};

constexpr double kKeySteps = 64.0;  // Sizes are told apart to 1/64 pixel.

}  // namespace

Typeface::Typeface(const QString& folder) {
    for (const FaceFile& entry : kFaceFiles) {
        QFile file(folder + "/" + entry.name);
        if (!file.open(QIODevice::ReadOnly)) {
            throw std::runtime_error("cannot read font " + file.fileName().toStdString());
        }
        files_[entry.face] = file.readAll();
    }
}

Typeface::~Typeface() = default;

const QRawFont& Typeface::Font(Face face, double em, int scale) const {
    auto& slot = fonts_[{face, static_cast<int>(std::lround(em * kKeySteps)), scale}];
    if (!slot) {
        slot = std::make_unique<QRawFont>(files_.at(face), em,
                                          scale == 1 ? QFont::PreferVerticalHinting : QFont::PreferNoHinting);
        if (!slot->isValid()) {
            throw std::runtime_error("font file is not usable");
        }
    }
    return *slot;
}

double Typeface::Width(const QString& text, Face face, double em, int scale, double spacing) const {
    const QRawFont& font = Font(face, em, scale);
    double width = 0;
    for (const QPointF& advance : font.advancesForGlyphIndexes(font.glyphIndexesForString(text))) {
        width += advance.x() + spacing;
    }
    return text.isEmpty() ? 0 : width - spacing;
}

void Typeface::Draw(QPainter& painter, QPointF baseline, const QString& text, Face face, double em, int scale,
                    double spacing) const {
    const QRawFont& font = Font(face, em, scale);
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    QList<QPointF> positions;
    double x = 0;
    for (const QPointF& advance : font.advancesForGlyphIndexes(glyphs)) {
        positions << QPointF(x, 0);
        x += advance.x() + spacing;
    }
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    painter.drawGlyphRun(baseline, run);
}

}  // namespace quorix::art
