#include "engine/busy_signal.h"

#include <utility>

namespace quorix {

namespace {

std::function<void(bool)>& Signal() {
    static std::function<void(bool)> signal;
    return signal;
}

void Emit(bool busy) {
    if (Signal()) {
        Signal()(busy);
    }
}

}  // namespace

void SetBusySignal(std::function<void(bool)> signal) {
    Signal() = std::move(signal);
}

BusyScope::BusyScope() {
    Emit(true);
}

BusyScope::~BusyScope() {
    Emit(false);
}

}  // namespace quorix
