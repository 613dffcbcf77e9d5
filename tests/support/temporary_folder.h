#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quorix::testing {

/// A folder of its own for one test, gone with it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "quorix-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    /// The content of a file, or "absent".
    [[nodiscard]] std::string Read(std::string_view name) const {
        std::ifstream stream(path_ / name, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "absent";
    }
    void Write(std::string_view name, const std::vector<std::uint8_t>& bytes) const {
        std::ofstream(path_ / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    void Write(std::string_view name, std::string_view text) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << text;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace quorix::testing
