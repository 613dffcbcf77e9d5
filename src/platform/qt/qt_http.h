#pragma once

#include "platform/http.h"

namespace quorix {

/// HTTP over a TCP socket of Qt. A local event loop runs while the answer comes in; it takes no input of the
/// user. A Get that is made while another one is under way fails at once.
class QtHttpClient : public HttpClient {
  public:
    explicit QtHttpClient(int timeLimitMs = kHttpTimeLimitMs) : timeLimitMs_(timeLimitMs) {}
    std::optional<std::vector<std::uint8_t>> Get(const HttpRequest& request) override;

  private:
    int timeLimitMs_;
    bool busy_ = false;
};

}  // namespace quorix
