#include "tools/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quorix {

namespace {

/// Room for the largest double with some decimals.
constexpr std::size_t kRoom = 400;

std::u16string Widened(std::string_view text) {
    return {text.begin(), text.end()};
}

std::u16string FloatingText(double value, std::chars_format format, int precision) {
    std::array<char, kRoom> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    std::string_view text(buffer.data(), end.ptr);
    // Zero has no sign, nor has what rounds to it.
    if (text.starts_with('-') && text.find_first_not_of("-0.") == text.npos) {
        text.remove_prefix(1);
    }
    return Widened(text);
}

/// The part of `text` that a number may stand in, in 8-bit characters.
std::string Narrowed(std::u16string_view text) {
    const std::size_t start = text.find_first_not_of(u" \t\r\n");
    std::string narrow;
    for (const char16_t c : start == std::u16string_view::npos ? text.substr(0, 0) : text.substr(start)) {
        if (c >= 0x80 || narrow.size() == kRoom) {
            break;
        }
        narrow.push_back(static_cast<char>(c));
    }
    if (narrow.starts_with('+') && !narrow.starts_with("+-")) {
        narrow.erase(0, 1);
    }
    return narrow;
}

}  // namespace

std::u16string IntegerText(std::int64_t value) {
    return Widened(std::to_string(value));
}

std::u16string WideFixedText(double value, int decimals) {
    return FloatingText(value, std::chars_format::fixed, decimals);
}

std::u16string GeneralText(double value, int digits) {
    return FloatingText(value, std::chars_format::general, digits);
}

double ReadNumber(std::u16string_view text) {
    const std::string narrow = Narrowed(text);
    double value = 0.0;
    const auto end = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
    return end.ec == std::errc() && std::isfinite(value) ? value : 0.0;
}

std::int64_t ReadInteger(std::u16string_view text) {
    using Limits = std::numeric_limits<std::int64_t>;
    const std::string narrow = Narrowed(text);
    std::int64_t value = 0;
    const auto end = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
    if (end.ec == std::errc::result_out_of_range) {
        return narrow.starts_with('-') ? Limits::min() : Limits::max();
    }
    return end.ec == std::errc() ? value : 0;
}

}  // namespace quorix
