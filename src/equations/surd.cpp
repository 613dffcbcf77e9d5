#include "equations/surd.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/text_fold.h"
#include "equations/coefficient_line.h"

namespace quorix {
namespace {

constexpr double kNearInteger = 1e-8;

/// value = outer^2 · inner.
struct SquareSplit {
    std::int64_t outer = 1;
    std::int64_t inner = 1;
};

SquareSplit SplitSquare(std::int64_t value) {
    SquareSplit split;
    for (const PrimePower& factor : FactorInteger(value)) {
        for (int i = 0; i < factor.exponent / 2; ++i) split.outer *= factor.prime;
        if (factor.exponent % 2 != 0) split.inner *= factor.prime;
    }
    split.inner *= value;
    return split;
}

std::u16string Text(std::int64_t value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

/// The text behind "W " up to the "/", with "W*D+" before it when there is a whole part.
std::u16string TopText(std::u16string_view text, std::u16string_view& bottom) {
    const std::size_t blank = text.find(u' ');
    const std::u16string_view whole = blank == text.npos ? std::u16string_view() : text.substr(0, blank);
    const std::u16string_view fraction = blank == text.npos ? text : text.substr(blank + 1);
    const std::size_t slash = fraction.find(u'/');
    bottom = slash == text.npos ? std::u16string_view() : fraction.substr(slash + 1);
    std::u16string top;
    if (!whole.empty() && !bottom.empty()) top.append(whole).append(u"*").append(bottom).append(u"+");
    return top.append(fraction.substr(0, slash));
}

/// Value of a text of the engine; digits alone are read as they stand.
double IntegerValue(std::u16string_view text) {
    constexpr std::size_t kExactDigits = 15;
    if (text.empty() || text.size() > kExactDigits || !std::ranges::all_of(text, IsDigit)) {
        return CoefficientValue(text);
    }
    double value = 0.0;
    for (const char16_t digit : text) value = value * 10.0 + (digit - u'0');
    return value;
}

bool IsWholeOf32Bits(double value) {
    return value >= 0.0 && value <= std::numeric_limits<std::uint32_t>::max() &&
           value - std::trunc(value) <= kNearInteger;
}

}  // namespace

Surd SimplifySurd(std::u16string_view text) {
    std::u16string_view bottomText;
    const double top = IntegerValue(TopText(text, bottomText));
    if (!IsWholeOf32Bits(top)) {
        std::u16string sum(text);
        if (const std::size_t blank = sum.find(u' '); blank != sum.npos) sum[blank] = u'+';
        return {u"sqrt(" + sum + u")", {1, 1}};
    }
    const SquareSplit over = SplitSquare(static_cast<std::int64_t>(top));
    if (over.inner == 0) return {u"0", {1, 1}};
    SquareSplit under;
    if (!bottomText.empty()) under = SplitSquare(static_cast<std::int64_t>(IntegerValue(bottomText)));
    std::u16string inner = u"sqrt(" + Text(over.inner);
    if (under.inner > 1) inner += u'/' + Text(under.inner);
    return {inner + u")", {static_cast<std::int32_t>(over.outer), static_cast<std::int32_t>(under.outer)}};
}

}  // namespace quorix
