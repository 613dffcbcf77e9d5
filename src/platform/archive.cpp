#include "platform/archive.h"

namespace quorix {

namespace {

constexpr std::uint8_t kStringMarker[3] = {0xFF, 0xFE, 0xFF};
constexpr std::size_t kByteLengthEnd = 0xFF;
constexpr std::size_t kWordLengthEnd = 0xFFFF;

}  // namespace

std::span<const std::uint8_t> ArchiveReader::Take(std::size_t count) {
    if (count > Remaining()) {
        throw ArchiveException("the archive ends early");
    }
    const auto taken = bytes_.subspan(position_, count);
    position_ += count;
    return taken;
}

std::uint8_t ArchiveReader::ReadU8() {
    return Take(1)[0];
}

std::uint32_t ArchiveReader::ReadU32() {
    const auto b = Take(4);
    return static_cast<std::uint32_t>(b[0]) | static_cast<std::uint32_t>(b[1]) << 8 |
           static_cast<std::uint32_t>(b[2]) << 16 | static_cast<std::uint32_t>(b[3]) << 24;
}

std::u16string ArchiveReader::ReadString() {
    for (const std::uint8_t marker : kStringMarker) {
        if (ReadU8() != marker) {
            throw ArchiveException("a string does not start with its marker");
        }
    }
    std::size_t length = ReadU8();
    if (length == kByteLengthEnd) {
        const auto b = Take(2);
        length = static_cast<std::size_t>(b[0] | b[1] << 8);
        if (length == kWordLengthEnd) {
            length = ReadU32();
        }
    }
    if (length > Remaining() / 2) {
        throw ArchiveException("a string is longer than the archive");
    }
    const auto characters = Take(length * 2);
    std::u16string text(length, u'\0');
    for (std::size_t i = 0; i < length; ++i) {
        text[i] = static_cast<char16_t>(characters[2 * i] | characters[2 * i + 1] << 8);
    }
    return text;
}

void ArchiveWriter::WriteU16(std::uint16_t value) {
    bytes_.push_back(static_cast<std::uint8_t>(value & 0xFF));
    bytes_.push_back(static_cast<std::uint8_t>(value >> 8));
}

void ArchiveWriter::WriteU32(std::uint32_t value) {
    WriteU16(static_cast<std::uint16_t>(value & 0xFFFF));
    WriteU16(static_cast<std::uint16_t>(value >> 16));
}

void ArchiveWriter::WriteString(std::u16string_view text) {
    if (text.size() > 0xFFFFFFFFU) {
        throw ArchiveException("a string is too long for the archive");
    }
    bytes_.insert(bytes_.end(), std::begin(kStringMarker), std::end(kStringMarker));
    if (text.size() < kByteLengthEnd) {
        WriteU8(static_cast<std::uint8_t>(text.size()));
    } else if (text.size() < kWordLengthEnd) {
        WriteU8(0xFF);
        WriteU16(static_cast<std::uint16_t>(text.size()));
    } else {
        WriteU8(0xFF);
        WriteU16(0xFFFF);
        WriteU32(static_cast<std::uint32_t>(text.size()));
    }
    for (const char16_t character : text) {
        WriteU16(character);
    }
}

}  // namespace quorix
