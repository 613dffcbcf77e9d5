#pragma once

// The one data file that the program writes, and the date in its first line.

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "reference/unit_record.h"

namespace quorix {

/// The first line, its end included, at most 255 bytes; empty when the file cannot be opened.
std::string ReadFirstLine(const std::filesystem::path& path);

/// Writes the rows behind the file's present first line, in one group "Currency". A row whose symbol is "USD"
/// is written as the base, whatever its name. False leaves the old file untouched.
bool SaveCurrency(const std::filesystem::path& path, std::span<const UnitRecord> records);

/// The date of the rates for the status line: the first line without the characters of "#Date: " at its left,
/// taken as a set, so that 'Dec 15 2006' loses its "De" (this is intended), and without blanks at its right.
std::u16string LocalRateDate(const std::filesystem::path& path);

/// The date at the start of a server's answer: at most 11 characters behind the ":" of a "#Date" in any case.
/// Empty when the answer does not begin so.
std::u16string RemoteRateDate(std::string_view answer);

}  // namespace quorix
