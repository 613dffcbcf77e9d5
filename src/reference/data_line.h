#pragma once

// Lines and fields of the text data files.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorix {

/// Bytes of a line, its end not counted, that the readers of groups and the unit table take.
inline constexpr std::size_t kLongestGroupLine = 255;
inline constexpr std::size_t kLongestTableLine = 254;

/// One line without its end. A damaged line is longer than allowed (text is its allowed part) or holds a zero
/// byte: it may be a comment, but nothing is read from it.
struct DataLine {
    std::string_view text;
    std::int32_t number = 0;
    bool damaged = false;
};

/// Walks the lines of a text that the caller keeps alive. Numbers begin with 1. A byte-order mark is skipped.
class DataLines {
  public:
    DataLines(std::string_view text, std::size_t longest);
    /// False at the end of the text.
    bool Next(DataLine& line);

  private:
    std::string_view rest_;
    std::size_t longest_;
    std::int32_t number_ = 0;
};

/// What parts the fields of a line besides white space.
enum class FieldSeparators : std::uint8_t { blanks = 1, blanksAndColons = 3, blanksColonsAndHashes = 7 };

/// Cuts fields from the front of a line.
class FieldCutter {
  public:
    FieldCutter(std::string_view line, FieldSeparators separators);
    /// Empty when no field is left.
    std::string_view Next();
    /// The line from its next field on, empty when there is none.
    [[nodiscard]] std::string_view Rest() const { return rest_; }

  private:
    std::string_view rest_;
    std::uint8_t mask_;
};

/// A field as 16-bit text: UTF-8, or Latin-1 where the bytes are no UTF-8.
std::u16string WidenField(std::string_view field);
/// The same with "_" as blanks.
std::u16string NameOfField(std::string_view field);

/// A number in plain notation with a point and perhaps an exponent; of longer fields the first 100 bytes
/// count. Nothing when the field is not wholly a number or leaves the range of doubles.
std::optional<double> NumberOfField(std::string_view field);

}  // namespace quorix
