#include <gtest/gtest.h>

#include <algorithm>

#include "engine/calc_context.h"
#include "frontends/macro_file.h"
#include "frontends/token_line.h"
#include "platform/files.h"
#include "platform/utf8.h"
#include "support/temporary_folder.h"
#include "support/text_rows.h"

namespace quorix {
namespace {

using testing::TemporaryFolder;

Macro Make(std::u16string name, std::u16string parameters, int count, std::u16string body) {
    return {.name = std::move(name),
            .parameters = std::move(parameters),
            .parameterCount = static_cast<std::uint8_t>(count),
            .remark = {},
            .expression = std::move(body),
            .tokenLengths = {}};
}

std::string Expanded(const MacroList& macros, std::u16string line) {
    ClearCalcError();
    return ExpandMacros(macros, line) ? ToUtf8(line) : std::to_string(calcContext().calcError);
}

TEST(Macros, CallsBecomeTheirBodies) {
    MacroList macros;
    macros.Store(Make(u"f", u"α", 1, u"α²+1"));
    macros.Store(Make(u"area", u"α,β", 2, u"α×β"));
    macros.Store(Make(u"c", u"", 0, u"299792458"));
    macros.Store(Make(u"twice", u"α", 1, u"f(α)×2"));
    macros.Store(Make(u"odd", u"a,b", 2, u"a+b"));
    for (const auto& [line, expanded] :
         Rows("2f(3)+1 -> 2((3)²+1)+1; f(f(2)) -> ((((2)²+1))²+1); area( 2 , f(1)) -> ((2)×(((1)²+1))); "
              "area((1,2),3)×c() -> (((1,2))×(3))×(299792458); "
              "twice(5) -> (f((5))×2); "      // a body is not searched again
              "F(3)+fib(5) -> F(3)+fib(5); "  // names mind their case; "f" has no parenthesis there
              "odd(b,7) -> (((7))+(7)); "     // parameters run over what earlier ones have put in
              "area(1,2,3) -> ((1)×(2)); "    // surplus arguments are ignored
              "area(1) -> -52; area(,2) -> -52; f() -> -52; f(2 -> -52; f(area(1)) -> -52")) {
        EXPECT_EQ(Expanded(macros, FromUtf8(line)), expanded) << line;
    }
    // Growth by nesting ends.
    macros.Store(Make(u"g", u"α", 1, u"α+α"));
    std::u16string nested = u"1";
    for (int i = 0; i < 60; ++i) {
        nested = u"g(" + nested + u")";
    }
    EXPECT_TRUE(ExpandMacros(macros, nested));
    EXPECT_GT(nested.size(), kLongestLine);
    EXPECT_LT(nested.size(), 4 * kLongestLine);
}

TEST(Macros, TheListKeepsItsOrderAndMergedNamesStayUnique) {
    MacroList macros;
    for (const char16_t* name : {u"beta", u"Alpha", u"gamma", u"BETA"}) {
        macros.Store(Make(name, u"", 0, name));
    }
    ASSERT_EQ(macros.All().size(), 3U);
    EXPECT_EQ(macros.All()[1].name, u"BETA");
    EXPECT_TRUE(macros.Merge(Make(u"alpha", u"", 0, u"1")));
    EXPECT_TRUE(macros.Merge(Make(u"alpha", u"", 0, u"1"))) << "the same again";
    ASSERT_NE(macros.Find(u"Ma"), nullptr);
    EXPECT_EQ(macros.All().size(), 4U);
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(macros.Merge(Make(u"alpha", u"", 0, std::u16string(static_cast<std::size_t>(i) + 2, u'1'))),
                  i < 25);
    }
    macros.Remove(u"ALPHA");
    EXPECT_EQ(macros.Find(u"alpha"), nullptr);
}

/// "|" stands for the separator.
std::vector<std::uint8_t> Bytes(std::u16string text) {
    std::replace(text.begin(), text.end(), u'|', u'\x06');
    std::vector<std::uint8_t> bytes;
    for (const char16_t c : text) {
        bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    return bytes;
}

TEST(MacroFiles, FilesAreMergedAndWrittenAsOne) {
    const TemporaryFolder folder;
    const std::u16string kFirst = u"f|1|α|square|α²|11|";
    const std::u16string longBody(3000, u'7');
    WriteFileAtomically(folder / "macro.mcr", Bytes(kFirst));
    WriteFileAtomically(folder / "a.MCR", Bytes(u"f|0|||" + longBody + u"||\r\n\r\n"));
    WriteFileAtomically(folder / "damaged.mcr", Bytes(u"no record\r\ng|0|||5|1|"));
    MacroList macros;
    MacroFiles files(folder.Path());
    files.Load(macros);
    ASSERT_EQ(macros.All().size(), 3U);
    EXPECT_EQ(macros.Find(u"f")->expression, longBody) << "longer than a line of the old reader";
    EXPECT_EQ(*macros.Find(u"Ma"), (Macro{u"Ma", u"α", 1, u"square", u"α²", u"11"}));
    WriteFileAtomically(folder / "late.mcr", Bytes(kFirst));
    ASSERT_TRUE(files.Save(macros));
    EXPECT_FALSE(std::filesystem::exists(folder / "a.MCR"));
    EXPECT_FALSE(std::filesystem::exists(folder / "damaged.mcr"));
    EXPECT_TRUE(std::filesystem::exists(folder / "damaged.mcr.bad"));
    EXPECT_TRUE(std::filesystem::exists(folder / "late.mcr")) << "never read, so not removed";
    MacroList again;
    MacroFiles next(folder.Path());
    next.Load(again);
    EXPECT_EQ(again.All().size(), 4U);
    std::filesystem::remove(folder / "late.mcr");
    bool complete = true;
    EXPECT_EQ(ParseMacroText(MacroText(macros), complete), macros.All());
    EXPECT_TRUE(complete);
}

TEST(MacroFiles, AWritingThatFailsRemovesNothing) {
    const TemporaryFolder folder;
    WriteFileAtomically(folder / "other.mcr", Bytes(u"g|0|||5|1|"));
    std::filesystem::create_directory(folder / "macro.mcr");  // nothing can be renamed over a folder
    MacroList macros;
    MacroFiles files(folder.Path());
    files.Load(macros);
    EXPECT_FALSE(files.Save(macros));
    EXPECT_TRUE(std::filesystem::exists(folder / "other.mcr"));
}

}  // namespace
}  // namespace quorix
