#include "frontends/token_line.h"

#include <algorithm>

#include "engine/number_locale.h"

namespace quorix {

namespace {

constexpr std::size_t LengthOf(char16_t digit) {
    return static_cast<std::size_t>(digit - u'0');
}

bool LengthsFit(std::u16string_view text, std::u16string_view lengths) {
    std::size_t sum = 0;
    for (const char16_t digit : lengths) {
        if (digit < u'1' || digit > u'9') {
            return false;
        }
        sum += LengthOf(digit);
    }
    return sum == text.size();
}

}  // namespace

std::size_t TokenLine::OffsetOf(int at) const {
    std::size_t offset = 0;
    for (int k = 0; k < at && k < TokenCount(); ++k) {
        offset += LengthOf(lengths_[static_cast<std::size_t>(k)]);
    }
    return offset;
}

std::u16string_view TokenLine::Token(int index) const {
    if (index < 0 || index >= TokenCount()) {
        return {};
    }
    return std::u16string_view(text_).substr(OffsetOf(index),
                                             LengthOf(lengths_[static_cast<std::size_t>(index)]));
}

void TokenLine::Clear() {
    text_.clear();
    lengths_.clear();
    ResetPositions();
}

void TokenLine::Set(std::u16string_view text, std::u16string_view lengths) {
    text_ = text.substr(0, kLongestLine);
    if (LengthsFit(text_, lengths)) {
        lengths_ = lengths;
    } else {
        lengths_.assign(text_.size(), u'1');
    }
    ResetPositions();
}

void TokenLine::ExchangeDecimalSigns() {
    quorix::ExchangeDecimalSigns(text_);
}

void TokenLine::ResetPositions() {
    cursor_ = 0;
    firstVisible_ = 0;
    lastVisible_ = -1;
    scroll_ = ScrollState::none;
}

void TokenLine::InsertToken(int at, std::u16string_view token) {
    if (token.empty() || token.size() > kLongestToken || text_.size() + token.size() > kLongestLine) {
        return;
    }
    at = std::clamp(at, 0, TokenCount());
    text_.insert(OffsetOf(at), token);
    lengths_.insert(static_cast<std::size_t>(at), 1, static_cast<char16_t>(u'0' + token.size()));
    ++cursor_;
    if (at >= lastVisible_) {
        ++lastVisible_;
        scroll_ = ScrollState::keepLast;
    } else {
        scroll_ = ScrollState::keepFirst;
    }
}

void TokenLine::InsertCharacters(std::u16string_view text) {
    text = text.substr(0, kLongestLine);
    InsertTokens(text, std::u16string(text.size(), u'1'));
}

void TokenLine::InsertTokens(std::u16string_view text, std::u16string_view lengths) {
    if (!LengthsFit(text, lengths)) {
        InsertCharacters(text);
        return;
    }
    std::size_t width = 0;
    std::size_t count = 0;
    while (count < lengths.size() && text_.size() + width + LengthOf(lengths[count]) <= kLongestLine) {
        width += LengthOf(lengths[count++]);
    }
    if (count == 0) {
        return;
    }
    text_.insert(OffsetOf(cursor_), text.substr(0, width));
    lengths_.insert(static_cast<std::size_t>(cursor_), lengths.substr(0, count));
    const bool follows = cursor_ >= lastVisible_;
    cursor_ += static_cast<int>(count);
    if (follows) {
        lastVisible_ = cursor_ - 1;
    }
    scroll_ = follows ? ScrollState::keepLast : ScrollState::keepFirst;
}

void TokenLine::DeleteToken(int at) {
    if (lengths_.empty()) {
        return;
    }
    if (at >= TokenCount()) {
        at = TokenCount() - 1;
        cursor_ = at;
    }
    at = std::max(at, 0);
    const bool lastWasInView = lastVisible_ == TokenCount() - 1;
    text_.erase(OffsetOf(at), LengthOf(lengths_[static_cast<std::size_t>(at)]));
    lengths_.erase(static_cast<std::size_t>(at), 1);
    if (cursor_ < firstVisible_) {
        --firstVisible_;
        scroll_ = ScrollState::keepFirst;
    } else if (lastWasInView) {
        --lastVisible_;
        scroll_ = ScrollState::keepLast;
    } else {
        scroll_ = ScrollState::keepFirst;
    }
}

void TokenLine::MoveLeft(int count) {
    cursor_ = std::max(0, cursor_ - count);
    firstVisible_ = std::min(firstVisible_, cursor_);
    scroll_ = ScrollState::keepFirst;
}

void TokenLine::MoveRight(int count) {
    cursor_ = std::min(TokenCount(), cursor_ + count);
    if (cursor_ > lastVisible_) {
        lastVisible_ = cursor_;
        scroll_ = ScrollState::keepLast;
    } else {
        scroll_ = ScrollState::keepFirst;
    }
}

void TokenLine::SetCursor(int at) {
    cursor_ = std::clamp(at, 0, TokenCount());
}

void TokenLine::ShowForward(std::span<const int> widths, int room) {
    const int count = static_cast<int>(widths.size());
    lastVisible_ = firstVisible_ - 1;
    int sum = 0;
    while (lastVisible_ + 1 < count) {
        sum += widths[static_cast<std::size_t>(lastVisible_ + 1)];
        // A token wider than the row is shown all the same, or nothing would be.
        if (sum > room && lastVisible_ >= firstVisible_) {
            break;
        }
        ++lastVisible_;
    }
}

void TokenLine::ShowBackward(std::span<const int> widths, int room) {
    lastVisible_ = std::min(lastVisible_, static_cast<int>(widths.size()) - 1);
    firstVisible_ = lastVisible_ + 1;
    int sum = 0;
    while (firstVisible_ > 0) {
        sum += widths[static_cast<std::size_t>(firstVisible_ - 1)];
        if (sum > room && firstVisible_ <= lastVisible_) {
            break;
        }
        --firstVisible_;
    }
}

void TokenLine::UpdateView(std::span<const int> widths, int room) {
    const int count = static_cast<int>(widths.size());
    firstVisible_ = std::clamp(firstVisible_, 0, std::max(0, count - 1));
    if (scroll_ == ScrollState::keepLast) {
        ShowBackward(widths, room);
    }
    if (scroll_ != ScrollState::keepLast || firstVisible_ == 0) {
        ShowForward(widths, room);
    }
    // Whatever moved the cursor, it is never out of view.
    if (cursor_ < firstVisible_) {
        firstVisible_ = cursor_;
        ShowForward(widths, room);
    } else if (cursor_ > lastVisible_ + 1 || (cursor_ == lastVisible_ + 1 && cursor_ < count)) {
        lastVisible_ = cursor_;
        ShowBackward(widths, room);
    }
    scroll_ = ScrollState::none;
}

}  // namespace quorix
