#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace quorix {

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into an event of the message loop. One per
/// process.
class TerminationRequests {
  public:
    /// `ended` runs in the message loop, never inside the signal; it may close windows.
    explicit TerminationRequests(std::function<void()> ended);
    ~TerminationRequests();
    TerminationRequests(const TerminationRequests&) = delete;
    TerminationRequests& operator=(const TerminationRequests&) = delete;

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quorix
