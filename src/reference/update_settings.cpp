#include "reference/update_settings.h"

#include <charconv>

#include "platform/files.h"
#include "platform/trim.h"
#include "reference/data_line.h"

namespace quorix {

namespace {

struct TextSetting {
    std::string_view key;
    std::string UpdateSettings::*text;
};

constexpr TextSetting kTextSettings[] = {
    {"server", &UpdateSettings::server},
    {"path", &UpdateSettings::objectPath},
    {"user", &UpdateSettings::userName},
    {"password", &UpdateSettings::password},
};

void ReadSetting(std::string_view key, std::string_view value, UpdateSettings& settings) {
    for (const auto& [name, text] : kTextSettings) {
        if (key == name) {
            settings.*text = value;
        }
    }
    std::uint16_t port = 0;
    if (key == "port" &&
        std::from_chars(value.data(), value.data() + value.size(), port).ptr == value.data() + value.size() &&
        port != 0) {
        settings.port = port;
    }
}

}  // namespace

UpdateSettings ReadUpdateSettings(const std::filesystem::path& path) {
    UpdateSettings settings;
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        return settings;
    }
    DataLines lines({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, kLongestGroupLine);
    for (DataLine line; lines.Next(line);) {
        const std::string_view text = Trimmed(line.text);
        const std::size_t equals = text.find('=');
        if (!line.damaged && !text.starts_with('#') && equals != text.npos) {
            ReadSetting(Trimmed(text.substr(0, equals)), Trimmed(text.substr(equals + 1)), settings);
        }
    }
    return settings;
}

}  // namespace quorix
