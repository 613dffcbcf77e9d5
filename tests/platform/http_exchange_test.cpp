#include "platform/http_exchange.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

/// "done: BODY", "failed" or "open", with the answer cut into pieces of `step` bytes.
std::string Result(std::string_view text, std::size_t wanted, bool close, std::size_t step,
                   std::size_t most) {
    HttpAnswer answer(wanted, most);
    for (std::size_t at = 0; at < text.size(); at += step) {
        const std::string_view piece = text.substr(at, step);
        answer.Take({reinterpret_cast<const std::uint8_t*>(piece.data()), piece.size()});
    }
    if (close) {
        answer.Close();
    }
    switch (answer.Current()) {
        case HttpAnswer::State::done:
            return "done: " + std::string(answer.Body().begin(), answer.Body().end());
        case HttpAnswer::State::failed: return "failed";
        default: return "open";
    }
}

TEST(HttpAnswer, IsWholeByLengthByChunksOrByTheServersClosing) {
    const struct {
        std::string text;
        std::size_t wanted;
        bool close;
        std::string result;
    } rows[] = {
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello and more", 0, false, "done: hello"},
        {"HTTP/1.0 404 Not here\n\ngone", 0, true, "done: gone"},
        {"HTTP/1.0 200 OK\r\n\r\nhello", 3, false, "done: hel"},
        {"HTTP/1.0 200 OK\r\n\r\nhello", 18, true, "done: hello"},
        {"HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\ncontent-length:2\r\n\r\nok", 0, false, "done: ok"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: Chunked\r\n\r\n3\r\nabc\r\n2;x=y\r\nde\r\n0\r\n\r\n", 0,
         false, "done: abcde"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", 0, false, "done: "},
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhell", 0, true, "failed"},
        {"HTTP/1.1 200 OK\r\nContent-Length: five\r\n\r\nhello", 0, false, "failed"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 33\r\n\r\n", 0, false, "failed"},
        {"HTTP/1.1 200 OK\r\n\r\n" + std::string(33, 'x'), 0, false, "failed"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nxyz\r\n", 0, false, "failed"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nab", 0, true, "failed"},
        {"HTTP/1.1 200 OK\r\nX: " + std::string(70000, 'x'), 0, false, "failed"},
        {"SSH-2.0-server\r\n", 0, false, "failed"},
        {"", 0, true, "failed"},
        {"HTTP/1.1 200 OK\r\n", 0, true, "failed"},
    };
    for (const auto& row : rows) {
        for (const std::size_t step : {std::size_t{1}, std::size_t{7}, row.text.size() + 1}) {
            EXPECT_EQ(Result(row.text, row.wanted, row.close, step, 32), row.result)
                << row.text.substr(0, 80);
        }
    }
}

TEST(HttpGet, NamesPathAndCredential) {
    EXPECT_EQ(FormatHttpGet({.server = "host",
                             .port = 8080,
                             .objectPath = "\\currency\\save file.txt",
                             .userName = "us\xC3\xA9r",
                             .password = "pw"}),
              "GET /currency/save%20file.txt HTTP/1.0\r\nHost: host:8080\r\n"
              "Authorization: Basic dXPDqXI6cHc=\r\nAccept-Encoding: identity\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(Base64("") + Base64("f") + Base64("fo") + Base64("foo") + Base64("foob"),
              "Zg==Zm8=Zm9vZm9vYg==");
}

}  // namespace
}  // namespace quorix
