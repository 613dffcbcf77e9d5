#include "console/utf8.h"

#include <cstdint>

namespace quorix {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

constexpr bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}
constexpr bool IsSurrogate(std::uint32_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

// Length of the sequence that a byte opens, 0 for one that opens none.
constexpr std::size_t SequenceLength(unsigned char byte) {
    if (byte < 0x80) return 1;
    if (byte < 0xC2) return 0;
    if (byte < 0xE0) return 2;
    if (byte < 0xF0) return 3;
    return byte < 0xF5 ? 4 : 0;
}

// Code point of a complete sequence of 2 to 4 bytes.
std::uint32_t CodePoint(std::string_view sequence) {
    std::uint32_t code = static_cast<unsigned char>(sequence[0]) & (0x7FU >> sequence.size());
    for (const char c : sequence.substr(1)) code = code << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    return code;
}

// Bytes of `utf8` at `at` that belong together: a sequence, or as much of one as is there.
std::size_t PresentLength(std::string_view utf8, std::size_t at, std::size_t wanted) {
    std::size_t length = 1;
    while (length < wanted && at + length < utf8.size() &&
           IsContinuation(static_cast<unsigned char>(utf8[at + length]))) {
        ++length;
    }
    return length;
}

}  // namespace

void AppendFromUtf8(std::string_view utf8, std::u16string& text) {
    for (std::size_t at = 0; at < utf8.size();) {
        const auto byte = static_cast<unsigned char>(utf8[at]);
        const std::size_t wanted = SequenceLength(byte);
        if (wanted == 1) {
            text.push_back(byte);
            ++at;
            continue;
        }
        const std::size_t length = PresentLength(utf8, at, wanted);
        const std::uint32_t code = length == wanted ? CodePoint(utf8.substr(at, length)) : kReplacement;
        const bool isOverlong = wanted == 3 && code < 0x800;
        text.push_back(code > 0xFFFF || IsSurrogate(code) || isOverlong ? kReplacement
                                                                        : static_cast<char16_t>(code));
        at += length;
    }
}

void AppendToUtf8(std::u16string_view text, std::string& utf8) {
    for (const char16_t c : text) {
        const std::uint32_t code = IsSurrogate(c) ? kReplacement : c;
        if (code < 0x80) {
            utf8.push_back(static_cast<char>(code));
        } else if (code < 0x800) {
            utf8.push_back(static_cast<char>(0xC0U | code >> 6U));
            utf8.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
        } else {
            utf8.push_back(static_cast<char>(0xE0U | code >> 12U));
            utf8.push_back(static_cast<char>(0x80U | ((code >> 6U) & 0x3FU)));
            utf8.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
        }
    }
}

}  // namespace quorix
