#pragma once

// The data of the category "Statistics": the engine's variable LIST as a list of items, its file, and the
// commands of its editor. The items live in the variable alone.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace quorix {

inline constexpr std::u16string_view kStatisticsFileName = u"statistics.dat";
inline constexpr std::u16string_view kStatisticsDataError = u"Load statistics data error!";
/// Items that a list holds at most.
inline constexpr std::size_t kMostItems = 512;

/// The items; none when LIST is no list.
std::span<const double> StatisticsItems();
/// "N : 3".
std::string StatisticsCountLabel();

enum class StatisticsLoad {
    good,     ///< the list is the file's
    none,     ///< no file, no items, or a count outside 1 to 512: the list is as it was; no message
    damaged,  ///< not all items could be read; the others are 0: kStatisticsDataError is shown
};
/// Reads a file into the list. It is kept as NAME.bad when something of it is left out, or all of it cannot
/// be read.
StatisticsLoad LoadStatistics(const std::filesystem::path& path);
/// The same for the bytes of a file.
StatisticsLoad ReadStatistics(std::span<const std::uint8_t> bytes);
/// Writes the list, nothing for an empty one. False, with the old file untouched, when it cannot or when an
/// expression has made the list longer than kMostItems.
bool SaveStatistics(const std::filesystem::path& path);
/// What SaveStatistics writes.
std::string StatisticsFileText();

/// Commands; each is false, and changes nothing, when there is no such item, the list is full or the value is
/// not finite. Inserting at the index behind the last item appends.
bool InsertItem(std::size_t index, double value);
bool SetItem(std::size_t index, double value);
bool DeleteItem(std::size_t index);
void ClearItems();

}  // namespace quorix
