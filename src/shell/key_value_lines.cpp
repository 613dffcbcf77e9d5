#include "shell/key_value_lines.h"

#include <algorithm>

#include "platform/trim.h"

namespace quorix {

namespace {

constexpr char FoldCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

}  // namespace

void ForEachKeyValue(std::span<const std::uint8_t> text,
                     const std::function<bool(std::string_view, std::string_view)>& take) {
    std::string_view rest(reinterpret_cast<const char*>(text.data()), text.size());
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = rest.substr(0, std::min(end, kLongestSkinLine));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const std::size_t equals = line.find('=');
        if (equals == line.npos || equals == 0) {
            continue;
        }
        if (!take(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)))) {
            return;
        }
    }
}

bool SameKey(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return FoldCase(x) == FoldCase(y); });
}

}  // namespace quorix
