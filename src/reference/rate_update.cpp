#include "reference/rate_update.h"

#include <system_error>

#include "engine/text_fold.h"
#include "reference/currency_downloader.h"
#include "reference/currency_file.h"

namespace quorix {

namespace {

constexpr int kNoticeSeconds = 60;

bool HoldsRates(const std::filesystem::path& file) {
    UnitTable table;
    table.Load(file);
    return !table.Records().empty();
}

/// Puts the fetched file in the place of the old one; one without rows goes.
bool TakeFile(const std::filesystem::path& fetched, const std::filesystem::path& currencyFile) {
    std::error_code error;
    if (!HoldsRates(fetched)) {
        std::filesystem::remove(fetched, error);
        return false;
    }
    std::filesystem::rename(fetched, currencyFile, error);
    return !error;
}

}  // namespace

void ShowCannotConnect(Notices& notices, int seconds) {
    notices.Show(
        {.title = u"Cannot Connect",
         .text = u"Unable to connect: You have no modem entries created, and no network card present",
         .actions = {{kCommandNetworkSettings, u"Settings"}, {kCommandDismissNotice, u"Dismiss"}},
         .seconds = seconds});
}

std::u16string UpdateRates(const std::filesystem::path& currencyFile, HttpClient& http, Notices& notices,
                           UnitTable& table) {
    std::filesystem::path fetched = currencyFile;
    fetched += ".tmp";
    CurrencyDownloader downloader(http, fetched,
                                  ReadUpdateSettings(currencyFile.parent_path() / "update.dat"));
    const std::u16string localDate = LocalRateDate(currencyFile);
    std::u16string remoteDate;
    for (int i = 0; i < kUpdateTries && remoteDate.empty(); ++i) {
        remoteDate = downloader.FetchRemoteDate();
    }
    if (remoteDate.empty()) {
        ShowCannotConnect(notices, kNoticeSeconds);
        return localDate;
    }
    if (EqualsIgnoringCase(remoteDate, localDate)) {
        return remoteDate;
    }
    bool downloaded = false;
    for (int i = 0; i < kUpdateTries && !downloaded; ++i) {
        downloaded = downloader.Download();
    }
    if (downloaded && TakeFile(fetched, currencyFile)) {
        table.Load(currencyFile);
    }
    return remoteDate;
}

}  // namespace quorix
