#pragma once

// Which device screen the desktop shows and how large: the platform's own choice, apart from the preferences.

#include <QPoint>
#include <filesystem>
#include <optional>

#include "platform/screen.h"

namespace quorix {

enum class ViewShape { portrait, landscape, square };

struct ViewSettings {
    ViewShape shape = ViewShape::portrait;
    /// 50, 100, 150 or 200. 50 is scale 1; the others are scale 2, drawn that much larger.
    int zoomPercent = 100;
    /// Where the window stood; nothing on the first start.
    std::optional<QPoint> position;

    [[nodiscard]] DeviceScreen Screen() const;
    /// Desktop points for one device pixel.
    [[nodiscard]] double Zoom() const { return zoomPercent > 100 ? zoomPercent / 100.0 : 1.0; }
};

/// The next shape in the order portrait, landscape, square.
ViewShape NextShape(ViewShape shape);
/// The next zoom up or down; the ends stay.
int ZoomAfter(int zoomPercent, int step);

/// Reads "view.ini" of the program folder; an absent or odd file gives the defaults: portrait at 100 %, or at
/// 50 % where the desktop is too small for it. Needs a running QApplication.
/// A position from which no desktop screen shows the window's head is dropped: that screen is gone.
ViewSettings LoadViewSettings(const std::filesystem::path& folder);
void SaveViewSettings(const std::filesystem::path& folder, const ViewSettings& settings);

}  // namespace quorix
