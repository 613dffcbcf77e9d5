#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace quorix {

/// Where exchange rates are fetched: the lines "key = value" of "update.dat".
struct UpdateSettings {
    std::string server;
    std::uint16_t port = 80;
    std::string objectPath = "currency\\save.txt";
    std::string userName = "qrx";
    std::string password = "qrx";
};

/// The settings of a file; what it does not set, or sets to nothing usable, keeps its default. Lines that
/// begin with "#" are comments. An absent file names no server, so that no connection is made.
UpdateSettings ReadUpdateSettings(const std::filesystem::path& path);

}  // namespace quorix
