#pragma once

// The archive form of the state files: primitive values one behind the other, no header, no version.
//   u8; u32 little-endian; a string as FF FE FF, its length in characters (one byte below 255; else FF and 16
//   bits; else FF FF FF and 32 bits) and UTF-16 little-endian characters.

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// The data ended early or does not have the archive form. Only owners of files catch it.
class ArchiveException : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads primitives from bytes that the caller keeps alive. Every read is bounds-checked and throws
/// ArchiveException.
class ArchiveReader {
  public:
    explicit ArchiveReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint8_t ReadU8();
    std::uint32_t ReadU32();
    std::u16string ReadString();
    [[nodiscard]] std::size_t Remaining() const { return bytes_.size() - position_; }

  private:
    std::span<const std::uint8_t> Take(std::size_t count);

    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
};

/// Collects primitives; the caller writes Bytes() to a file.
class ArchiveWriter {
  public:
    void WriteU8(std::uint8_t value) { bytes_.push_back(value); }
    void WriteU32(std::uint32_t value);
    /// Throws ArchiveException above 2^32 - 1 characters.
    void WriteString(std::u16string_view text);
    [[nodiscard]] const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

  private:
    void WriteU16(std::uint16_t value);

    std::vector<std::uint8_t> bytes_;
};

}  // namespace quorix
