#include "platform/qt/single_instance.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <system_error>

namespace quorix {

namespace {

constexpr int kBacklog = 8;
/// Between its bind and its listen another start cannot be asked yet.
constexpr int kAskTries = 20;
constexpr useconds_t kAskPauseUs = 10'000;

std::string NameFor(const std::filesystem::path& programFolder) {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::weakly_canonical(programFolder, error);
    const std::string& place = (error ? programFolder : folder).string();
    return "quorix-" + std::to_string(::getuid()) + '-' + std::to_string(std::hash<std::string>{}(place));
}

int NewSocket() {
    return ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// A zero before the name makes it abstract.
std::pair<sockaddr_un, socklen_t> AddressOf(const std::string& name) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const std::size_t length = std::min(name.size(), sizeof address.sun_path - 1);
    name.copy(address.sun_path + 1, length);
    return {address, static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length)};
}

bool IsOurs(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::getuid();
}

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& programFolder, std::function<void()> raise)
    : name_(NameFor(programFolder)), raise_(std::move(raise)) {}

SingleInstance::~SingleInstance() {
    notifier_.reset();
    if (listener_ >= 0) {
        ::close(listener_);
    }
}

bool SingleInstance::TryBecomeFirst() {
    listener_ = NewSocket();
    if (listener_ < 0) {
        return true;
    }
    const auto [address, size] = AddressOf(name_);
    if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), size) != 0) {
        ::close(listener_);
        listener_ = -1;
        return !AskOtherToRaise();
    }
    ::listen(listener_, kBacklog);
    notifier_ = std::make_unique<QSocketNotifier>(listener_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { Accept(); });
    return true;
}

void SingleInstance::Accept() {
    for (int peer = ::accept(listener_, nullptr, nullptr); peer >= 0;
         peer = ::accept(listener_, nullptr, nullptr)) {
        const bool ours = IsOurs(peer);
        ::close(peer);
        if (ours) {
            raise_();
        }
    }
}

/// To connect is to ask; the first instance may be calculating and answer later.
bool SingleInstance::AskOtherToRaise() const {
    const int socket = NewSocket();
    if (socket < 0) {
        return false;
    }
    const auto [address, size] = AddressOf(name_);
    bool asked = false;
    for (int i = 0; i < kAskTries && !asked; ++i) {
        asked = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), size) == 0;
        if (!asked) {
            ::usleep(kAskPauseUs);
        }
    }
    // Another user may hold the name; that is no instance of ours.
    asked = asked && IsOurs(socket);
    ::close(socket);
    return asked;
}

}  // namespace quorix
