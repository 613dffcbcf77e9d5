#include "frontends/key_names.h"

#include <algorithm>
#include <array>
#include <vector>

#include "engine/text_fold.h"
#include "frontends/key_codes.h"
#include "frontends/string_key_tokens.h"

namespace quorix {

namespace {

constexpr KeyName kOtherNames[] = {
    {u"ans", KEY_ANSWER},      {u"sqrt", KEY_SQUARE_ROOT},
    {u"cbrt", KEY_CUBE_ROOT},  {u"root", KEY_ROOT},
    {u"lg", KEY_LOG},          {u"log10", KEY_LOG},
    {u"fnInt", KEY_INTEGRAL},  {u"fnDeriv", KEY_DERIVATIVE},
    {u"fnEval", KEY_EVALUATE}, {u"fnProduct", KEY_PRODUCT},
    {u"fnSum", KEY_SUMMATION}, {u"arcsin", KEY_ASIN},
    {u"arccos", KEY_ACOS},     {u"arctan", KEY_ATAN},
    {u"arccsc", KEY_ACSC},     {u"arcsec", KEY_ASEC},
    {u"arcsinh", KEY_ASINH},   {u"arccosh", KEY_ACOSH},
    {u"arctanh", KEY_ATANH},   {u"arsinh", KEY_ASINH},
    {u"arcosh", KEY_ACOSH},    {u"artanh", KEY_ATANH},
    {u"cosec", KEY_CSC},
};

std::vector<KeyName> AllNames() {
    std::vector<KeyName> names;
    for (const StringKeyTokens& row : AllStringKeyTokens()) {
        std::u16string_view word = TrimBlanks(row.first);
        word = word.substr(0, word.find(u'('));
        const bool isWord = !word.empty() && std::all_of(word.begin(), word.end(), IsAsciiLetter);
        const bool isItself = word.size() == 1 && row.code != KEY_I && row.code != KEY_N;
        if (isWord && !isItself) {
            names.push_back({word, row.code});
        }
    }
    names.insert(names.end(), std::begin(kOtherNames), std::end(kOtherNames));
    return names;
}

}  // namespace

std::span<const KeyName> KeyNames() {
    static const std::vector<KeyName> names = AllNames();
    return names;
}

const KeyName* LongestKeyName(std::u16string_view text) {
    const KeyName* found = nullptr;
    for (const KeyName& name : KeyNames()) {
        if ((found == nullptr || name.name.size() > found->name.size()) &&
            EqualsIgnoringCase(text.substr(0, name.name.size()), name.name)) {
            found = &name;
        }
    }
    return found;
}

}  // namespace quorix
