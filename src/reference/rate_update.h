#pragma once

#include <filesystem>
#include <string>

#include "platform/http.h"
#include "platform/notices.h"
#include "reference/unit_table.h"

namespace quorix {

/// Each step of an update is tried so often.
inline constexpr int kUpdateTries = 3;
/// Commands of the notice that the server cannot be reached.
inline constexpr int kCommandNetworkSettings = 1000;
inline constexpr int kCommandDismissNotice = 1001;

/// Raises the notice "Cannot Connect" with its two actions.
void ShowCannotConnect(Notices& notices, int seconds);

/// Fetches a newer "currency.dat" from the server that "update.dat" beside it names, and loads it into
/// `table`. The old file is replaced only by one with at least one row. Result: the date for the status line;
/// it is the server's as soon as that is known, also when the file itself did not come.
std::u16string UpdateRates(const std::filesystem::path& currencyFile, HttpClient& http, Notices& notices,
                           UnitTable& table);

}  // namespace quorix
