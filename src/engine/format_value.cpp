#include "engine/format_value.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "engine/calc_context.h"
#include "engine/identifiers.h"
#include "engine/radix_digits.h"
#include "engine/text_fold.h"
#include "numerics/qcore.h"

namespace quorix {
namespace {

constexpr int kMaxDigits = 99;
// Positional form is used from the one to the other, both compared as doubles.
constexpr double kSmallestPositional = 5e-13;
constexpr double kLargestPositional = 1e12;

QReal FromDouble(double value) {
    QReal number;
    etoq(value, number);
    return number;
}

QReal MagnitudeOf(const QReal& value) {
    QReal magnitude = value;
    if (magnitude.IsZero()) {
        qclear(magnitude);
    } else {
        qabs(magnitude);
    }
    return magnitude;
}

bool NeedsExponent(const QReal& magnitude, std::int32_t formatId) {
    static const QReal kSmallest = FromDouble(kSmallestPositional);
    static const QReal kLargest = FromDouble(kLargestPositional);
    if (formatId == FORMAT_SCI) return true;
    return !magnitude.IsZero() && (qcmp(magnitude, kSmallest) < 0 || qcmp(magnitude, kLargest) > 0);
}

// Trims the sign's blank.
std::u16string Widen(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return {text.begin(), text.end()};
}

// A shown zero has no sign.
void DropSignOfZero(std::u16string& text) {
    if (text.starts_with(u'-') && text.find_first_of(u"123456789") == std::u16string::npos) text.erase(0, 1);
}

// Digits of the conversion that show every integer digit of a number at and above ten to the `digits`.
std::u16string LongPositional(const QReal& value, int digits) {
    const std::string scientific = qtoasc(value, digits);
    const std::size_t mark = scientific.find('E');
    int exponent = 0;
    std::from_chars(scientific.data() + mark + 1, scientific.data() + scientific.size(), exponent);
    if (exponent <= kMaxDigits) return Widen(qtoplain(value, std::max(exponent, digits)));
    std::string mantissa = qtoasc(value, kMaxDigits);
    mantissa.resize(mantissa.find('E'));
    std::erase(mantissa, '.');
    mantissa.append(static_cast<std::size_t>(exponent - kMaxDigits), '0');
    return Widen(mantissa);
}

std::u16string Positional(const QReal& value, int digits) {
    // A decimal place takes 3.32 bits; counting 3.23 takes some short numbers for long, which does no harm.
    const int integerBits = value.words[1] - (QReal::kExponentOfOne - 1);
    const bool isLong = integerBits * 31 / 100 >= digits;
    std::u16string text = isLong ? LongPositional(value, digits) : Widen(qtoplain(value, digits));
    DropSignOfZero(text);
    return text;
}

// Carries one unit leftward from the digit before `at`. Result: whether a digit was put in front.
bool CarryLeft(std::u16string& text, std::size_t at) {
    std::size_t first = text.starts_with(u'-') ? 1 : 0;
    while (at > first) {
        char16_t& digit = text[--at];
        if (digit == u'.') continue;
        if (digit < u'9') {
            ++digit;
            return false;
        }
        digit = u'0';
    }
    text.insert(first, 1, u'1');
    return true;
}

// Fixed decimals by rounding the text half up at one digit: a second rounding over that of the conversion.
void FixDecimals(std::u16string& text, int fixedDecimals) {
    const auto decimals = static_cast<std::size_t>(std::max(fixedDecimals, 0));
    std::size_t point = text.find(u'.');
    if (point == std::u16string::npos) {
        if (decimals == 0) return;
        point = text.size();
        text.push_back(u'.');
    }
    std::size_t cut = point + decimals + 1;
    if (cut >= text.size()) {
        text.append(cut - text.size(), u'0');
    } else {
        if (text[cut] >= u'5' && CarryLeft(text, cut)) ++cut;
        text.resize(cut);
    }
    if (text.ends_with(u'.')) text.pop_back();
    DropSignOfZero(text);
}

// What is being typed keeps its point and its trailing zeros.
void ShowTypedDigits(std::u16string& text, int typedDigits) {
    std::size_t point = text.find(u'.');
    if (point == std::u16string::npos) {
        point = text.size();
        text.push_back(u'.');
    }
    const std::size_t length = point + 1 + static_cast<std::size_t>(typedDigits);
    if (text.size() < length) text.append(length - text.size(), u'0');
}

// Saturates at the ends of the range; a negative number is its two's complement. The fraction is dropped.
std::uint32_t ToUnsigned(double value) {
    if (value >= std::numeric_limits<std::uint32_t>::max()) return std::numeric_limits<std::uint32_t>::max();
    if (value >= 0.0) return static_cast<std::uint32_t>(value);
    if (value <= std::numeric_limits<std::int32_t>::min()) return 0x80000000U;
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(value));
}

// The width follows the word size in force, not the identifier that masks.
std::size_t PaddedWidth(int radix) {
    const auto wordSize = static_cast<std::size_t>(std::max(calcContext().wordSize, 0));
    return radix == 2 ? wordSize : radix == 8 ? wordSize / 3 + 1 : wordSize / 4;
}

std::u16string RadixText(const QReal& value, const FormatSettings& settings) {
    const int radix = RadixOf(settings.radixId);
    const std::uint32_t masked = ToUnsigned(qtoe(value)) & WordMask(BitsOf(settings.wordId));
    std::u16string text = UnsignedToRadix(masked, radix);
    const std::size_t width = PaddedWidth(radix);
    if (text.size() < width) text.insert(0, width - text.size(), u'0');
    return text;
}

std::u16string PositionalText(const QReal& value, const FormatSettings& settings, int digits) {
    std::u16string text = Positional(value, digits);
    if (settings.formatId == FORMAT_FIX) FixDecimals(text, settings.fixedDecimals);
    if (settings.typedFractionDigits >= 0) ShowTypedDigits(text, settings.typedFractionDigits);
    return text;
}

FormattedValue ExponentText(const QReal& value, const FormatSettings& settings, int digits) {
    const std::string text = qtoasc(value, digits);
    const std::size_t mark = text.find('E');
    FormattedValue formatted{Widen(std::string_view(text).substr(0, mark)),
                             Widen(std::string_view(text).substr(mark))};
    DropSignOfZero(formatted.mantissa);
    if (settings.typedFractionDigits >= 0) ShowTypedDigits(formatted.mantissa, settings.typedFractionDigits);
    return formatted;
}

}  // namespace

FormattedValue FormatValue(const QReal& value, const FormatSettings& settings) {
    if (RadixOf(settings.radixId) != 10) return {RadixText(value, settings), {}};
    const int digits = std::clamp(settings.digits, 0, kMaxDigits);
    if (NeedsExponent(MagnitudeOf(value), settings.formatId)) return ExponentText(value, settings, digits);
    return {PositionalText(value, settings, digits), {}};
}

std::u16string FormatValuePlain(const QReal& value, const FormatSettings& settings) {
    if (RadixOf(settings.radixId) != 10) return RadixText(value, settings);
    return PositionalText(value, settings, std::clamp(settings.digits, 0, kMaxDigits));
}

}  // namespace quorix
