#pragma once

namespace quorix {

/// Timers by number, owned by one window. A set timer fires again and again until it is killed; firing
/// reaches the owner through its message loop, never before Set returns.
class Timers {
  public:
    virtual ~Timers() = default;
    /// Starts timer `id`, or starts it anew with the new period (milliseconds, above 0).
    virtual void Set(int id, int milliseconds) = 0;
    /// Stops timer `id`; a timer that is not running is no error.
    virtual void Kill(int id) = 0;
};

}  // namespace quorix
