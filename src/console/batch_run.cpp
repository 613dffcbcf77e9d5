#include "console/batch_run.h"

#include <unistd.h>

#include <cerrno>
#include <vector>

namespace quorix {
namespace {

constexpr std::size_t kBlock = 65536;

bool WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Blocks of input; 0 at the end, and at an error.
std::size_t ReadBlock(int descriptor, std::vector<char>& block) {
    for (;;) {
        const ssize_t length = read(descriptor, block.data(), block.size());
        if (length >= 0) return static_cast<std::size_t>(length);
        if (errno != EINTR) return 0;
    }
}

class Batch {
  public:
    Batch(ConsoleSession& session, int output, int errors)
        : session_(session), output_(output), errors_(errors) {}

    void Line(std::string_view line) {
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find_first_not_of(" \t") == std::string_view::npos) return;
        const std::size_t start = results_.size();
        if (session_.Evaluate(line, results_)) {
            results_.push_back('\n');
            if (results_.size() >= kBlock) Flush();
            return;
        }
        // Results before the message come out before it.
        const std::string message = results_.substr(start) + '\n';
        results_.resize(start);
        Flush();
        WriteAll(errors_, message);
        succeeded_ = false;
    }

    void Flush() {
        if (!WriteAll(output_, results_)) succeeded_ = false;
        results_.clear();
    }

    [[nodiscard]] bool Succeeded() const { return succeeded_; }

  private:
    ConsoleSession& session_;
    int output_;
    int errors_;
    std::string results_;
    bool succeeded_ = true;
};

}  // namespace

bool RunBatch(ConsoleSession& session, int input, int output, int errors) {
    Batch batch(session, output, errors);
    std::vector<char> block(kBlock);
    std::string carried;  // A line that a block ends in.
    while (const std::size_t length = ReadBlock(input, block)) {
        std::string_view rest(block.data(), length);
        for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
            if (carried.empty()) {
                batch.Line(rest.substr(0, end));
            } else {
                batch.Line(carried.append(rest.substr(0, end)));
                carried.clear();
            }
            rest.remove_prefix(end + 1);
        }
        carried.append(rest);
    }
    if (!carried.empty()) batch.Line(carried);
    batch.Flush();
    return batch.Succeeded();
}

}  // namespace quorix
