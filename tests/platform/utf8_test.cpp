#include "platform/utf8.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

TEST(Utf8, ComesBack) {
    const std::u16string text = u"1\u00F73 \u2212 \u221A \u03C0 \U0001D70B";
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    EXPECT_EQ(ToUtf8(u"\u00F7"), "\xC3\xB7");
}

TEST(Utf8, MalformedBytesBecomeReplacements) {
    EXPECT_EQ(FromUtf8("a\xFFz"), u"a\uFFFDz");
    EXPECT_EQ(FromUtf8("\xE2\x88"), u"\uFFFD\uFFFD");  // cut short
    EXPECT_EQ(FromUtf8OrLatin1("\xE9"), u"é");
    EXPECT_EQ(FromUtf8OrLatin1("é\xEF\xBF\xBD"), u"é\uFFFD");
    EXPECT_EQ(FromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");            // overlong "/"
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");  // a surrogate
    EXPECT_EQ(ToUtf8(std::u16string(1, char16_t{0xD800})), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace quorix
