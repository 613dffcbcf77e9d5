#include "reference/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "engine/engine_errors.h"
#include "engine/error_table.h"
#include "engine/identifiers.h"
#include "engine/number_locale.h"
#include "platform/utf8.h"

namespace quorix {

namespace {

constexpr int kResultDecimals = 8;
constexpr double kLargestPositional = 1e12;
constexpr double kSmallestPositional = 1e-8;
constexpr std::size_t kLongestTyped = 128;

std::string TextOf(double value, std::chars_format format, int decimals) {
    char text[400];
    return {text, std::to_chars(text, text + sizeof text, value, format, decimals).ptr};
}

}  // namespace

std::string FixedDecimals(double value, int decimals) {
    return TextOf(value, std::chars_format::fixed, decimals);
}

void StripTrailingZeros(std::string& text) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
}

std::u16string ResultFieldText(double value, std::u16string_view numberLocale) {
    if (!std::isfinite(value)) {
        return std::u16string(ErrorMessageFor(ERROR_INVALID_PARAMETER));
    }
    const double magnitude = std::fabs(value);
    if (magnitude != 0 && (magnitude > kLargestPositional || magnitude < kSmallestPositional)) {
        return FromUtf8(TextOf(value, std::chars_format::scientific, kResultDecimals));
    }
    std::string text = FixedDecimals(magnitude == 0 ? 0.0 : value, kResultDecimals);
    StripTrailingZeros(text);
    std::u16string shown = FromUtf8(text);
    ApplySeparators(shown, numberLocale, RADIX_DEC);
    return shown;
}

std::string NormaliseNumber(std::u16string_view shown, std::u16string_view numberLocale) {
    std::u16string text(shown);
    if (text.find(u'e') == text.npos) {
        const NumberSigns signs = SignsOf(numberLocale);
        std::erase(text, signs.thousands);
        std::replace(text.begin(), text.end(), signs.decimal, u'.');
    }
    std::erase(text, u' ');
    return ToUtf8(text);
}

std::optional<double> NumberShown(std::u16string_view shown, std::u16string_view numberLocale) {
    const std::string text = NormaliseNumber(shown, numberLocale);
    const bool startsWithDigit = text.find_first_of("0123456789") == (text.starts_with('-') ? 1U : 0U);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (!startsWithDigit || end != text.data() + text.size()) {
        return std::nullopt;
    }
    // The engine's numbers reach further than doubles.
    if (error == std::errc::result_out_of_range) {
        const bool small = text.find("E-") != text.npos || text.find("e-") != text.npos;
        return small ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return value;
}

double LeadingNumber(std::u16string_view text) {
    const std::string narrow = ToUtf8(text.substr(0, kLongestTyped));
    std::string_view rest = narrow;
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const std::size_t end = std::min(rest.find_first_not_of("0123456789.eE+-"), rest.size());
    double value = 0;
    std::from_chars(rest.data() + (rest.starts_with('+') ? 1 : 0), rest.data() + end, value);
    return value;
}

}  // namespace quorix
