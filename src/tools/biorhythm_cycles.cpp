#include "tools/biorhythm_cycles.h"

#include <algorithm>

namespace quorix {

namespace {

constexpr std::array<std::u16string_view, kDayClassCount> kLabels = {
    u"Critical", u"Critical", u"Medium", u"High", u"Low", u"Maximum", u"Minimum"};
static_assert(static_cast<std::size_t>(DayClass::minimum) + 1 == kLabels.size());

std::int32_t DayOfCycle(std::int64_t days, const BiorhythmCycle& cycle) {
    return static_cast<std::int32_t>(std::max<std::int64_t>(days, 0) % cycle.period);
}

}  // namespace

const BiorhythmCycle* CycleOfPeriod(std::int32_t period) {
    const auto* cycle = std::ranges::find(kCycles, period, &BiorhythmCycle::period);
    return cycle != kCycles.end() ? cycle : nullptr;
}

DayClass ClassOfDay(std::int64_t days, const BiorhythmCycle& cycle) {
    const std::int32_t r = DayOfCycle(days, cycle);
    if (r == cycle.maximum) {
        return DayClass::maximum;
    }
    if (r == cycle.minimum) {
        return DayClass::minimum;
    }
    if (r == cycle.critical2) {
        return DayClass::critical2;
    }
    if (r == 0) {
        return DayClass::critical1;
    }
    return cycle.low.Contains(r) ? DayClass::low : cycle.high.Contains(r) ? DayClass::high : DayClass::medium;
}

Trend TrendOfDay(std::int64_t days, const BiorhythmCycle& cycle) {
    const std::int32_t r = DayOfCycle(days, cycle);
    if (r == cycle.maximum || r == cycle.minimum) {
        return Trend::none;
    }
    return cycle.decrease.Contains(r) ? Trend::decrease : Trend::increase;
}

DayClass ClassOfDay(std::int64_t days, std::int32_t period) {
    const BiorhythmCycle* cycle = CycleOfPeriod(period);
    return cycle != nullptr ? ClassOfDay(days, *cycle) : DayClass::medium;
}

Trend TrendOfDay(std::int64_t days, std::int32_t period) {
    const BiorhythmCycle* cycle = CycleOfPeriod(period);
    return cycle != nullptr ? TrendOfDay(days, *cycle) : Trend::none;
}

std::u16string_view LabelOf(DayClass dayClass) {
    return kLabels[static_cast<std::size_t>(dayClass)];
}

}  // namespace quorix
