#pragma once

namespace quorix {

/// The device screen that the program draws for, in device pixels.
struct DeviceScreen {
    int width = 480;
    int height = 640;

    /// A screen of 480 or 640 pixels height is drawn at scale 2.
    [[nodiscard]] constexpr bool IsVga() const { return height == 480 || height == 640; }
    [[nodiscard]] constexpr bool IsLandscape() const {
        return (height == 240 && width == 320) || (height == 480 && width == 640);
    }
    [[nodiscard]] constexpr bool IsSquare() const {
        return !IsLandscape() && ((height == 240 && width == 240) || (height == 480 && width == 480));
    }
    /// Device pixels for one logical unit.
    [[nodiscard]] constexpr int Scale() const { return IsVga() ? 2 : 1; }
    friend constexpr bool operator==(const DeviceScreen&, const DeviceScreen&) = default;
};

}  // namespace quorix
