#include "platform/http_exchange.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "platform/trim.h"

namespace quorix {

namespace {

constexpr std::size_t kMostChunkLine = 256;

constexpr char LowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool SameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

std::optional<std::size_t> ReadSize(std::string_view digits, int radix) {
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, radix);
    if (error != std::errc{} || end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return value;
}

void AppendEncoded(std::string& out, char c) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && byte < 0x7F) {
        out += c;
    } else {
        out += '%';
        out += kHex[byte >> 4];
        out += kHex[byte & 15];
    }
}

/// A header's value on one line.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::erase_if(line, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    return line;
}

}  // namespace

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view group = bytes.substr(at, 3);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            text += i <= group.size() ? kAlphabet[bits >> (18 - 6 * i) & 63] : '=';
        }
    }
    return text;
}

std::string FormatHttpGet(const HttpRequest& request) {
    std::string path = "/";
    for (const char c : request.objectPath) {
        const bool slash = c == '\\' || c == '/';
        if (slash && path.size() == 1) {
            continue;
        }
        AppendEncoded(path, slash ? '/' : c);
    }
    std::string host = OneLine(request.server);
    if (request.port != 80) {
        host += ":" + std::to_string(request.port);
    }
    return "GET " + path + " HTTP/1.0\r\nHost: " + host + "\r\nAuthorization: Basic " +
           Base64(request.userName + ":" + request.password) +
           "\r\nAccept-Encoding: identity\r\nConnection: close\r\n\r\n";
}

HttpAnswer::State HttpAnswer::Take(std::span<const std::uint8_t> bytes) {
    while (state_ == State::head && !bytes.empty()) {
        TakeHeadByte(static_cast<char>(bytes.front()));
        bytes = bytes.subspan(1);
    }
    if (state_ == State::body) {
        TakeBody(bytes);
    }
    return state_;
}

HttpAnswer::State HttpAnswer::Close() {
    if (state_ == State::head || state_ == State::body) {
        const bool whole = state_ == State::body && !hasLength_ && chunk_ == Chunk::none;
        state_ = whole ? State::done : State::failed;
    }
    return state_;
}

void HttpAnswer::TakeHeadByte(char c) {
    constexpr std::string_view kProtocol = "HTTP/";
    head_ += c;
    const std::size_t known = std::min(head_.size(), kProtocol.size());
    if (head_.size() > kMostHeadBytes || head_.compare(0, known, kProtocol, 0, known) != 0) {
        state_ = State::failed;
    } else if (head_.ends_with("\r\n\r\n") || head_.ends_with("\n\n")) {
        FinishHead();
    }
}

void HttpAnswer::FinishHead() {
    const std::string head = std::move(head_);
    head_.clear();
    std::string_view rest = head;
    const std::string_view status = rest.substr(0, rest.find('\n'));
    const std::size_t code = status.find(' ');
    if (code != status.npos && status.substr(code + 1, 1) == "1") {
        return;  // An interim answer; the one that counts follows.
    }
    state_ = State::body;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        ReadHeaderLine(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    CheckLength();
}

void HttpAnswer::ReadHeaderLine(std::string_view line) {
    const std::size_t colon = std::min(line.find(':'), line.size());
    const std::string_view name = line.substr(0, colon);
    const std::string_view value = Trimmed(line.substr(std::min(colon + 1, line.size())));
    if (SameName(name, "Content-Length")) {
        const auto length = ReadSize(value, 10);
        hasLength_ = length.has_value();
        length_ = length.value_or(0);
        if (!hasLength_ || (wantedBytes_ == 0 && length_ > mostBytes_)) {
            state_ = State::failed;
        }
    } else if (SameName(name, "Transfer-Encoding") && SameName(value, "chunked")) {
        chunk_ = Chunk::size;
    }
}

void HttpAnswer::TakeBody(std::span<const std::uint8_t> bytes) {
    if (chunk_ != Chunk::none) {
        TakeChunked(bytes);
    } else {
        Append(hasLength_ ? bytes.first(std::min(bytes.size(), length_ - body_.size())) : bytes);
        CheckLength();
    }
}

void HttpAnswer::CheckLength() {
    if (state_ == State::body && chunk_ == Chunk::none && hasLength_ && body_.size() >= length_) {
        state_ = State::done;
    }
}

void HttpAnswer::TakeChunked(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty() && state_ == State::body) {
        if (chunk_ == Chunk::data) {
            const std::size_t count = std::min(bytes.size(), chunkLeft_);
            Append(bytes.first(count));
            bytes = bytes.subspan(count);
            chunkLeft_ -= count;
            chunk_ = chunkLeft_ == 0 ? Chunk::dataEnd : Chunk::data;
            continue;
        }
        const char c = static_cast<char>(bytes.front());
        bytes = bytes.subspan(1);
        if (c != '\n') {
            chunkLine_ += c;
            state_ = chunkLine_.size() > kMostChunkLine ? State::failed : state_;
        } else if (chunk_ == Chunk::dataEnd) {
            chunkLine_.clear();
            chunk_ = Chunk::size;
        } else {
            FinishChunkSize();
        }
    }
}

// The trailer behind the last chunk is not waited for.
void HttpAnswer::FinishChunkSize() {
    const auto size = ReadSize(Trimmed(std::string_view(chunkLine_).substr(0, chunkLine_.find(';'))), 16);
    chunkLine_.clear();
    if (!size) {
        state_ = State::failed;
    } else if (*size == 0) {
        state_ = State::done;
    } else {
        chunkLeft_ = *size;
        chunk_ = Chunk::data;
    }
}

void HttpAnswer::Append(std::span<const std::uint8_t> bytes) {
    const std::size_t room = (wantedBytes_ != 0 ? wantedBytes_ : mostBytes_) - body_.size();
    const std::size_t taken = std::min(room, bytes.size());
    body_.insert(body_.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(taken));
    if (wantedBytes_ != 0 && body_.size() == wantedBytes_) {
        state_ = State::done;
    } else if (taken < bytes.size()) {
        state_ = State::failed;
    }
}

}  // namespace quorix
