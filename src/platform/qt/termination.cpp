#include "platform/qt/termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace quorix {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

/// Read end and write end; a signal may only write.
std::array<int, 2> pipeEnds = {-1, -1};

void OnSignal(int /*number*/) {
    const char byte = 0;
    // A full pipe holds a request already.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
}

}  // namespace

TerminationRequests::TerminationRequests(std::function<void()> ended) {
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;  // the signals keep their default, which ends the program at once
    }
    notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [ended = std::move(ended)] {
        char byte = 0;
        while (::read(pipeEnds[0], &byte, 1) > 0) {
        }
        ended();
    });
    for (const int number : kSignals) {
        std::signal(number, OnSignal);
    }
}

TerminationRequests::~TerminationRequests() {
    if (notifier_ == nullptr) {
        return;
    }
    for (const int number : kSignals) {
        std::signal(number, SIG_DFL);
    }
    notifier_.reset();
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

}  // namespace quorix
