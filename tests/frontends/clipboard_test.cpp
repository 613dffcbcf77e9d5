#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "engine/number_locale.h"
#include "frontends/context_menu.h"
#include "frontends/paste_text.h"
#include "frontends/string_key_tokens.h"
#include "support/calculator_rig.h"
#include "support/fake_clipboard.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

using testing::CalculatorRig;
using testing::FakeClipboard;

/// Tokens with blanks between them; those that begin or end with a blank show it as "_".
std::string Cut(const TokenText& tokens) {
    std::string shown;
    TokenLine line;
    line.Set(tokens.text, tokens.lengths);
    EXPECT_EQ(line.TokenLengths(), tokens.lengths);
    for (int k = 0; k < line.TokenCount(); ++k) {
        std::string token = ToUtf8(line.Token(k));
        std::replace(token.begin(), token.end(), ' ', '_');
        shown += (k > 0 ? " " : "") + token;
    }
    return shown;
}

constexpr std::u16string_view kUs = u"English (US)";
constexpr std::u16string_view kEuropean = u"European";

void ExpectPaste(std::string_view table, std::u16string_view locale = kUs, int radix = 10) {
    for (const auto& [text, tokens] : Rows(table)) {
        EXPECT_EQ(Cut(TranslatePaste(FromUtf8(text), locale, radix)), tokens) << text;
    }
}

TEST(PasteText, GroupedNumbersAndDecimalSigns) {
    ExpectPaste(
        " 12 + 3*4  -> 1 2 + 3 × 4; 1,234,567.25 -> 1 2 3 4 5 6 7 . 2 5; "
        "1.234.567,25 -> 1 2 3 4 5 6 7 . 2 5; "  // cannot be what the locale says
        "1 234 567.5 8 -> 1 2 3 4 5 6 7 . 5 × 8; 3 4 -> 3 × 4; 12 500/25000 -> 1 2 5 0 0 ÷ 2 5 0 0 0; "
        "1'234 -> 1 2 3 4; gcd(120,180) -> gcd( 1 2 0 , 1 8 0 ); sin(1,234) -> sin( 1 2 3 4 ); "
        "f(1,5) -> f ( 1 , 5 )");
    ExpectPaste(
        "1.234.567,25 -> 1 2 3 4 5 6 7 ¸ 2 5; 1.5 -> 1 ¸ 5; 1.234 -> 1 2 3 4; "
        "gcd(1,5;2) -> gcd( 1 , 5 , 2 )",
        kEuropean);
    ExpectPaste("FF and 0x3c -> F F _and_ 3 C", kUs, 16);
}

TEST(PasteText, ForeignSignsBecomeTokens) {
    ExpectPaste(
        "=2*-3 1/7 -> 2 × (- ( 3 + 1 ÷ 7 ) ); 2**10 \u2013 3/4 -> 2 ^ 1 0 − 3 ÷ 4; "
        "x\u00B2+5\u207B\u00B9\u00B2 -> x ^ 2 + 5 ^ (- 1 2 ); \u221A2 -> 2 √( 2 ); 5\u221A(9) -> 5 √( 9 ); "
        "5\u221A9 -> 5 × 2 √( 9 ); \u221B(8) -> 3 √( 8 ); 2\u03C0 -> 2 pi; 1.5e-3 -> 1 . 5 exp (- 3 ); "
        "6.02E+23 -> 6 . 0 2 exp 2 3; 210^3 -> 2 1 0 ^ 3; 2^-3 -> 2 ^ (- 3 ); 7 mod 3 -> 7 _mod_ 3");
    EXPECT_EQ(Cut(TranslatePaste(u"\x07\xD800\u200B1=", kUs, 10)), "1");
}

TEST(PasteText, ForeignNamesBecomeTokens) {
    ExpectPaste(
        "3sqrt(2) -> 3 × 2 √( 2 ); arcsin(0.5) -> asin( 0 . 5 ); sin\u207B\u00B9(1) -> asin( 1 ); "
        "Sin(30) -> sin( 3 0 ); sin 30 -> sin( 3 0 ); 2xsinx -> 2 x sin( x ); "
        "log10(5)+log2(8) -> log( 5 ) + ( 1 ÷ ln( 2 ) ) × ln( 8 ); exp(2) -> e ^ ( 2 ); "
        "1.5exp(-12) -> 1 . 5 exp (- 1 2 ); [ans]+sum(X) -> [ans] + sum(X); abs(x) -> abs( x ); "
        "sinus -> s i n u s");
}

TEST(PasteText, AnyTextEndsAsALineInLittleTime) {
    constexpr std::u16string_view kPieces[] = {
        u"1",  u"10",   u".",  u",",    u"'",    u" ",   u"e",       u"E-",     u"(",   u")", u"-",
        u"−",  u"^",    u"**", u"sqrt", u"√",    u"∛",   u"⁻¹",      u"²",      u"log", u"x", u"log10(",
        u"pi", u"[ans", u"i",  u"sin",  u"and ", u"mod", u"\xDC00x", u"sum(X)", u"exp", u"A", u"\t"};
    std::mt19937 random(11);
    for (int round = 0; round < 20000; ++round) {
        std::u16string text;
        for (std::size_t pieces = random() % 12; pieces > 0; --pieces) {
            text += kPieces[random() % std::size(kPieces)];
        }
        const TokenText tokens = TranslatePaste(text, round % 2 ? kUs : kEuropean, round % 3 ? 10 : 16);
        Cut(tokens);
        EXPECT_EQ(
            tokens.text.find(u' ') != tokens.text.npos,
            tokens.text.find(u" and ") != tokens.text.npos || tokens.text.find(u" mod ") != tokens.text.npos)
            << ToUtf8(text);
    }
    const auto start = std::chrono::steady_clock::now();
    for (const std::u16string_view piece : kPieces) {
        std::u16string text;
        while (text.size() < (std::size_t{1} << 20U)) {
            text += piece;
        }
        const TokenText tokens = TranslatePaste(text, kUs, 10);
        EXPECT_LE(tokens.text.size(), kLongestLine);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(Clipboard, OurOwnLinesComeBackAsTheSameTokens) {
    std::mt19937 random(5);
    const auto rows = AllStringKeyTokens();
    for (const std::u16string_view locale : {kUs, kEuropean}) {
        for (int round = 0; round < 500; ++round) {
            CalculatorRig rig;
            rig.settings.numberLocale = locale;
            FakeClipboard clipboard;
            for (std::size_t keys = 1 + random() % 20; keys > 0; --keys) {
                rig.Key(random() % 8 == 0 ? std::int32_t{KEY_POINT} : rows[random() % rows.size()].code);
            }
            const std::u16string text = rig.display->GetLine();
            const std::u16string lengths = rig.display->GetTokenLengths();
            CutLine(*rig.display, clipboard);
            EXPECT_EQ(clipboard.content.find(kDisplayComma), std::u16string::npos);
            ASSERT_TRUE(PasteLine(*rig.display, clipboard));
            EXPECT_EQ(rig.display->GetLine(), text);
            EXPECT_EQ(rig.display->GetTokenLengths(), lengths) << ToUtf8(text);
        }
    }
}

TEST(Clipboard, CopiesTheResultBehindEqualsAndAllItsDigits) {
    CalculatorRig rig;
    FakeClipboard clipboard;
    const auto copied = [&](int id) {
        RunContextMenu(id, *rig.display, clipboard);
        return ToUtf8(clipboard.content);
    };
    rig.Type("1234567*10");
    CopyShortcut(*rig.display, clipboard, false);
    EXPECT_EQ(clipboard.content, u"1234567×10");
    rig.Type("=");
    CopyShortcut(*rig.display, clipboard, false);
    EXPECT_EQ(clipboard.content, u"12,345,670");
    CopyShortcut(*rig.display, clipboard, true);
    EXPECT_EQ(clipboard.content, u"1234567×10");
    struct Case {
        const char* keys;
        std::string digits;
    };
    const Case cases[] = {
        {"c 2/3=", "0." + std::string(95, '6') + "7"},
        {"c 1/8/1000=", "0.000125"},
        {"c 0-10^50=", "-1" + std::string(50, '0')},
        {"c 2^400=",
         "2.58224987808690858965591917200301187432970579282922351283065935654064762201684119462964535328"
         "0137831E120"},
        {"c 3/2*10^(0-40)=", "1.5E-40"},
        {"c 1.5-i/4=", "1.5-0.25i"},
        {"c 1-1=", "0"},
    };
    for (const Case& c : cases) {
        rig.Type(c.keys);
        EXPECT_EQ(copied(MENU_COPY_ALL_DIGITS).substr(0, 96), c.digits.substr(0, 96)) << c.keys;
    }
    rig.Type("c 0-1-355/452=");
    rig.display->Key(KEY_FRAC);
    rig.Type("=");
    EXPECT_EQ(copied(MENU_COPY_RESULT), "-1 355/452");
    rig.Type("c");
    PasteShortcut(*rig.display, clipboard);
    rig.Type("*452=");
    EXPECT_EQ(copied(MENU_COPY_ALL_DIGITS), "-807");
    rig.display->Key(KEY_NORM);
    rig.Type("c 1+=");  // a message is no result
    CopyShortcut(*rig.display, clipboard, false);
    EXPECT_EQ(clipboard.content, u"1+");
    const TexConverter toTex = [](std::u16string_view text) { return "$" + ToUtf8(text) + "$"; };
    EXPECT_FALSE(ContextMenuOf(*rig.display, clipboard)[6].enabled);
    EXPECT_TRUE(ContextMenuOf(*rig.display, clipboard, toTex)[6].enabled);
    EXPECT_FALSE(ContextMenuOf(*rig.display, clipboard, toTex)[4].enabled);
    RunContextMenu(MENU_COPY_TEX, *rig.display, clipboard, toTex);
    EXPECT_EQ(clipboard.content, u"$1+$");
}

TEST(Clipboard, BasicModesCopyAndTakeNumbers) {
    for (const std::u16string_view mode : {kModeBasic, kModeRpn}) {
        CalculatorRig rig(mode);
        FakeClipboard clipboard;
        rig.Type("12.5");
        CopyShortcut(*rig.display, clipboard, false);
        EXPECT_EQ(clipboard.content, u"12.5");
        clipboard.content = u"\u22121,234.5";
        ASSERT_TRUE(PasteShortcut(*rig.display, clipboard));
        EXPECT_EQ(rig.Row(), "-1¸234.5");
        for (const std::u16string_view text : {u"1+2", u"sin(3)", u"", u"hello", u"1-2"}) {
            clipboard.content = text;
            EXPECT_FALSE(PasteShortcut(*rig.display, clipboard)) << ToUtf8(text);
        }
        EXPECT_EQ(rig.Row(), "-1¸234.5");
        clipboard.content = u"2e-3";
        ASSERT_TRUE(PasteShortcut(*rig.display, clipboard));
        EXPECT_EQ(rig.Row(), "0.002");
    }
}

}  // namespace
}  // namespace quorix
