#pragma once

// The advice file: for each cycle a heading line and seven kinds, each a line with a count and so many lines.

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/biorhythm_cycles.h"

namespace quorix {

inline constexpr std::u16string_view kAdviceFileName = u"biorythm.dat";
inline constexpr std::u16string_view kAdviceMissing = u"Can not open data file!";
inline constexpr std::u16string_view kAdviceMissingTitle = u"Error";
/// Bytes that one line is read up to; a longer one goes on as the next line.
inline constexpr std::size_t kLongestAdviceLine = 1023;
/// Bytes; a larger file counts as one that cannot be opened, so that memory stays bounded.
inline constexpr std::size_t kLargestAdviceFile = 2U * 1024U * 1024U;

/// Lines of advice by cycle and kind, each with its line end.
class BiorhythmAdvice {
  public:
    using Lines = std::vector<std::u16string>;

    /// Takes what the bytes hold; lists behind an early end are empty. A count is the decimal number that its
    /// line starts with; 0, less or no number means no lines.
    void Parse(std::span<const std::uint8_t> bytes);
    /// False, with all lists empty, when the file cannot be opened: kAdviceMissing is then to be shown.
    bool Load(const std::filesystem::path& path);

    [[nodiscard]] const Lines& Of(std::size_t cycle, DayClass kind) const {
        return lists_[cycle][static_cast<std::size_t>(kind)];
    }

  private:
    std::array<std::array<Lines, kDayClassCount>, kCycleCount> lists_;
};

}  // namespace quorix
