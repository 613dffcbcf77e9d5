#include "platform/sound.h"

#include <algorithm>
#include <string_view>

namespace quorix {

namespace {

constexpr std::size_t kTagBytes = 4;
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kRiffHead = 12;
constexpr std::size_t kFormatBytes = 16;
constexpr std::uint32_t kPcm = 1;

bool HasTag(std::span<const std::uint8_t> file, std::size_t at, std::string_view tag) {
    return std::string_view(reinterpret_cast<const char*>(file.data()) + at, kTagBytes) == tag;
}

std::uint32_t NumberAt(std::span<const std::uint8_t> file, std::size_t at, int size) {
    std::uint32_t value = 0;
    for (int i = 0; i < size; ++i) {
        value |= static_cast<std::uint32_t>(file[at + static_cast<std::size_t>(i)]) << (8 * i);
    }
    return value;
}

bool IsPlainFormat(std::span<const std::uint8_t> file, std::size_t at) {
    const std::uint32_t channels = NumberAt(file, at + 2, 2);
    const std::uint32_t bits = NumberAt(file, at + 14, 2);
    return NumberAt(file, at, 2) == kPcm && (channels == 1 || channels == 2) &&
           NumberAt(file, at + 4, 4) > 0 && (bits == 8 || bits == 16 || bits == 32);
}

}  // namespace

bool IsPlainWave(std::span<const std::uint8_t> file) {
    if (file.size() < kRiffHead || !HasTag(file, 0, "RIFF") || !HasTag(file, 8, "WAVE")) {
        return false;
    }
    bool formatSeen = false;
    for (std::size_t at = kRiffHead; file.size() - at >= kChunkHead;) {
        const std::size_t length = NumberAt(file, at + kTagBytes, 4);
        const std::size_t body = at + kChunkHead;
        if (length > file.size() - body) {
            return false;
        }
        if (HasTag(file, at, "data")) {
            return formatSeen && length > 0;
        }
        if (HasTag(file, at, "fmt ")) {
            if (length < kFormatBytes || !IsPlainFormat(file, body)) {
                return false;
            }
            formatSeen = true;
        }
        // Chunks of odd length are followed by a byte of padding.
        at = std::min(body + length + length % 2, file.size());
    }
    return false;
}

}  // namespace quorix
