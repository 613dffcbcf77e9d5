#pragma once

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

namespace quorix::testing {

/// An empty folder of its own that goes with the test.
class TempFolder {
  public:
    TempFolder() {
        static int count = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("quorix-test-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Writes a file, with the folders that it needs.
    std::filesystem::path Write(const std::filesystem::path& name, std::string_view text) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << text;
        return path_ / name;
    }

  private:
    std::filesystem::path path_;
};

/// The bytes of a text.
inline std::span<const std::uint8_t> BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace quorix::testing
