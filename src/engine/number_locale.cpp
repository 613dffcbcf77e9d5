#include "engine/number_locale.h"

#include <algorithm>

#include "engine/identifiers.h"
#include "engine/text_fold.h"

namespace quorix {
namespace {

constexpr char16_t kMinusSign = 0x2212;

// Characters that make a text a word, such as a message. The range is taken as it stands: it begins at "B".
bool IsWord(std::u16string_view text) {
    return std::ranges::any_of(text,
                               [](char16_t c) { return c >= u'B' && c <= u'y' && c != u'E' && c != u'e'; });
}

// No separator stands directly behind a sign or an exponent mark.
bool MayPrecedeSeparator(char16_t c, char16_t thousands) {
    return c != thousands && c != u'-' && c != kMinusSign && c != u'e' && c != u'E';
}

// Sets `thousands` between the groups of three digits that end before `end`.
void GroupDigits(std::u16string& text, std::size_t end, char16_t thousands) {
    constexpr std::size_t kGroup = 3;
    while (end > 0 && !IsDigit(text[end - 1])) --end;
    std::size_t runStart = end;
    while (runStart > 0 && IsDigit(text[runStart - 1])) --runStart;
    for (std::size_t at = end; at > runStart + kGroup;) {
        at -= kGroup;
        if (MayPrecedeSeparator(text[at - 1], thousands)) text.insert(at, 1, thousands);
    }
}

}  // namespace

NumberSigns SignsOf(std::u16string_view numberLocale) {
    if (numberLocale == u"European") return {kDisplayComma, u'.'};
    return {u'.', kDisplayComma};
}

void ExchangeDecimalSigns(std::u16string& text) {
    for (char16_t& c : text) {
        c = c == u'.' ? kDisplayComma : c == kDisplayComma ? u'.' : c;
    }
}

void ApplySeparators(std::u16string& text, std::u16string_view numberLocale, std::int32_t radixId) {
    if (radixId != RADIX_DEC || text.empty() || IsWord(text)) return;
    const NumberSigns signs = SignsOf(numberLocale);
    // In the European locale a display's comma that is already there is the decimal mark too; in the English
    // ones it is a separator of before.
    if (signs.decimal == kDisplayComma) {
        std::ranges::replace(text, kDisplayComma, u'.');
    } else {
        std::erase(text, kDisplayComma);
    }
    const std::size_t mark = std::min(text.find(u'.'), text.size());
    std::ranges::replace(text, u'.', signs.decimal);
    GroupDigits(text, mark, signs.thousands);
    const std::size_t start = text.find_first_not_of(u' ');
    text.erase(0, std::min(start, text.size()));
}

}  // namespace quorix
