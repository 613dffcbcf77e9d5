#include "reference/constant_text.h"

#include <algorithm>

#include "engine/number_locale.h"
#include "engine/text_fold.h"
#include "platform/trim.h"

namespace quorix {

namespace {

constexpr std::u16string_view kFormulaGroups[] = {u"Area Formula", u"Volume Formula"};

bool HoldsFormulas(std::u16string_view group) {
    return std::ranges::any_of(kFormulaGroups,
                               [&](std::u16string_view name) { return EqualsIgnoringCase(name, group); });
}

/// "1.5e+3" as "1.5exp(3)".
std::u16string WithScaleOperator(std::u16string text) {
    text.insert(text.rfind(u'e') + 1, 1, u'(');
    std::erase(text, u'+');
    for (std::size_t at = text.find(u'e'); at != text.npos; at = text.find(u'e', at + 3)) {
        text.replace(at, 1, u"exp");
    }
    return text + u')';
}

}  // namespace

std::u16string ShownConstant(std::u16string_view value, std::u16string_view numberLocale) {
    std::u16string shown(value);
    std::replace(shown.begin(), shown.end(), u'.', SignsOf(numberLocale).decimal);
    return shown;
}

std::u16string ConstantForEditor(std::u16string_view shown, std::u16string_view group,
                                 std::u16string_view numberLocale) {
    std::u16string text(Trimmed(shown));
    text.resize(std::min(text.find(u' '), text.size()));
    // A value that was shown under another locale has that one's decimal sign.
    std::replace(text.begin(), text.end(), kDisplayComma, u'.');
    text = ShownConstant(text, numberLocale);
    const std::size_t exponent = text.find(u'e');
    if (!HoldsFormulas(group) && exponent != text.npos && text.rfind(u'e') > 0) {
        text = WithScaleOperator(std::move(text));
    }
    return text;
}

}  // namespace quorix
