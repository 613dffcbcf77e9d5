#include "platform/path.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace quorix {

namespace {

std::filesystem::path FindEntry(const std::filesystem::path& folder, const std::u16string& name) {
    std::error_code error;
    if (std::filesystem::exists(folder / name, error)) {
        return name;
    }
    std::filesystem::path found;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
        std::filesystem::path entry = it->path().filename();
        try {
            if (SameFileName(entry.u16string(), name) && (found.empty() || entry < found)) {
                found = std::move(entry);
            }
        } catch (const std::system_error&) {
            // A name that is no text of this system's encoding is no name of ours.
            continue;
        }
    }
    return found.empty() ? std::filesystem::path(name) : found;
}

}  // namespace

char16_t FoldCase(char16_t c) {
    const bool ascii = c >= u'A' && c <= u'Z';
    // The multiplication sign lies among the capitals of Latin-1.
    const bool latin = c >= 0xC0 && c <= 0xDE && c != 0xD7;
    return ascii || latin ? static_cast<char16_t>(c + 0x20) : c;
}

bool SameFileName(std::u16string_view a, std::u16string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return FoldCase(x) == FoldCase(y); });
}

std::filesystem::path ResolvePath(const std::filesystem::path& folder, std::u16string_view name) {
    constexpr std::u16string_view kSeparators = u"\\/";
    std::filesystem::path path = folder;
    while (!name.empty()) {
        const std::size_t end = std::min(name.find_first_of(kSeparators), name.size());
        const std::u16string part(name.substr(0, end));
        name.remove_prefix(std::min(end + 1, name.size()));
        if (part.empty() || part == u".") {
            continue;
        }
        if (part == u".." || part.find(u'\0') != part.npos) {
            return {};
        }
        path /= FindEntry(path, part);
    }
    return path;
}

}  // namespace quorix
