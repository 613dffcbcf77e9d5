#pragma once

// The one font helper: every text of the program is set in faces that ship with it.

#include <QFont>
#include <QStringView>
#include <filesystem>

namespace quorix {

inline constexpr int kRegularWeight = 400;
inline constexpr int kMediumWeight = 500;
inline constexpr int kBoldWeight = 700;

/// Name under which the tables of the interface ask for the program's own face.
inline constexpr QStringView kInterfaceFace = u"Tahoma";

/// What a text is set in; `em` is in logical units.
struct TextFont {
    double em = 12;
    int weight = kMediumWeight;
    bool condensed = false;
    QStringView face = kInterfaceFace;
};

/// Loads the font files of `folder` (flat, "Roboto-Regular.ttf" and so on); once per process, before the
/// first text. False when one of them is missing: texts are then set in what the system has.
bool LoadShippedFonts(const std::filesystem::path& folder);

/// The font at a scale: `em` times `scale` in whole pixels, rounded down but never below 1. Grey
/// anti-aliasing only; no hinting at scale 2, vertical hinting at 1. "Tahoma" and unknown names fall back
/// over "Roboto", "Noto Sans" and "DejaVu Sans". Kerning is off, so that a text is as wide as its signs.
QFont ScreenFont(const TextFont& text, int scale);

/// The font of dialogs and message boxes beside a window whose logical units are this many desktop points;
/// never too small to read.
QFont FormFont(double pixelsPerUnit);

}  // namespace quorix
