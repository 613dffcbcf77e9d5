#include "tools/biorhythm_advice.h"

#include <algorithm>
#include <optional>

#include "platform/files.h"
#include "platform/utf8.h"
#include "tools/number_text.h"

namespace quorix {

namespace {

/// Cuts bytes into lines that keep their ends.
class AdviceLines {
  public:
    explicit AdviceLines(std::string_view bytes) : rest_(bytes) {}

    std::optional<std::string_view> Next() {
        if (rest_.empty()) {
            return std::nullopt;
        }
        const std::size_t end = rest_.find('\n');
        const std::size_t whole = end == std::string_view::npos ? rest_.size() : end + 1;
        const std::string_view line = rest_.substr(0, std::min(whole, kLongestAdviceLine));
        rest_.remove_prefix(line.size());
        return line;
    }

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

  private:
    std::string_view rest_;
};

/// A line as text; as everywhere a NUL byte ends it.
std::u16string TextOf(std::string_view line) {
    return FromUtf8(line.substr(0, std::min(line.find('\0'), line.size())));
}

}  // namespace

void BiorhythmAdvice::Parse(std::span<const std::uint8_t> bytes) {
    lists_ = {};
    AdviceLines lines({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    for (auto& cycle : lists_) {
        lines.Next();
        for (Lines& list : cycle) {
            const auto count = lines.Next();
            for (std::int64_t n = count ? ReadInteger(TextOf(*count)) : 0; n > 0 && !lines.AtEnd(); --n) {
                list.push_back(TextOf(*lines.Next()));
            }
        }
    }
}

bool BiorhythmAdvice::Load(const std::filesystem::path& path) {
    const auto bytes = ReadWholeFile(path);
    if (!bytes || bytes->size() > kLargestAdviceFile) {
        lists_ = {};
        return false;
    }
    Parse(*bytes);
    return true;
}

}  // namespace quorix
