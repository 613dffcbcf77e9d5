#pragma once

#include <map>

#include "platform/timers.h"

namespace quorix::testing {

/// Timers that only remember what runs; the test fires them by hand.
class FakeTimers : public Timers {
  public:
    void Set(int id, int milliseconds) override { running[id] = milliseconds; }
    void Kill(int id) override { running.erase(id); }
    std::map<int, int> running;
};

}  // namespace quorix::testing
