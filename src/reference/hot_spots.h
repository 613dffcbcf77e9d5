#pragma once

// The rectangles of the converter that answer to the pen, and the pen on them. All lengths are logical units.

#include <array>
#include <cstdint>
#include <optional>

#include "platform/geometry.h"

namespace quorix {

enum class HotSpot : std::uint8_t { menu, table, group, subGroup, from, to };
inline constexpr std::array kHotSpots = {HotSpot::menu,     HotSpot::table, HotSpot::group,
                                         HotSpot::subGroup, HotSpot::from,  HotSpot::to};

/// right: the right edge of the window.
Rect HotSpotRect(HotSpot spot, int right);

/// Follows a pen. Each call gives the spot whose action runs now, if any.
class HotSpotPen {
  public:
    void Down(Point at, int right);
    /// A pen that leaves the inner part of its spot counts as lifted at once.
    std::optional<HotSpot> Move(Point at, int right);
    std::optional<HotSpot> Up();
    [[nodiscard]] std::optional<HotSpot> Pressed() const { return pressed_; }

  private:
    std::optional<HotSpot> pressed_;
};

}  // namespace quorix
