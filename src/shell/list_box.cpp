#include "shell/list_box.h"

#include <algorithm>
#include <utility>

namespace quorix {

namespace {

constexpr char16_t Folded(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

}  // namespace

MorvaneListBox::MorvaneListBox(std::vector<std::u16string> items, int width, int height, int selected)
    : items_(std::move(items)), width_(width), height_(height), selected_(-1) {
    const int count = static_cast<int>(items_.size());
    visible_ = std::max(1, (height - 2 * kBorder) / kRowHeight);
    if (count <= visible_) {
        visible_ = std::max(count, 1);
        height_ = kRowHeight * visible_ + 3 * kBorder;
    }
    if (selected >= 0 && selected < count) {
        Select(selected);
    }
}

Rect MorvaneListBox::RowRect(int row) const {
    const int top = kBorder + (row - first_) * kRowHeight;
    return {kBorder, top, width_ - kBorder - (Scrolls() ? kScrollWidth : 0), top + kRowHeight};
}

Rect MorvaneListBox::UpKey() const {
    return {width_ - kBorder - kScrollWidth, kBorder, width_ - kBorder, kBorder + kScrollWidth};
}

Rect MorvaneListBox::DownKey() const {
    return {width_ - kBorder - kScrollWidth, height_ - kBorder - kScrollWidth, width_ - kBorder,
            height_ - kBorder};
}

int MorvaneListBox::RowAt(Point at) const {
    const int last = std::min(static_cast<int>(items_.size()), first_ + visible_);
    for (int row = first_; row < last; ++row) {
        if (RowRect(row).Contains(at)) {
            return row;
        }
    }
    return -1;
}

void MorvaneListBox::Select(int row) {
    selected_ = std::clamp(row, 0, static_cast<int>(items_.size()) - 1);
    first_ = std::clamp(first_, selected_ - visible_ + 1, selected_);
    first_ = std::max(first_, 0);
}

void MorvaneListBox::Scroll(int rows) {
    const int most = std::max(0, static_cast<int>(items_.size()) - visible_);
    first_ = std::clamp(first_ + rows, 0, most);
}

void MorvaneListBox::PenDown(Point at) {
    if (Scrolls() && UpKey().Contains(at)) {
        pressed_ = Pressed::up;
        Scroll(-1);
    } else if (Scrolls() && DownKey().Contains(at)) {
        pressed_ = Pressed::down;
        Scroll(1);
    } else if (const int row = RowAt(at); row >= 0) {
        pressed_ = Pressed::row;
        selected_ = row;
    }
}

void MorvaneListBox::PenMove(Point at) {
    if (pressed_ == Pressed::row) {
        selected_ = RowAt(at);
    }
}

std::optional<int> MorvaneListBox::PenUp(Point at) {
    const Pressed pressed = std::exchange(pressed_, Pressed::none);
    const int row = RowAt(at);
    return pressed == Pressed::row && row >= 0 ? std::optional(row) : std::nullopt;
}

std::optional<int> MorvaneListBox::Key(ListKey key) {
    if (key == ListKey::close) {
        return -1;
    }
    if (items_.empty()) {
        return std::nullopt;
    }
    switch (key) {
        case ListKey::up: Select(selected_ < 0 ? 0 : selected_ - 1); break;
        case ListKey::down: Select(selected_ + 1); break;
        case ListKey::pageUp: Select(selected_ - visible_); break;
        case ListKey::pageDown: Select(selected_ + visible_); break;
        case ListKey::first: Select(0); break;
        case ListKey::last: Select(static_cast<int>(items_.size()) - 1); break;
        default: return selected_ >= 0 ? std::optional(selected_) : std::nullopt;
    }
    return std::nullopt;
}

void MorvaneListBox::Seek(char16_t letter) {
    const int count = static_cast<int>(items_.size());
    for (int step = 1; step <= count; ++step) {
        const int row = (selected_ + step + count) % count;
        const std::u16string& item = items_[static_cast<std::size_t>(row)];
        if (!item.empty() && Folded(item.front()) == Folded(letter)) {
            Select(row);
            return;
        }
    }
}

}  // namespace quorix
