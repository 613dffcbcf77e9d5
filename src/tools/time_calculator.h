#pragma once

// The time calculator: three lengths of time of which any one is computed from the others.

#include <string_view>

#include "tools/time_ctrl.h"

namespace quorix {

inline constexpr std::u16string_view kTimeCalculatorTitle = u"Time calculator";

class TimeCalculator {
  public:
    // The three "=" keys. Each gives the message to show; with one nothing has changed.
    std::u16string_view ComputeFrom();
    std::u16string_view ComputeTo();
    std::u16string_view ComputeInterval();

    TimeCtrl from;
    TimeCtrl to;
    TimeCtrl interval;
};

}  // namespace quorix
