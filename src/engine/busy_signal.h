#pragma once

#include <functional>

namespace quorix {

/// What is called with true when a long calculation begins and with false when it ends; the composition root
/// hands it in, so that the engine shows a wait cursor without knowing one. Empty for silence.
void SetBusySignal(std::function<void(bool busy)> signal);

/// Signals for the life of a scope.
class BusyScope {
  public:
    BusyScope();
    ~BusyScope();
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;
};

}  // namespace quorix
