#pragma once

namespace quorix {

/// A point; the unit (logical or device pixels) is told by its user.
struct Point {
    int x = 0;
    int y = 0;
    friend constexpr bool operator==(const Point&, const Point&) = default;
};

/// A rectangle; right and bottom lie outside.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] constexpr int Width() const { return right - left; }
    [[nodiscard]] constexpr int Height() const { return bottom - top; }
    [[nodiscard]] constexpr bool Contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    [[nodiscard]] constexpr Rect Scaled(int factor) const {
        return {left * factor, top * factor, right * factor, bottom * factor};
    }
    /// Smaller by `margin` on every side.
    [[nodiscard]] constexpr Rect Inset(int margin) const {
        return {left + margin, top + margin, right - margin, bottom - margin};
    }
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace quorix
