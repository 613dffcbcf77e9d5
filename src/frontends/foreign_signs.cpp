#include "frontends/foreign_signs.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "engine/number_locale.h"
#include "frontends/display_symbols.h"

namespace quorix {

namespace {

struct ForeignSign {
    char16_t sign;
    std::u16string_view token;
};

constexpr ForeignSign kSigns[] = {
    {u'*', u"\u00D7"},     {0x00B7, u"\u00D7"}, {0x2217, u"\u00D7"}, {0x2219, u"\u00D7"}, {0x22C5, u"\u00D7"},
    {0x2022, u"\u00D7"},   {0x2715, u"\u00D7"}, {0x2062, u"\u00D7"}, {u'/', u"\u00F7"},   {0x2044, u"\u00F7"},
    {0x2215, u"\u00F7"},   {u'-', u"\u2212"},   {0x2010, u"\u2212"}, {0x2011, u"\u2212"}, {0x2012, u"\u2212"},
    {0x2013, u"\u2212"},   {0x2014, u"\u2212"}, {0xFF0D, u"\u2212"}, {0xFF0B, u"+"},      {u';', u","},
    {kDisplayComma, u","}, {0x03C0, u"pi"},     {0x02C6, u"^"},
};

/// Superscripts, each with what it raises.
constexpr std::pair<char16_t, char16_t> kSuperscripts[] = {
    {0x2070, u'0'}, {0x00B9, u'1'}, {0x00B2, u'2'}, {0x00B3, u'3'}, {0x2074, u'4'}, {0x2075, u'5'},
    {0x2076, u'6'}, {0x2077, u'7'}, {0x2078, u'8'}, {0x2079, u'9'}, {0x207A, u'+'}, {0x207B, symbols::kMinus},
    {0x207D, u'('}, {0x207E, u')'}, {0x207F, u'n'}, {0x2071, u'i'}, {0x02E3, u'x'},
};

constexpr bool IsBlank(char16_t c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == 0x00A0 || (c >= 0x2000 && c <= 0x200A) ||
           c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}
constexpr bool IsUnseen(char16_t c) {
    return c < u' ' || (c >= 0x7F && c < 0xA0) || c == 0x00AD || (c >= 0x200B && c <= 0x200F) ||
           (c >= 0x2060 && c <= 0x2061) || (c >= 0xD800 && c <= 0xDFFF) || c == 0xFEFF;
}

}  // namespace

std::u16string_view TokenOfSign(char16_t sign) {
    const auto* const row = std::find_if(std::begin(kSigns), std::end(kSigns),
                                         [sign](const ForeignSign& entry) { return entry.sign == sign; });
    return row != std::end(kSigns) ? row->token : std::u16string_view();
}

char16_t RaisedBy(char16_t c) {
    for (const auto& [superscript, raised] : kSuperscripts) {
        if (superscript == c) {
            return raised;
        }
    }
    return 0;
}

std::u16string TidyText(std::u16string_view text, std::size_t longest) {
    std::u16string tidy;
    for (const char16_t c : text.substr(0, longest)) {
        if (IsBlank(c)) {
            if (!tidy.ends_with(u' ')) {
                tidy += u' ';
            }
        } else if (!IsUnseen(c)) {
            tidy += c;
        }
    }
    while (!tidy.empty() && (tidy.back() == u' ' || tidy.back() == u'=')) {
        tidy.pop_back();
    }
    return tidy;
}

}  // namespace quorix
