#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace quorix {

namespace {

constexpr std::string_view kTemporaryEnding = ".tmp";

/// A POSIX descriptor that closes itself.
class Descriptor {
  public:
    explicit Descriptor(int value) : value_(value) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (value_ >= 0) {
            ::close(value_);
        }
    }
    [[nodiscard]] int Get() const { return value_; }
    [[nodiscard]] bool IsOpen() const { return value_ >= 0; }

  private:
    int value_;
};

/// A write beyond the process's limit for files fails while this stands, instead of ending the program.
class FileLimitSignalBlock {
  public:
    FileLimitSignalBlock() {
        sigemptyset(&blocked_);
        sigaddset(&blocked_, SIGXFSZ);
        ::pthread_sigmask(SIG_BLOCK, &blocked_, &before_);
    }
    FileLimitSignalBlock(const FileLimitSignalBlock&) = delete;
    FileLimitSignalBlock& operator=(const FileLimitSignalBlock&) = delete;
    ~FileLimitSignalBlock() {
        const timespec noTime{};
        while (::sigtimedwait(&blocked_, nullptr, &noTime) > 0) {
        }
        ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    }

  private:
    sigset_t blocked_{};
    sigset_t before_{};
};

bool WriteAll(int descriptor, std::span<const std::uint8_t> bytes) {
    const FileLimitSignalBlock block;
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    // A rename may reach the disk before the data does; only a flushed file may replace the old one.
    return ::fsync(descriptor) == 0;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > kLargestFile) {
        return std::nullopt;
    }
    std::ifstream stream(path, std::ios::binary);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (!stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()))) {
        return std::nullopt;
    }
    return bytes;
}

bool WriteFileAtomically(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    // The process number keeps two programs that share a folder out of each other's temporary file.
    std::filesystem::path temporary = path;
    temporary += "." + std::to_string(::getpid()) + std::string(kTemporaryEnding);
    std::error_code error;
    {
        const Descriptor file(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
        if (!file.IsOpen()) {
            return false;
        }
        if (!WriteAll(file.Get(), bytes)) {
            std::filesystem::remove(temporary, error);
            return false;
        }
    }
    std::filesystem::rename(temporary, path, error);
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        return false;
    }
    return true;
}

void RemoveAbandonedTemporaries(const std::filesystem::path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        // "NAME.PROCESS.tmp"
        const std::filesystem::path file = entry.path();
        if (file.extension() != kTemporaryEnding) {
            continue;
        }
        const std::string process = file.stem().extension().string();
        const int id = process.size() > 1 ? std::atoi(process.c_str() + 1) : 0;
        if (id > 0 && ::kill(id, 0) != 0 && errno == ESRCH) {
            std::error_code ignored;
            std::filesystem::remove(file, ignored);
        }
    }
}

bool KeepDamagedFile(const std::filesystem::path& path) {
    std::filesystem::path kept = path;
    kept += ".bad";
    std::error_code error;
    std::filesystem::rename(path, kept, error);
    return !error;
}

}  // namespace quorix
