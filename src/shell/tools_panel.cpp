#include "shell/tools_panel.h"

#include <algorithm>
#include <utility>

namespace quorix {

namespace {

using Kind = SheetPart::Kind;

constexpr int kToolCount = static_cast<int>(Tool::count);
/// Left edges of the tools, and the right edge of the last: each has room for its glyph and word.
constexpr std::array<int, kToolCount + 1> kToolEdges = {1, 83, 132, 187, 233};
/// Room for all sixteen tiles on one page, with the tool row.
constexpr int kWholeSheetHeight =
    ToolsPanel::kBorder + 4 * ToolsPanel::kTileHeight + ToolsPanel::kToolRowHeight;
constexpr int kSheetMargin = 3;

constexpr int CeilDivide(int a, int b) {
    return (a + b - 1) / b;
}

}  // namespace

ToolsPanel::ToolsPanel(const std::array<std::uint8_t, kCategoryCount>& order, int current, int roomWidth,
                       int roomHeight)
    : order_(order), current_(current), width_(roomWidth) {
    columns_ = std::max(1, (roomWidth - 2 * kBorder) / kTileWidth);
    const int room = roomHeight - kBorder - kToolRowHeight;
    rows_ = CeilDivide(kCategoryCount, columns_);
    int pageKeysHeight = 0;
    if (rows_ * kTileHeight > room) {
        pageKeysHeight = PageKeysBesideTools() ? 0 : kPageKeySize;
        const int most = std::max(1, (room - pageKeysHeight) / kTileHeight);
        pages_ = CeilDivide(kCategoryCount, columns_ * most);
        // Pages of like size look calmer than a full one and a rest.
        rows_ = CeilDivide(CeilDivide(kCategoryCount, pages_), columns_);
    }
    height_ = kBorder + rows_ * kTileHeight + pageKeysHeight + kToolRowHeight;
    page_ = PlaceOnPage(current) / (columns_ * rows_);
    focused_ = {Kind::tile, current};
}

bool ToolsPanel::PageKeysBesideTools() const {
    return width_ >= kToolEdges.back() + 2 * kPageKeySize + kBorder;
}

int ToolsPanel::PlaceOnPage(int category) const {
    return static_cast<int>(std::find(order_.begin(), order_.end(), static_cast<std::uint8_t>(category)) -
                            order_.begin());
}

std::vector<SheetPart> ToolsPanel::Parts() const {
    std::vector<SheetPart> parts;
    const int perPage = columns_ * rows_;
    for (int place = page_ * perPage; place < std::min(kCategoryCount, (page_ + 1) * perPage); ++place) {
        parts.push_back({Kind::tile, order_[static_cast<std::size_t>(place)]});
    }
    if (pages_ > 1) {
        parts.push_back({Kind::pageBack, 0});
        parts.push_back({Kind::pageForth, 0});
    }
    for (int tool = 0; tool < kToolCount; ++tool) {
        parts.push_back({Kind::tool, tool});
    }
    return parts;
}

Rect ToolsPanel::RectOf(const SheetPart& part) const {
    switch (part.kind) {
        case Kind::tile: {
            const int place = PlaceOnPage(part.index) % (columns_ * rows_);
            const int left = (width_ - columns_ * kTileWidth) / 2 + place % columns_ * kTileWidth;
            const int top = kBorder + place / columns_ * kTileHeight;
            return {left, top, left + kTileWidth, top + kTileHeight};
        }
        case Kind::tool: {
            const auto at = static_cast<std::size_t>(part.index);
            return {kToolEdges[at], RuleHeight() + kBorder, kToolEdges[at + 1], height_ - kBorder};
        }
        case Kind::pageBack:
        case Kind::pageForth: {
            const int right = width_ - kBorder - (part.kind == Kind::pageBack ? kPageKeySize : 0);
            const int top = PageKeysBesideTools() ? RuleHeight() + kBorder : RuleHeight() - kPageKeySize;
            return {right - kPageKeySize, top, right, top + kPageKeySize};
        }
        case Kind::none: break;
    }
    return {};
}

SheetPart ToolsPanel::PartAt(Point at) const {
    for (const SheetPart& part : Parts()) {
        if (RectOf(part).Contains(at)) {
            return part;
        }
    }
    return {};
}

void ToolsPanel::TurnPage(int step) {
    page_ = (page_ + step + pages_) % pages_;
}

std::optional<SheetPart> ToolsPanel::Choose(const SheetPart& part) {
    switch (part.kind) {
        case Kind::none: return std::nullopt;
        case Kind::pageBack: TurnPage(-1); return std::nullopt;
        case Kind::pageForth: TurnPage(1); return std::nullopt;
        default: return part;
    }
}

std::optional<SheetPart> ToolsPanel::PenUp(Point at) {
    const SheetPart pressed = std::exchange(pressed_, {});
    return PartAt(at) == pressed ? Choose(pressed) : std::nullopt;
}

std::optional<SheetPart> ToolsPanel::Key(SheetKey key) {
    const std::vector<SheetPart> parts = Parts();
    const auto found = std::find(parts.begin(), parts.end(), focused_);
    const int count = static_cast<int>(parts.size());
    int at = found == parts.end() ? 0 : static_cast<int>(found - parts.begin());
    // Where a row of tiles ends, the keys go on into the row of tools and from there to the other end.
    switch (key) {
        case SheetKey::close: return SheetPart{};
        case SheetKey::choose: return Choose(focused_);
        case SheetKey::left:
        case SheetKey::previous: at = (at + count - 1) % count; break;
        case SheetKey::right:
        case SheetKey::next: at = (at + 1) % count; break;
        case SheetKey::up:
            at = focused_.kind == Kind::tile ? (at >= columns_ ? at - columns_ : count - 1)
                                             : count - kToolCount - (pages_ > 1 ? 2 : 0) - 1;
            break;
        case SheetKey::down:
            at = focused_.kind == Kind::tile ? std::min(at + columns_, count - kToolCount) : 0;
            break;
    }
    focused_ = parts[static_cast<std::size_t>(at)];
    return std::nullopt;
}

Rect SheetRoom(Orientation orientation, const Rect& key) {
    const Rect client = LayoutOf(orientation).client;
    const Rect panel = LayoutOf(orientation).upperPanel;
    const Rect below{panel.left, key.bottom + 1, panel.right, client.bottom - kSheetMargin};
    const Rect above{panel.left, kSheetMargin, panel.right, key.top - 1};
    if (below.Height() >= kWholeSheetHeight || above.Height() < kWholeSheetHeight) {
        constexpr int kUsableHeight = 130;
        if (below.Height() >= kUsableHeight) {
            return below;
        }
    }
    return above;
}

}  // namespace quorix
