#pragma once

#include <filesystem>
#include <string>

#include "platform/http.h"
#include "reference/update_settings.h"

namespace quorix {

/// Fetches the file of rates, or its date alone, from the update server. One per update; the client outlives
/// it.
class CurrencyDownloader {
  public:
    CurrencyDownloader(HttpClient& http, std::filesystem::path localFile, UpdateSettings settings)
        : http_(http), localFile_(std::move(localFile)), settings_(std::move(settings)) {}

    /// The date of the server's rates, empty on any failure. Blocks as HttpClient::Get does.
    std::u16string FetchRemoteDate();
    /// Writes the whole answer to the local file; false when it did not come or cannot be written.
    bool Download();

  private:
    [[nodiscard]] HttpRequest Request(std::size_t wantedBytes) const;

    HttpClient& http_;
    std::filesystem::path localFile_;
    UpdateSettings settings_;
};

}  // namespace quorix
