#pragma once

// The date calculator: "From", "To" and the "Interval" between them; any one is computed from the others.

#include <string_view>

#include "tools/date_ctrl.h"
#include "tools/time_ctrl.h"

namespace quorix {

inline constexpr std::u16string_view kDateCalculatorTitle = u"Date calculator";
/// Its spelling is intended.
inline constexpr std::u16string_view kToBeforeFrom = u"The \"To\" date occured ealier than the \"From\" one!";

/// One date in its two fields, which always show the same day.
class DateFields {
  public:
    explicit DateFields(DateOrder order)
        : solar_(CalendarKind::solar, order), lunar_(CalendarKind::lunar, order) {}

    void Set(const SolarDate& date);
    void SetOrder(DateOrder order);
    [[nodiscard]] const SolarDate& Date() const { return solar_.Solar(); }
    [[nodiscard]] DateCtrl& Field(CalendarKind kind) { return kind == CalendarKind::solar ? solar_ : lunar_; }
    [[nodiscard]] const DateCtrl& Field(CalendarKind kind) const {
        return kind == CalendarKind::solar ? solar_ : lunar_;
    }
    /// As DateCtrl::Type and Step in the field of that kind; the other one follows.
    bool Type(CalendarKind kind, char16_t key);
    void Step(CalendarKind kind, int direction);

  private:
    void Follow(CalendarKind changed);

    DateCtrl solar_;
    DateCtrl lunar_;
};

class DateCalculator {
  public:
    /// Both dates are now, the interval is zero.
    explicit DateCalculator(DateOrder order) : from(order), to(order) {}

    void SetOrder(DateOrder order);

    // The three "=" keys. A date out of range is shown clamped and nothing is computed. Each gives the
    // message to show, which is empty but for an interval that would be negative.
    std::u16string_view ComputeFrom();
    std::u16string_view ComputeTo();
    std::u16string_view ComputeInterval();

    DateFields from;
    DateFields to;
    TimeCtrl interval;
};

/// From `from` to `to`: whole days and the rest of the times of day. Not meaningful when `to` is earlier.
TimeInterval IntervalBetween(const SolarDate& from, const SolarDate& to);
/// Whether `to` is the earlier one: by day, and by time of day on the same day.
bool IsEarlier(const SolarDate& to, const SolarDate& from);

}  // namespace quorix
