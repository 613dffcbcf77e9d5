#include <string>

#include "tools/calendar_names.h"
#include "tools/calendar_rules.h"
#include "tools/solar_date.h"

namespace quorix {

namespace {

constexpr std::u16string_view kPatternLetters = u"YyMmNnDdJjHhGgIiSs";
constexpr char16_t kEscape = u'/';

void AppendNumber(std::u16string& text, std::int32_t value) {
    for (const char digit : std::to_string(value)) {
        text.push_back(static_cast<char16_t>(digit));
    }
}

/// The lowest `places` digits of the magnitude, with leading zeros.
void AppendPadded(std::u16string& text, std::int64_t value, std::size_t places) {
    std::u16string digits(places, u'0');
    std::int64_t rest = value < 0 ? -value : value;
    for (std::size_t i = places; i-- > 0; rest /= 10) {
        digits[i] = static_cast<char16_t>(u'0' + rest % 10);
    }
    text += digits;
}

void AppendTwoDigitsOrPlain(std::u16string& text, std::int32_t value, bool padded) {
    if (padded) {
        AppendPadded(text, value, 2);
    } else {
        AppendNumber(text, value);
    }
}

std::int32_t TwelveHourClock(std::int32_t hour) {
    const auto rest = static_cast<std::int32_t>(FloorModulo(hour, 12));
    return rest == 0 ? 12 : rest;
}

void AppendField(std::u16string& text, char16_t letter, const SolarDate& date) {
    const bool padded = letter < u'a';
    switch (letter) {
        case u'Y': AppendPadded(text, date.year, 4); break;
        case u'y': AppendPadded(text, date.year, 2); break;
        case u'M':
        case u'm': AppendTwoDigitsOrPlain(text, date.month, padded); break;
        case u'N':
        case u'n': text += ShortMonthName(date.month); break;
        case u'D':
        case u'd': AppendTwoDigitsOrPlain(text, date.day, padded); break;
        case u'J':
        case u'j': text += ShortWeekDayName(date.DayOfWeek(false)); break;
        case u'H':
        case u'h': AppendTwoDigitsOrPlain(text, date.hour, padded); break;
        case u'G':
        case u'g': AppendTwoDigitsOrPlain(text, TwelveHourClock(date.hour), padded); break;
        case u'I':
        case u'i': AppendTwoDigitsOrPlain(text, date.minute, padded); break;
        default: AppendTwoDigitsOrPlain(text, date.second, padded); break;
    }
}

}  // namespace

std::u16string SolarDate::FormatDate(std::u16string_view pattern) const {
    std::u16string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == kEscape) {
            ++i;
            if (i < pattern.size()) {
                text.push_back(pattern[i]);
            }
        } else if (kPatternLetters.find(pattern[i]) != std::u16string_view::npos) {
            AppendField(text, pattern[i], *this);
        } else {
            text.push_back(pattern[i]);
        }
    }
    return text;
}

}  // namespace quorix
