#include "reference/currency_downloader.h"

#include "platform/files.h"
#include "reference/currency_file.h"

namespace quorix {

namespace {

/// "#Date: " and a date of 11 characters.
constexpr std::size_t kDateBytes = 18;

}  // namespace

HttpRequest CurrencyDownloader::Request(std::size_t wantedBytes) const {
    return {.server = settings_.server,
            .port = settings_.port,
            .objectPath = settings_.objectPath,
            .userName = settings_.userName,
            .password = settings_.password,
            .wantedBytes = wantedBytes};
}

std::u16string CurrencyDownloader::FetchRemoteDate() {
    const auto answer = http_.Get(Request(kDateBytes));
    if (!answer) {
        return {};
    }
    return RemoteRateDate({reinterpret_cast<const char*>(answer->data()), answer->size()});
}

bool CurrencyDownloader::Download() {
    const auto answer = http_.Get(Request(0));
    return answer && WriteFileAtomically(localFile_, *answer);
}

}  // namespace quorix
