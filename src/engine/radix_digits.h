#pragma once

// Unsigned integers as digit strings of the four radices, and the masks of the word sizes.

#include <cstdint>
#include <string>
#include <string_view>

namespace quorix {

/// Value of an upper-case digit in radix 2, 8, 10 or 16, or -1 when it is none.
constexpr int DigitValue(char16_t c, int radix) {
    const int value = c >= u'0' && c <= u'9' ? c - u'0' : c >= u'A' && c <= u'F' ? c - u'A' + 10 : 99;
    return value < radix ? value : -1;
}

constexpr bool IsSupportedRadix(int radix) {
    return radix == 2 || radix == 8 || radix == 10 || radix == 16;
}

/// The digit string as an unsigned 32-bit integer; beyond the range it saturates. Characters that are no
/// digit of the radix count 0. An unknown radix or an empty string gives 0.
std::uint32_t ParseUnsignedInRadix(std::u16string_view digits, int radix);

/// Digits in upper case without padding; radix 2 to 16.
std::u16string UnsignedToRadix(std::uint32_t value, int radix);

/// 255, 65535 or all ones for 8, 16 and any other number of bits.
constexpr std::uint32_t WordMask(int bits) {
    return bits == 8 ? 0xFFU : bits == 16 ? 0xFFFFU : 0xFFFFFFFFU;
}

}  // namespace quorix
