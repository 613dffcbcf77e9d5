#include "frontends/type_ahead.h"

#include <gtest/gtest.h>

#include "frontends/panel_keys.h"
#include "frontends/string_key_tokens.h"
#include "support/calculator_rig.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

using testing::CalculatorRig;

/// Types as the frame does: the list first, then the key of the character. "\r" accepts.
void Type(CalculatorRig& rig, TypeAhead& list, std::u16string_view text) {
    for (const char16_t c : text) {
        if (c == u'\r') {
            list.HandleKey(TypeAheadKey::accept);
        } else if (!list.HandleCharacter(c)) {
            rig.Key(KeyOfCharacter(c, rig.display->GetBase()));
        }
    }
}

TEST(TypeAhead, EveryNameCanBeTypedAndComesAsItsKey) {
    for (const StringKeyTokens& row : AllStringKeyTokens()) {
        std::u16string name(row.first.substr(0, row.first.find(u'(')));
        std::erase(name, u' ');
        if (name.size() < 2 || !std::isalpha(static_cast<unsigned char>(name.front()))) {
            continue;
        }
        CalculatorRig expected;
        expected.Key(row.code);
        CalculatorRig rig;
        TypeAhead list(*rig.display);
        Type(rig, list, name[0] == u'x' ? u"X" + name.substr(1) + u"\r" : name + u"\r");
        EXPECT_EQ(rig.display->GetLine(), expected.display->GetLine());
        EXPECT_EQ(rig.display->GetTokenLengths(), expected.display->GetTokenLengths()) << ToUtf8(name);
    }
}

TEST(TypeAhead, TypedExpressions) {
    const auto typed = [](std::string_view text, bool open) {
        CalculatorRig rig;
        TypeAhead list(*rig.display);
        Type(rig, list, FromUtf8(text));
        EXPECT_EQ(list.IsOpen(), open) << text;
        return rig.Row();
    };
    for (const auto& [text, line] :
         Rows("sin(30)+2 -> sin(30)+2; 3*pi+x -> 3×pi+x; 2i+1 -> 2i+1; e^2 -> e^2; 1e5 -> 1exp5; "
              "7 mod 3 -> 7 mod 3; log10(5 -> log(5; sqrt(9 -> 2√(9; 1x -> 1x; q -> ")) {
        EXPECT_EQ(typed(text, false), line) << text;
    }
    // No half word is lost.
    EXPECT_EQ(typed("si+", true), "");
    EXPECT_EQ(typed("siq2", true), "");
}

TEST(TypeAhead, ListAndKeys) {
    CalculatorRig rig;
    TypeAhead list(*rig.display);
    list.SetMacros({{u"sinGap", u"sinGap(a,b)"}});
    EXPECT_FALSE(list.HandleKey(TypeAheadKey::down));
    Type(rig, list, u"sin");
    std::vector<std::u16string> names;
    for (const auto& candidate : list.Candidates()) {
        names.emplace_back(candidate.name);
    }
    EXPECT_EQ(names, (std::vector<std::u16string>{u"sin", u"sinh", u"sinGap"}));
    list.HandleKey(TypeAheadKey::up);
    EXPECT_EQ(list.Chosen(), 2U);
    list.HandleKey(TypeAheadKey::accept);
    EXPECT_EQ(rig.Row(), "sinGap(a,b)");
    Type(rig, list, u"si");
    list.HandleKey(TypeAheadKey::backspace);
    EXPECT_EQ(list.Prefix(), u"s");
    list.HandleKey(TypeAheadKey::backspace);
    EXPECT_FALSE(list.IsOpen());
    Type(rig, list, u"si");
    list.HandleKey(TypeAheadKey::escape);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(rig.Row(), "sinGap(a,b)");
}

TEST(TypeAhead, LettersWithAMeaningKeepIt) {
    CalculatorRig rig;
    TypeAhead list(*rig.display);
    for (const char16_t c : std::u16string_view(u"xMR")) {
        EXPECT_FALSE(list.HandleCharacter(c));
    }
    Type(rig, list, u"ma");
    EXPECT_TRUE(list.HandleCharacter(u'x'));
    EXPECT_EQ(list.Prefix(), u"max");
    list.Close();
    rig.display->Key(KEY_HEX);
    Type(rig, list, u"aFc");
    EXPECT_EQ(rig.Row(), "AFC");
    rig.settings.inputMode = kModeBasic;
    EXPECT_FALSE(list.HandleCharacter(u's'));
}

}  // namespace
}  // namespace quorix
