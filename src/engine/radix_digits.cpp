#include "engine/radix_digits.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quorix {

std::uint32_t ParseUnsignedInRadix(std::u16string_view digits, int radix) {
    if (!IsSupportedRadix(radix)) return 0;
    constexpr std::uint64_t kLimit = std::numeric_limits<std::uint32_t>::max();
    std::uint64_t value = 0;
    for (const char16_t c : digits) {
        const int digit = std::max(DigitValue(c, radix), 0);
        value =
            std::min(value * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(digit), kLimit);
    }
    return static_cast<std::uint32_t>(value);
}

std::u16string UnsignedToRadix(std::uint32_t value, int radix) {
    char digits[32];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), value, radix);
    std::u16string text;
    for (const char* at = digits; at != written.ptr; ++at) {
        text.push_back(static_cast<char16_t>(*at >= 'a' ? *at - 32 : *at));
    }
    return text;
}

}  // namespace quorix
