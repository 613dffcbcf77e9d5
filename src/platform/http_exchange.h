#pragma once

// The two texts of an HTTP exchange: the request, and the answer as it comes in. No network.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/http.h"

namespace quorix {

/// The request's bytes. HTTP/1.0, so that the server closes behind its answer and does not send it in chunks.
/// Bytes of the path that a request line cannot hold are percent-encoded.
std::string FormatHttpGet(const HttpRequest& request);

/// RFC 4648, section 4: standard alphabet with padding.
std::string Base64(std::string_view bytes);

/// Takes an answer piece by piece. Head and body are bounded: what passes a bound fails.
class HttpAnswer {
  public:
    enum class State : std::uint8_t { head, body, done, failed };
    static constexpr std::size_t kMostHeadBytes = 64 * 1024;

    /// wantedBytes: as in HttpRequest. mostBytes: the bound of the body.
    HttpAnswer(std::size_t wantedBytes, std::size_t mostBytes)
        : wantedBytes_(wantedBytes), mostBytes_(mostBytes) {}

    /// Further bytes from the server. Ignored when the answer is done or has failed.
    State Take(std::span<const std::uint8_t> bytes);
    /// The server has closed: done when the answer has no length of its own, else failed.
    State Close();

    [[nodiscard]] State Current() const { return state_; }
    [[nodiscard]] const std::vector<std::uint8_t>& Body() const { return body_; }

  private:
    /// Where the bytes of a chunked body stand.
    enum class Chunk : std::uint8_t { none, size, data, dataEnd };

    void TakeHeadByte(char c);
    void FinishHead();
    void ReadHeaderLine(std::string_view line);
    void TakeBody(std::span<const std::uint8_t> bytes);
    void TakeChunked(std::span<const std::uint8_t> bytes);
    void FinishChunkSize();
    void Append(std::span<const std::uint8_t> bytes);
    void CheckLength();

    std::size_t wantedBytes_;
    std::size_t mostBytes_;
    State state_ = State::head;
    std::string head_;
    std::vector<std::uint8_t> body_;
    bool hasLength_ = false;
    std::size_t length_ = 0;
    Chunk chunk_ = Chunk::none;
    std::size_t chunkLeft_ = 0;
    std::string chunkLine_;
};

}  // namespace quorix
