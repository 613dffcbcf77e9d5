#include "platform/archive.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

TEST(Archive, StringsOfEveryLengthFormComeBack) {
    for (const std::size_t length : {0U, 1U, 254U, 255U, 256U, 65534U, 65535U, 65536U, 70000U}) {
        ArchiveWriter writer;
        std::u16string text(length, u'\u2212');
        writer.WriteString(text);
        writer.WriteU8(7);
        writer.WriteU32(0x01020304);
        const std::size_t prefix = length < 255 ? 4 : length < 65535 ? 6 : 10;
        EXPECT_EQ(writer.Bytes().size(), prefix + 2 * length + 5);
        ArchiveReader reader(writer.Bytes());
        EXPECT_EQ(reader.ReadString(), text);
        EXPECT_EQ(reader.ReadU8(), 7);
        EXPECT_EQ(reader.ReadU32(), 0x01020304U);
        EXPECT_EQ(reader.Remaining(), 0U);
    }
}

TEST(Archive, HasItsBytes) {
    ArchiveWriter writer;
    writer.WriteU32(0xAABBCCDD);
    writer.WriteString(u"\u20ACA");
    EXPECT_EQ(writer.Bytes(),
              (std::vector<std::uint8_t>{0xDD, 0xCC, 0xBB, 0xAA, 0xFF, 0xFE, 0xFF, 2, 0xAC, 0x20, 'A', 0}));
}

TEST(Archive, EveryShortOrForeignInputThrows) {
    ArchiveWriter writer;
    writer.WriteString(std::u16string(300, u'x'));
    for (std::size_t length = 0; length < writer.Bytes().size(); ++length) {
        ArchiveReader reader(std::span(writer.Bytes()).first(length));
        EXPECT_THROW(reader.ReadString(), ArchiveException) << length;
    }
    const std::vector<std::uint8_t> foreign[] = {
        {0xFF, 0xFE, 0xFE, 0},                                               // another marker
        {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0},  // 2^32 - 1 characters
    };
    for (const auto& bytes : foreign) {
        ArchiveReader reader(bytes);
        EXPECT_THROW(reader.ReadString(), ArchiveException);
    }
}

}  // namespace
}  // namespace quorix
