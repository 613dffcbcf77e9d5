#include "platform/qt/view_settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <algorithm>
#include <iterator>

namespace quorix {

namespace {

constexpr int kZooms[] = {50, 100, 150, 200};
constexpr const char* kShapeNames[] = {"portrait", "landscape", "square"};
/// Room that the desktop's own frame takes of the height.
constexpr int kFrameHeight = 52;
/// Height of what a window can be moved by, and how much of it must be seen.
constexpr int kHeadHeight = 40;
constexpr int kLeastSeen = 20;

QString FileOf(const std::filesystem::path& folder) {
    return QString::fromStdString((folder / "view.ini").string());
}

bool FitsDesktop(const DeviceScreen& screen) {
    const QScreen* desktop = QGuiApplication::primaryScreen();
    if (desktop == nullptr) {
        return true;
    }
    const QSize room = desktop->availableSize();
    return screen.width <= room.width() && screen.height - kFrameHeight <= room.height();
}

/// The part of a window by which it can be moved must show on a desktop screen.
bool HeadIsOnDesktop(QPoint position, const DeviceScreen& screen) {
    const QRect head(position, QSize(screen.width, kHeadHeight));
    const QList<QScreen*> desktops = QGuiApplication::screens();
    return std::any_of(desktops.begin(), desktops.end(), [&](const QScreen* desktop) {
        const QRect seen = desktop->availableGeometry().intersected(head);
        return seen.width() >= kLeastSeen && seen.height() >= kLeastSeen;
    });
}

}  // namespace

DeviceScreen ViewSettings::Screen() const {
    const int scale = zoomPercent >= 100 ? 2 : 1;
    switch (shape) {
        case ViewShape::landscape: return {320 * scale, 240 * scale};
        case ViewShape::square: return {240 * scale, 240 * scale};
        default: return {240 * scale, 320 * scale};
    }
}

ViewShape NextShape(ViewShape shape) {
    return static_cast<ViewShape>((static_cast<int>(shape) + 1) % 3);
}

int ZoomAfter(int zoomPercent, int step) {
    const auto* const here = std::find(std::begin(kZooms), std::end(kZooms), zoomPercent);
    const auto index =
        std::clamp<std::ptrdiff_t>(here - std::begin(kZooms) + step, 0, std::ssize(kZooms) - 1);
    return kZooms[index];
}

ViewSettings LoadViewSettings(const std::filesystem::path& folder) {
    const QSettings file(FileOf(folder), QSettings::IniFormat);
    ViewSettings settings;
    const QString shape = file.value("shape").toString();
    for (int i = 0; i < 3; ++i) {
        if (shape == kShapeNames[i]) {
            settings.shape = static_cast<ViewShape>(i);
        }
    }
    const int zoom = file.value("zoom", 100).toInt();
    if (std::find(std::begin(kZooms), std::end(kZooms), zoom) != std::end(kZooms)) {
        settings.zoomPercent = zoom;
    }
    if (!file.contains("zoom") && !FitsDesktop(settings.Screen())) {
        settings.zoomPercent = kZooms[0];
    }
    if (file.contains("x") && file.contains("y")) {
        const QPoint position(file.value("x").toInt(), file.value("y").toInt());
        if (HeadIsOnDesktop(position, settings.Screen())) {
            settings.position = position;
        }
    }
    return settings;
}

void SaveViewSettings(const std::filesystem::path& folder, const ViewSettings& settings) {
    QSettings file(FileOf(folder), QSettings::IniFormat);
    file.setValue("shape", kShapeNames[static_cast<int>(settings.shape)]);
    file.setValue("zoom", settings.zoomPercent);
    if (settings.position) {
        file.setValue("x", settings.position->x());
        file.setValue("y", settings.position->y());
    }
}

}  // namespace quorix
