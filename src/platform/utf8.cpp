#include "platform/utf8.h"

#include <cstdint>

namespace quorix {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c) {
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (c < 0x80) {
        out += byte(c);
    } else if (c < 0x800) {
        out += byte(0xC0 | c >> 6);
        out += byte(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += byte(0xE0 | c >> 12);
        out += byte(0x80 | (c >> 6 & 0x3F));
        out += byte(0x80 | (c & 0x3F));
    } else {
        out += byte(0xF0 | c >> 18);
        out += byte(0x80 | (c >> 12 & 0x3F));
        out += byte(0x80 | (c >> 6 & 0x3F));
        out += byte(0x80 | (c & 0x3F));
    }
}

/// One code point from the front of `text`, which it shortens; one byte is taken where the form is malformed.
char32_t TakeCodePoint(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80       ? 1
                               : first >> 5 == 6  ? 2
                               : first >> 4 == 14 ? 3
                               : first >> 3 == 30 ? 4
                                                  : 0;
    constexpr char32_t kFirstMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    char32_t c = first & kFirstMask[length];
    bool wellFormed = length != 0 && length <= text.size();
    for (std::size_t i = 1; wellFormed && i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        wellFormed = next >> 6 == 2;
        c = c << 6 | (next & 0x3F);
    }
    if (!wellFormed || c < kSmallest[length] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        text.remove_prefix(1);
        return kReplacement;
    }
    text.remove_prefix(length);
    return c;
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool high = unit >= 0xD800 && unit <= 0xDBFF;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
            AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00U));
        } else {
            AppendUtf8(out, unit >= 0xD800 && unit <= 0xDFFF ? kReplacement : unit);
        }
    }
    return out;
}

std::u16string FromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = TakeCodePoint(text);
        if (c >= 0x10000) {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            out += static_cast<char16_t>(c);
        }
    }
    return out;
}

std::u16string FromUtf8OrLatin1(std::string_view text) {
    std::u16string wide = FromUtf8(text);
    const bool malformed = wide.find(u'\uFFFD') != wide.npos && text.find("\xEF\xBF\xBD") == text.npos;
    if (malformed) {
        wide.clear();
        for (const char c : text) {
            wide += static_cast<unsigned char>(c);
        }
    }
    return wide;
}

}  // namespace quorix
