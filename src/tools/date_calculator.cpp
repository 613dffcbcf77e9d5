#include "tools/date_calculator.h"

namespace quorix {

namespace {

/// False for a date out of range, whose fields then show it clamped.
bool IsUsable(DateFields& fields) {
    SolarDate date = fields.Date();
    if (!date.Normalise()) {
        return true;
    }
    fields.Set(date);
    return false;
}

/// Shows a result; one before the first year is shown clamped.
void Show(DateFields& fields, SolarDate date) {
    date.Normalise();
    fields.Set(date);
}

std::int64_t SecondOfDay(const SolarDate& date) {
    return (static_cast<std::int64_t>(date.hour) * 60 + date.minute) * 60 + date.second;
}

}  // namespace

void DateFields::Set(const SolarDate& date) {
    solar_.Set(date);
    lunar_.Set(date);
}

void DateFields::SetOrder(DateOrder order) {
    solar_.SetOrder(order);
    lunar_.SetOrder(order);
}

bool DateFields::Type(CalendarKind kind, char16_t key) {
    const bool taken = Field(kind).Type(key);
    if (taken) {
        Follow(kind);
    }
    return taken;
}

void DateFields::Step(CalendarKind kind, int direction) {
    Field(kind).Step(direction);
    Follow(kind);
}

void DateFields::Follow(CalendarKind changed) {
    if (changed == CalendarKind::solar) {
        lunar_.Set(solar_.Solar());
    } else {
        solar_.Set(lunar_.Solar());
    }
}

bool IsEarlier(const SolarDate& to, const SolarDate& from) {
    const std::int64_t days = DaysBetween(to, from);
    return days < 0 || (days == 0 && SecondOfDay(to) < SecondOfDay(from));
}

TimeInterval IntervalBetween(const SolarDate& from, const SolarDate& to) {
    return Normalised({DaysBetween(to, from), 0, 0, SecondOfDay(to) - SecondOfDay(from)});
}

void DateCalculator::SetOrder(DateOrder order) {
    from.SetOrder(order);
    to.SetOrder(order);
}

std::u16string_view DateCalculator::ComputeFrom() {
    if (IsUsable(to)) {
        const TimeInterval& i = interval.Interval();
        SolarDate date = to.Date();
        date.SubDays(i.days);
        date.SubHours(i.hours);
        date.SubMinutes(i.minutes);
        Show(from, date.SubSeconds(i.seconds));
    }
    return {};
}

std::u16string_view DateCalculator::ComputeTo() {
    if (IsUsable(from)) {
        const TimeInterval& i = interval.Interval();
        SolarDate date = from.Date();
        date.AddDays(i.days);
        date.AddHours(i.hours);
        date.AddMinutes(i.minutes);
        Show(to, date.AddSeconds(i.seconds));
    }
    return {};
}

std::u16string_view DateCalculator::ComputeInterval() {
    if (!IsUsable(from) || !IsUsable(to)) {
        return {};
    }
    if (IsEarlier(to.Date(), from.Date())) {
        interval.Set({});
        return kToBeforeFrom;
    }
    interval.Set(IntervalBetween(from.Date(), to.Date()));
    return {};
}

}  // namespace quorix
