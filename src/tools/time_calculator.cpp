#include "tools/time_calculator.h"

namespace quorix {

namespace {

/// Shows minuend less subtrahend, or gives `message` and leaves the field as it is.
std::u16string_view Subtract(const TimeCtrl& minuend, const TimeCtrl& subtrahend, TimeCtrl& difference,
                             std::u16string_view message) {
    const TimeInterval value = minuend.Interval() - subtrahend.Interval();
    if (IsNegative(value)) {
        return message;
    }
    difference.Set(value);
    return {};
}

}  // namespace

std::u16string_view TimeCalculator::ComputeFrom() {
    // The message names From although it is the one to be computed; that is intended.
    return Subtract(to, interval, from, u"From > Interval");
}

std::u16string_view TimeCalculator::ComputeTo() {
    to.Set(from.Interval() + interval.Interval());
    return {};
}

std::u16string_view TimeCalculator::ComputeInterval() {
    return Subtract(to, from, interval, u"From > To");
}

}  // namespace quorix
