#include "engine/radix_conversion.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "engine/calc_context.h"
#include "engine/engine_errors.h"
#include "engine/number_grammar.h"
#include "engine/radix_digits.h"
#include "engine/text_fold.h"

namespace quorix {
namespace {

bool IsSpacedSign(char16_t c) {
    return c == u'*' || c == u'+' || c == u'-' || c == u'/';
}

// Length of the number that opens a word: digits of the radix, in decimal with an exponent ("2E3") but no
// point.
std::size_t NumberLength(std::u16string_view word, int radix) {
    if (radix == 10) return NumberPrefixLength(word);
    const auto end = std::ranges::find_if(word, [radix](char16_t c) { return DigitValue(c, radix) < 0; });
    return static_cast<std::size_t>(end - word.begin());
}

std::uint32_t NumberValue(std::u16string_view number, int radix) {
    const bool isPlain = std::ranges::all_of(number, IsDigit) || radix == 16;
    if (isPlain) return ParseUnsignedInRadix(number, radix);
    return static_cast<std::uint32_t>(
        std::min(std::floor(NumberToDouble(number)), double{std::numeric_limits<std::uint32_t>::max()}));
}

// Decimal text is signed; in the other radices a negative value is its two's complement.
std::u16string WriteNumber(std::uint32_t value, int radix) {
    const auto asSigned = static_cast<std::int32_t>(value);
    if (radix != 10 || asSigned >= 0) return UnsignedToRadix(value, radix);
    return u'-' + UnsignedToRadix(0U - value, 10);
}

}  // namespace

std::optional<std::u16string> ConvertExpressionRadix(std::u16string_view text, int fromRadix, int toRadix) {
    const std::uint32_t mask = WordMask(calcContext().wordSize);
    std::u16string converted;
    for (std::size_t at = 0; at < text.size();) {
        const char16_t c = text[at];
        if (IsWordCharacter(c)) {
            std::size_t end = at;
            while (end < text.size() && IsWordCharacter(text[end])) ++end;
            std::u16string_view word = text.substr(at, end - at);
            if (DigitValue(c, fromRadix) >= 0) {
                const std::size_t length = NumberLength(word, fromRadix);
                converted += WriteNumber(NumberValue(word.substr(0, length), fromRadix) & mask, toRadix);
                word.remove_prefix(length);
            }
            converted += word;
            at = end;
            continue;
        }
        const bool besideSign =
            (at > 0 && IsSpacedSign(text[at - 1])) || (at + 1 < text.size() && IsSpacedSign(text[at + 1]));
        if (c != u' ' || !besideSign) converted.push_back(c);
        ++at;
    }
    if (converted.empty()) {
        calcContext().calcError = ERROR_RADIX_CONVERSION;
        return std::nullopt;
    }
    return converted;
}

}  // namespace quorix
