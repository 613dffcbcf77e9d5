#include "platform/directory.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <tuple>
#include <utility>

#include "platform/path.h"

namespace quorix {

namespace {

struct Entry {
    std::u16string folded;  ///< What the order goes by first.
    std::filesystem::path path;
};

}  // namespace

bool MatchesPattern(std::u16string_view name, std::u16string_view pattern) {
    std::size_t at = 0;
    std::size_t in = 0;
    // Behind the last "*": where the pattern goes on, and where the name did when it was tried last.
    std::size_t afterStar = pattern.npos;
    std::size_t retry = 0;
    while (at < name.size()) {
        if (in < pattern.size() && pattern[in] == u'*') {
            afterStar = ++in;
            retry = at;
        } else if (in < pattern.size() &&
                   (pattern[in] == u'?' || FoldCase(pattern[in]) == FoldCase(name[at]))) {
            ++in;
            ++at;
        } else if (afterStar != pattern.npos) {
            in = afterStar;
            at = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', in) == pattern.npos;
}

std::vector<std::filesystem::path> ListFiles(const std::filesystem::path& folder,
                                             std::u16string_view pattern) {
    const std::size_t separator = pattern.find_last_of(u"\\/");
    const std::size_t nameAt = separator == pattern.npos ? 0 : separator + 1;
    const std::filesystem::path place = ResolvePath(folder, pattern.substr(0, nameAt));
    std::vector<Entry> entries;
    std::error_code error;
    for (std::filesystem::directory_iterator it(place, error), end; !error && it != end;
         it.increment(error)) {
        try {
            std::u16string name = it->path().filename().u16string();
            std::error_code unknown;
            if (MatchesPattern(name, pattern.substr(nameAt)) && it->is_regular_file(unknown)) {
                std::ranges::transform(name, name.begin(), FoldCase);
                entries.push_back({std::move(name), it->path()});
            }
        } catch (const std::system_error&) {
            // A name that is no text of this system's encoding is no name of ours.
            continue;
        }
    }
    std::ranges::sort(entries, [](const Entry& a, const Entry& b) {
        return std::tie(a.folded, a.path) < std::tie(b.folded, b.path);
    });
    std::vector<std::filesystem::path> files;
    for (Entry& entry : entries) {
        files.push_back(std::move(entry.path));
    }
    return files;
}

}  // namespace quorix
