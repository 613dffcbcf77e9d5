#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorix {

/// Most bytes of a body, and the time that one exchange may take.
inline constexpr std::size_t kMostHttpBytes = 1024 * 1024;
inline constexpr int kHttpTimeLimitMs = 20'000;

/// A GET with a Basic credential, which goes out with the request unasked.
struct HttpRequest {
    std::string server;
    std::uint16_t port = 80;
    /// Parts may be separated by "\" as well as "/"; a leading "/" may be missing.
    std::string objectPath;
    std::string userName;
    std::string password;
    /// Only so many bytes of the body are waited for; 0 means all of it.
    std::size_t wantedBytes = 0;
};

/// Fetches over HTTP. Owned by the composition root.
class HttpClient {
  public:
    virtual ~HttpClient() = default;
    /// The body of the answer, whatever its status code; an empty one is no failure. Nothing when there is no
    /// connection, the answer is none of HTTP, ends early, or passes the limits of size and time. Blocks
    /// until then. While it blocks, timers and repaints are handled, input of the user waits.
    virtual std::optional<std::vector<std::uint8_t>> Get(const HttpRequest& request) = 0;
};

}  // namespace quorix
