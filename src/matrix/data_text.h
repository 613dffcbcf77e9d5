#pragma once

// The text of the data files of matrices and lists, read bit by bit.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorix {

/// A place in a text. Nothing here throws; what is not there is told by an empty result.
class DataText {
  public:
    explicit DataText(std::span<const std::uint8_t> bytes)
        : rest_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

    /// The decimal integer behind any blanks and line ends. Nothing when none stands there; the place then
    /// stays behind the blanks. Values out of range are taken as the nearest int.
    std::optional<std::int32_t> TakeInteger();
    /// Moves behind the end of the line.
    void SkipLine();

    struct Line {
        /// Without its end, at most `longest` characters and never a part of a word.
        std::string_view text;
        bool isCut = false;
    };
    /// The rest of the line; nothing at the end of the text.
    std::optional<Line> TakeLine(std::size_t longest);

  private:
    std::string_view rest_;
};

/// Reads the numbers of a line, parted by blanks, into `values` until either ends; what is left of `values`
/// becomes 0. False when a word is no number; it counts as 0.
bool ReadNumbers(std::string_view line, std::span<double> values);

/// Appends "VALUE " for each value, and the line end.
void AppendNumbers(std::string& text, std::span<const double> values);

}  // namespace quorix
