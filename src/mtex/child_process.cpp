#include "mtex/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace quorix::mtex {
namespace {

using Clock = std::chrono::steady_clock;

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    void Close() {
        if (number_ >= 0) close(number_);
        number_ = -1;
    }
    [[nodiscard]] int Number() const { return number_; }

  private:
    int number_;
};

void Limit(int resource, rlim_t value) {
    const rlimit limit{value, value};
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

/// Behind a fork of a program with threads only calls that are safe in signal handlers are allowed.
[[noreturn]] void BecomeChild(const char* path, char* const* arguments, int output,
                              const ChildLimits& limits) {
    constexpr int kFailed = 127;
    setpgid(0, 0);
    // A program without standard streams has their numbers free for others.
    output = fcntl(output, F_DUPFD, STDERR_FILENO + 1);
    const int nothing = open("/dev/null", O_RDWR);
    if (nothing < 0 || chdir("/") != 0 || dup2(nothing, STDIN_FILENO) < 0 ||
        dup2(nothing, STDERR_FILENO) < 0 || dup2(output, STDOUT_FILENO) < 0) {
        _exit(kFailed);
    }
    close_range(STDERR_FILENO + 1, ~0U, 0);
    Limit(RLIMIT_AS, limits.memoryBytes);
    Limit(RLIMIT_CPU, static_cast<rlim_t>(limits.time.count() / 1000 + 1));
    Limit(RLIMIT_FSIZE, 0);
    Limit(RLIMIT_CORE, 0);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    char* const environment[] = {nullptr};
    execve(path, arguments, environment);
    _exit(kFailed);
}

/// Reads until the end. False when a limit is passed first.
bool ReadAll(int input, Clock::time_point deadline, std::size_t mostBytes,
             std::vector<std::uint8_t>& output) {
    constexpr std::size_t kBlock = 65536;
    while (output.size() <= mostBytes) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        pollfd waiting{input, POLLIN, 0};
        const int ready = left.count() > 0 ? poll(&waiting, 1, static_cast<int>(left.count())) : 0;
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) return false;
        const std::size_t length = output.size();
        output.resize(length + kBlock);
        const ssize_t got = read(input, output.data() + length, kBlock);
        output.resize(length + static_cast<std::size_t>(got > 0 ? got : 0));
        if (got == 0) return true;
        if (got < 0 && errno != EINTR) return false;
    }
    return false;
}

/// Takes the exit status of a child. One that has not ended at the deadline is killed, with what it has
/// started. Result: whether it has ended by itself.
bool EndsWell(pid_t child, Clock::time_point deadline) {
    int status = 0;
    while (Clock::now() < deadline) {
        const pid_t ended = waitpid(child, &status, WNOHANG);
        if (ended == child) return WIFEXITED(status);
        // Where SIGCHLD is ignored the system takes the status of children itself.
        if (ended < 0 && errno != EINTR) return errno == ECHILD;
        constexpr useconds_t kPause = 200;  // The output is closed: it is about to end.
        usleep(kPause);
    }
    killpg(child, SIGKILL);
    kill(child, SIGKILL);
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return false;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> RunChild(const std::string& path,
                                                  const std::vector<std::string>& arguments,
                                                  const ChildLimits& limits) {
    std::vector<char*> pointers{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
    const Descriptor input(ends[0]);
    Descriptor output(ends[1]);
    const pid_t child = fork();
    if (child < 0) return std::nullopt;
    if (child == 0) BecomeChild(path.c_str(), pointers.data(), output.Number(), limits);
    output.Close();
    std::vector<std::uint8_t> bytes;
    const Clock::time_point deadline = Clock::now() + limits.time;
    bool complete = false;
    try {
        complete = ReadAll(input.Number(), deadline, limits.outputBytes, bytes);
    } catch (...) {
        EndsWell(child, Clock::time_point::min());
        throw;
    }
    const bool endedWell = EndsWell(child, complete ? deadline : Clock::time_point::min());
    if (!complete || !endedWell) return std::nullopt;
    return bytes;
}

}  // namespace quorix::mtex
