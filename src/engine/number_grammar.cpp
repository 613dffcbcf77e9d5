#include "engine/number_grammar.h"

#include <charconv>
#include <limits>
#include <string>

#include "engine/text_fold.h"

namespace quorix {
namespace {

std::size_t SkipDigits(std::u16string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

bool IsSign(char16_t c) {
    return c == u'+' || c == u'-';
}

// from_chars tells only that a number is out of range; which side it left by is told by the sign of the
// decimal exponent of its leading digit.
bool IsLarge(std::string_view number) {
    constexpr long kExponentCap = 1000000;
    long exponent = 0;
    const std::size_t mark = number.find_first_of("eE");
    if (mark != std::string_view::npos) {
        const char* first = number.data() + mark + 1;
        if (*first == '+') ++first;
        const auto parsed = std::from_chars(first, number.data() + number.size(), exponent);
        if (parsed.ec != std::errc()) exponent = *first == '-' ? -kExponentCap : kExponentCap;
    }
    const std::string_view digits = number.substr(0, mark);
    const std::size_t leading = digits.find_first_of("123456789");
    const std::size_t point = digits.find('.');
    const long integerEnd = static_cast<long>(point == std::string_view::npos ? digits.size() : point);
    return integerEnd - static_cast<long>(leading) + exponent > 0;
}

}  // namespace

std::size_t NumberPrefixLength(std::u16string_view text) {
    const std::size_t start = !text.empty() && IsSign(text[0]) ? 1 : 0;
    std::size_t end = SkipDigits(text, start);
    if (end == start) return 0;
    if (end < text.size() && text[end] == u'.') end = SkipDigits(text, end + 1);
    if (end < text.size() && FoldLower(text[end]) == u'e') {
        std::size_t digits = end + 1;
        if (digits < text.size() && IsSign(text[digits])) ++digits;
        const std::size_t exponentEnd = SkipDigits(text, digits);
        if (exponentEnd > digits) end = exponentEnd;
    }
    return end;
}

double NumberToDouble(std::u16string_view number) {
    std::string narrow;
    for (const char16_t c : number) narrow.push_back(static_cast<char>(c));
    std::string_view magnitude = narrow;
    const bool negative = magnitude.starts_with('-');
    if (negative || magnitude.starts_with('+')) magnitude.remove_prefix(1);
    double value = 0.0;
    const auto parsed = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), value);
    if (parsed.ec == std::errc::result_out_of_range) {
        value = IsLarge(magnitude) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return negative ? -value : value;
}

}  // namespace quorix
