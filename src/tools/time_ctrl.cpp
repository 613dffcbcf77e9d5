#include "tools/time_ctrl.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "engine/text_fold.h"
#include "tools/date_ctrl.h"
#include "tools/number_text.h"

namespace quorix {

namespace {

/// Holds any sum of four 64-bit counts in seconds.
__extension__ using Wide = __int128;

struct PartWords {
    std::int64_t TimeInterval::*count;
    std::u16string_view one;
    std::u16string_view otherwise;
};

constexpr std::array<PartWords, TimeCtrl::kPartCount> kParts = {{
    {&TimeInterval::days, u" day, ", u" days, "},
    {&TimeInterval::hours, u" hour, ", u" hours, "},
    {&TimeInterval::minutes, u" minute, ", u" minutes, "},
    {&TimeInterval::seconds, u" second", u" seconds"},
}};

Wide TotalSeconds(const TimeInterval& interval) {
    return ((static_cast<Wide>(interval.days) * 24 + interval.hours) * 60 + interval.minutes) * 60 +
           interval.seconds;
}

TimeInterval FromSeconds(Wide total) {
    using Limits = std::numeric_limits<std::int64_t>;
    constexpr int kSecondsPerDay = 86400;
    const auto rest = static_cast<std::int64_t>(total % kSecondsPerDay);
    const Wide days = std::clamp<Wide>(total / kSecondsPerDay, Limits::min(), Limits::max());
    return {static_cast<std::int64_t>(days), rest / 3600, rest / 60 % 60, rest % 60};
}

std::u16string PartText(const TimeInterval& interval, const PartWords& part) {
    const std::int64_t count = interval.*part.count;
    std::u16string text = IntegerText(count);
    text += count < 2 ? part.one : part.otherwise;
    return text;
}

}  // namespace

TimeInterval Normalised(const TimeInterval& interval) {
    return FromSeconds(TotalSeconds(interval));
}

TimeInterval operator+(const TimeInterval& a, const TimeInterval& b) {
    return FromSeconds(TotalSeconds(a) + TotalSeconds(b));
}

TimeInterval operator-(const TimeInterval& a, const TimeInterval& b) {
    return FromSeconds(TotalSeconds(a) - TotalSeconds(b));
}

bool IsNegative(const TimeInterval& interval) {
    return TotalSeconds(interval) < 0;
}

void TimeCtrl::Set(const TimeInterval& interval) {
    interval_ = interval;
    isTyping_ = false;
}

std::u16string TimeCtrl::Text() const {
    std::u16string text;
    for (const PartWords& part : kParts) {
        text += PartText(interval_, part);
    }
    return text;
}

std::size_t TimeCtrl::PartPosition(std::size_t part) const {
    std::size_t position = 0;
    for (std::size_t i = 0; i < std::min(part, kPartCount - 1); ++i) {
        position += PartText(interval_, kParts[i]).size();
    }
    return position;
}

std::int64_t& TimeCtrl::Count(std::size_t part) {
    return interval_.*kParts[part].count;
}

void TimeCtrl::Choose(std::size_t part) {
    selected_ = part;
    isTyping_ = false;
}

void TimeCtrl::SelectAt(std::size_t character) {
    std::size_t part = kPartCount - 1;
    while (part > 0 && PartPosition(part) > character) {
        --part;
    }
    Choose(part);
}

void TimeCtrl::SelectNext() {
    Choose(std::min(selected_ + 1, kPartCount - 1));
}

void TimeCtrl::SelectPrevious() {
    Choose(selected_ == 0 ? 0 : selected_ - 1);
}

bool TimeCtrl::Type(char16_t key) {
    std::int64_t& count = Count(selected_);
    if (key == u'-') {
        count = count == std::numeric_limits<std::int64_t>::min() ? std::numeric_limits<std::int64_t>::max()
                                                                  : -count;
        return true;
    }
    if (key == kBackspaceKey) {
        count /= 10;
        isTyping_ = true;
        return true;
    }
    if (!IsDigit(key)) {
        return false;
    }
    if (!isTyping_) {
        count = 0;
        isTyping_ = true;
    }
    std::u16string typed = IntegerText(count);
    if (typed.size() - (count < 0 ? 1 : 0) >= kLongestCount) {
        return false;
    }
    typed.push_back(key);
    count = ReadInteger(typed);
    return true;
}

void TimeCtrl::Step(int direction) {
    std::int64_t& count = Count(selected_);
    isTyping_ = false;
    if (direction < 0) {
        count = std::max<std::int64_t>(count, 1) - 1;
    } else if (count < std::numeric_limits<std::int64_t>::max()) {
        ++count;
    }
}

}  // namespace quorix
