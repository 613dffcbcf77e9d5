#include "reference/hot_spots.h"

#include <utility>

namespace quorix {

namespace {

/// A pen this near to the edge of its spot has left it.
constexpr int kPressMargin = 4;

struct HotSpotRow {
    HotSpot spot;
    bool fromRight;
    /// left and right count from the window's right edge where fromRight says so.
    Rect rect;
};

constexpr HotSpotRow kRows[] = {
    {HotSpot::menu, false, {0, 0, 39, 28}},  {HotSpot::table, false, {39, 0, 78, 28}},
    {HotSpot::group, true, {-39, 0, 0, 28}}, {HotSpot::subGroup, false, {78, 28, 117, 56}},
    {HotSpot::from, true, {-39, 28, 0, 56}}, {HotSpot::to, true, {-39, 56, 0, 84}},
};
static_assert(std::size(kRows) == kHotSpots.size());

}  // namespace

Rect HotSpotRect(HotSpot spot, int right) {
    const HotSpotRow& row = kRows[static_cast<std::size_t>(spot)];
    const int shift = row.fromRight ? right : 0;
    return {row.rect.left + shift, row.rect.top, row.rect.right + shift, row.rect.bottom};
}

void HotSpotPen::Down(Point at, int right) {
    pressed_.reset();
    for (const HotSpot spot : kHotSpots) {
        if (HotSpotRect(spot, right).Contains(at)) {
            pressed_ = spot;
            return;
        }
    }
}

std::optional<HotSpot> HotSpotPen::Move(Point at, int right) {
    if (!pressed_ || HotSpotRect(*pressed_, right).Inset(kPressMargin).Contains(at)) {
        return std::nullopt;
    }
    return Up();
}

std::optional<HotSpot> HotSpotPen::Up() {
    return std::exchange(pressed_, std::nullopt);
}

}  // namespace quorix
